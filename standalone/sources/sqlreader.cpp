#include "sqlreader.h"

#include "celltable.h"
#include "movedsources.h"
#include "secrets.h"
#include "sourcetexts.h"

#include <QElapsedTimer>
#include <QLocale>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUuid>

#include <cmath>

namespace sources {

namespace {

constexpr int MostRows = 1000000;
constexpr qint64 DefaultCap = 256LL * 1024 * 1024;

QString sqlReason(const QSqlError &error)
{
    const QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    return text.simplified().left(500);
}

QString missingDriver(const QString &driver)
{
    static const QMap<QString, QString> packages{
        {QStringLiteral("QSQLITE"), QStringLiteral("libqt5sql5-sqlite")},
        {QStringLiteral("QPSQL"), QStringLiteral("libqt5sql5-psql")},
        {QStringLiteral("QMYSQL"), QStringLiteral("libqt5sql5-mysql")},
        {QStringLiteral("QODBC"), QStringLiteral("libqt5sql5-odbc")},
    };
    const QString package = packages.value(driver);
    return package.isEmpty()
               ? SourceTexts::tr("the driver %1 is missing").arg(driver)
               : SourceTexts::tr("the driver %1 is missing; install the Debian package %2")
                     .arg(driver, package);
}

/** The words of each driver for how long it may take to connect. */
QString timeoutOptions(const QString &driver, int milliseconds)
{
    const int seconds = qMax(2, milliseconds / 1000);
    if (driver == QLatin1String("QSQLITE")) {
        return QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=%1").arg(milliseconds);
    }
    if (driver == QLatin1String("QPSQL")) {
        return QStringLiteral("connect_timeout=%1").arg(seconds);
    }
    if (driver == QLatin1String("QMYSQL")) {
        return QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT=%1;MYSQL_OPT_READ_TIMEOUT=%1")
            .arg(seconds);
    }
    return driver == QLatin1String("QODBC")
               ? QStringLiteral("SQL_ATTR_LOGIN_TIMEOUT=%1;SQL_ATTR_CONNECTION_TIMEOUT=%1")
                     .arg(seconds)
               : QString();
}

QByteArray textOf(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QByteArray:
        return value.toByteArray();
    case QMetaType::QDateTime:
        return value.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toUtf8();
    case QMetaType::Double: {
        const double number = value.toDouble();
        const char form = std::abs(number) < 1e15 ? 'f' : 'g'; // a price is not shown as 1e+02
        return QString::number(number, form, QLocale::FloatingPointShortest).toUtf8();
    }
    default:
        return value.toString().toUtf8();
    }
}

void addRow(const QSqlQuery &result, int columns, CellWriter *writer, qint64 *bytes)
{
    writer->beginRow();
    for (int column = 0; column < columns; ++column) {
        const bool isMissing = result.isNull(column);
        const QByteArray text = isMissing ? QByteArray() : textOf(result.value(column));
        writer->addCell(isMissing ? nullptr : text.constData(), size_t(text.size()));
        *bytes += text.size();
    }
}

} // namespace

SqlReader::SqlReader(const SourceSettings &settings, const SourceContext &context)
    : SourceReader(settings, context)
    , m_connection(QUuid::createUuid().toString())
{}

SqlReader::~SqlReader()
{
    disconnectDatabase();
}

int SqlReader::timeout() const
{
    return milliseconds(settings().timeout, 30000);
}

void SqlReader::read()
{
    QString error;
    if (!QSqlDatabase::contains(m_connection)) {
        error = connectDatabase();
    }
    const Reading reading = error.isEmpty() ? runAll() : Reading::failed(error);
    // Whatever went wrong: the next attempt starts afresh, with the secrets as they are then.
    if (reading.outcome == Reading::Failed) {
        disconnectDatabase();
    }
    emit finished(reading);
}

QString SqlReader::connectDatabase()
{
    const QString driver = settings().connection.driver;
    if (!QSqlDatabase::isDriverAvailable(driver)) {
        return missingDriver(driver);
    }
    QSqlDatabase database = QSqlDatabase::addDatabase(driver, m_connection);
    const QString error = prepare(&database);
    if (!error.isEmpty()) {
        return error;
    }
    if (!database.open()) {
        return SourceTexts::tr("the database cannot be opened: %1")
            .arg(sqlReason(database.lastError()));
    }
    if (driver == QLatin1String("QPSQL")) {
        QSqlQuery(database).exec(QStringLiteral("SET statement_timeout = %1").arg(timeout()));
    } else if (driver == QLatin1String("QMYSQL")) {
        // The driver asks for three bytes a character at most: others would come as "?".
        QSqlQuery(database).exec(QStringLiteral("SET NAMES utf8mb4"));
    }
    return QString();
}

QString SqlReader::prepare(QSqlDatabase *database) const
{
    const SqlConnection &connection = settings().connection;
    QString error;
    const auto resolved = [&error](const QString &text) {
        return resolveReferences(text, &error);
    };
    QString name = resolved(connection.database);
    if (connection.driver == QLatin1String("QSQLITE")) {
        name = fullFileName(context().folder, name);
    }
    database->setDatabaseName(name);
    database->setHostName(resolved(connection.host));
    database->setUserName(resolved(connection.user));
    database->setPassword(resolved(connection.password));
    if (connection.port > 0) {
        database->setPort(connection.port);
    }
    QStringList options{timeoutOptions(connection.driver, timeout()), resolved(connection.options)};
    options.removeAll(QString());
    database->setConnectOptions(options.join(QLatin1Char(';')));
    return error;
}

void SqlReader::disconnectDatabase()
{
    if (QSqlDatabase::contains(m_connection)) {
        QSqlDatabase::database(m_connection, false).close();
        QSqlDatabase::removeDatabase(m_connection);
    }
}

Reading SqlReader::runAll()
{
    QVector<NamedText> queries = settings().queries;
    if (!settings().query.isEmpty()) {
        queries.prepend({QStringLiteral("rows"), settings().query});
    }
    Reading reading;
    QVector<DataValue::Member> members;
    for (const NamedText &query : qAsConst(queries)) {
        members.append({query.name, run(query, &reading.bytes, &reading.error)});
        if (!reading.error.isEmpty()) {
            return reading;
        }
    }
    reading.outcome = Reading::Arrived;
    reading.value = DataValue::fromRecord(members);
    return reading;
}

DataValue SqlReader::run(const NamedText &query, qint64 *bytes, QString *error) const
{
    QElapsedTimer elapsed;
    elapsed.start();
    QSqlQuery result(QSqlDatabase::database(m_connection, false));
    result.setForwardOnly(true);
    result.setNumericalPrecisionPolicy(QSql::HighPrecision);
    CellWriter writer;
    QStringList names;
    if (result.exec(query.text)) {
        const QSqlRecord record = result.record();
        for (int column = 0; column < record.count(); ++column) {
            names.append(record.fieldName(column));
        }
        if (names.isEmpty() || names.size() > MostColumns) {
            *error = names.isEmpty()
                         ? SourceTexts::tr("the query %1 has no columns").arg(query.name)
                         : SourceTexts::tr("there are more than %1 columns").arg(MostColumns);
        }
    }
    while (error->isEmpty() && result.next()) {
        addRow(result, names.size(), &writer, bytes);
        *error = limitFault(query.name, elapsed.elapsed(), writer, *bytes);
    }
    if (error->isEmpty() && result.lastError().isValid()) {
        *error = SourceTexts::tr("the query %1 failed: %2")
                     .arg(query.name, sqlReason(result.lastError()));
    }
    return error->isEmpty() ? DataValue::fromTable(std::make_shared<const CellTable>(
                                  uniqueColumns(names), writer.take()))
                            : DataValue();
}

QString SqlReader::limitFault(const QString &query, qint64 elapsed, const CellWriter &writer,
                              qint64 bytes) const
{
    const qint64 cap = settings().sizeCap > 0 ? settings().sizeCap : DefaultCap;
    if (stop() || elapsed > timeout()) {
        return SourceTexts::tr("the query %1 took longer than %2 seconds")
            .arg(query)
            .arg(timeout() / 1000.0);
    }
    if (writer.rowCount() > MostRows) {
        return SourceTexts::tr("the query %1 has more than %2 rows").arg(query).arg(MostRows);
    }
    return bytes > cap || writer.isFull() ? SourceTexts::tr("it is larger than %1 bytes").arg(cap)
                                          : QString();
}

} // namespace sources
