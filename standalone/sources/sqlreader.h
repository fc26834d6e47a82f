#pragma once

#include "sourcereader.h"

#include <QSqlDatabase>

namespace sources {

class CellWriter;

/**
 * Tables of a database: one for each query. The connection is this source's own and stays open as
 * long as it works. An SQLite file is opened for reading only.
 */
class SqlReader : public SourceReader
{
    Q_OBJECT

public:
    SqlReader(const SourceSettings &settings, const SourceContext &context);
    ~SqlReader() override;

    void read() override;

private:
    [[nodiscard]] QString connectDatabase();
    [[nodiscard]] QString prepare(QSqlDatabase *database) const;
    void disconnectDatabase();
    [[nodiscard]] Reading runAll();
    [[nodiscard]] DataValue run(const NamedText &query, qint64 *bytes, QString *error) const;
    /** Why no further row may come; empty when one may. */
    [[nodiscard]] QString limitFault(const QString &query, qint64 elapsed, const CellWriter &writer,
                                     qint64 bytes) const;
    [[nodiscard]] int timeout() const;

    const QString m_connection; ///< The name that QtSql knows it by.
};

} // namespace sources
