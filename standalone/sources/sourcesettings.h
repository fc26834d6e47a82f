#pragma once

#include "jsonplace.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

namespace sources {

/** A name with a text: a header of a request, a query of a database. */
struct NamedText
{
    QString name;
    QString text;
};

/** Where a database is; which of them a driver needs is the driver's affair. */
struct SqlConnection
{
    QString driver; ///< As QtSql names it: QSQLITE, QPSQL, QMYSQL, QODBC.
    QString host;
    int port = 0; ///< 0: the driver's own.
    QString database;
    QString user;
    QString password; ///< Only references, see secrets.h.
    QString options;  ///< In the driver's own words.
    QJsonObject unknown;
};

/** How one data source is set up. Secrets stand in it by reference only, see secrets.h. */
struct SourceSettings
{
    QString name;
    int type = 1; ///< As DataSourceEntry::Type; a number without a kind is kept.
    bool enabled = true;

    QString file; ///< Types 1 and 2; relative to the programme's folder.
    QString url;  ///< Type 3; http or https.
    QVector<NamedText> headers;
    QString certificate; ///< PEM file of what signs the server's certificate; relative to folder.
    SqlConnection connection; ///< Type 4.
    QString query; ///< Its table is the member "rows"; those of queries have their names.
    QVector<NamedText> queries;

    QString format;      ///< csv, text or json; empty: found out.
    QString delimiter;   ///< One character; empty: found out.
    QString encoding;    ///< Such as GB18030; empty: UTF-8, else what the system uses.
    double interval = 0; ///< Seconds between two readings; 0: as the kind has it.
    double timeout = 0;  ///< Seconds; 0: as the kind has it.
    qint64 sizeCap = 0;  ///< Bytes; 0: as the kind has it.
    QString replay;      ///< A recording that is played instead of the source.

    QJsonObject unknown; ///< Members that are not known are kept.
};

/** What is wrong with a member of the settings, fit for a user. */
struct SettingsFault
{
    JsonPath path;
    QString reason;
};

/** Reads one source that stands at @p path; appends a fault for each member of a wrong type. */
[[nodiscard]] SourceSettings settingsFromJson(const QJsonObject &object, const JsonPath &path,
                                              QVector<SettingsFault> *faults);

/** The object of a source; members that say nothing are left out. */
[[nodiscard]] QJsonObject settingsToJson(const SourceSettings &settings);

/** What would keep the source from being used or stored; a secret in clear is a fault. */
[[nodiscard]] QVector<SettingsFault> settingsFaults(const SourceSettings &settings,
                                                    const JsonPath &path);

} // namespace sources
