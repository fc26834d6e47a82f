#include "celltable.h"
#include "reply.h"
#include "sourcetexts.h"
#include "textdecoding.h"

#include <csv.h>

namespace sources {

namespace {

/** What the parser fills; its callbacks are C functions. */
struct Filling
{
    explicit Filling(size_t bytes)
        : writer(bytes)
    {}

    CellWriter writer;
    QStringList header;
    bool hasHeader = false;
    bool isInRow = false;
    int cellsInRow = 0;
    int mostCells = 0;
    int cellsInLastRow = 0;
};

void onCell(void *text, size_t size, void *filling)
{
    auto *into = static_cast<Filling *>(filling);
    if (!into->hasHeader) {
        if (into->header.size() <= MostColumns) {
            into->header.append(QString::fromUtf8(static_cast<const char *>(text), int(size)));
        }
        return;
    }
    if (!into->isInRow) {
        into->writer.beginRow();
        into->isInRow = true;
    }
    if (++into->cellsInRow <= MostColumns) {
        into->writer.addCell(static_cast<const char *>(text), size);
    }
}

void onRow(int, void *filling)
{
    auto *into = static_cast<Filling *>(filling);
    into->mostCells = qMax(into->mostCells, into->cellsInRow);
    into->cellsInLastRow = into->hasHeader ? into->cellsInRow : into->header.size();
    into->hasHeader = true;
    into->isInRow = false;
    into->cellsInRow = 0;
}

/** Only blanks are dropped beside a value; a tab may be what separates values. */
int isBlank(uchar c)
{
    return c == ' ' ? 1 : 0;
}

/** The separator that the first line holds most of, outside quotes. */
char detectedDelimiter(const QByteArray &text)
{
    constexpr char candidates[] = {',', ';', '\t', '|'};
    int counts[sizeof candidates] = {};
    bool isQuoted = false;
    for (const char c : text) {
        isQuoted = isQuoted != (c == '"');
        if (!isQuoted && (c == '\n' || c == '\r')) {
            break;
        }
        for (size_t i = 0; i < sizeof candidates; ++i) {
            counts[i] += !isQuoted && c == candidates[i] ? 1 : 0;
        }
    }
    size_t best = 0;
    for (size_t i = 1; i < sizeof candidates; ++i) {
        best = counts[i] > counts[best] ? i : best;
    }
    return candidates[best];
}

/** What stopped the parser; empty when nothing did. */
QString parse(const QByteArray &text, char delimiter, const StopFlag &stop, Filling *filling)
{
    csv_parser parser;
    if (csv_init(&parser, 0) != 0) {
        return SourceTexts::tr("out of memory");
    }
    csv_set_delim(&parser, uchar(delimiter));
    csv_set_blk_size(&parser, 1 << 16); // a long value must not grow by a few bytes a time
    csv_set_space_func(&parser, isBlank);
    QString error;
    constexpr int piece = 1 << 20;
    for (int at = 0; at < text.size() && error.isEmpty(); at += piece) {
        const size_t size = size_t(qMin(piece, text.size() - at));
        if (csv_parse(&parser, text.constData() + at, size, onCell, onRow, filling) != size) {
            error = SourceTexts::tr("out of memory");
        } else if (stop) {
            error = SourceTexts::tr("stopped");
        } else if (qMax(filling->mostCells, filling->header.size()) > MostColumns) {
            error = SourceTexts::tr("there are more than %1 columns").arg(MostColumns);
        } else if (filling->writer.isFull()) {
            error = SourceTexts::tr("the table is too large");
        }
    }
    constexpr int insideField = 2;
    if (error.isEmpty() && parser.quoted != 0 && parser.pstate == insideField) {
        error = SourceTexts::tr("the text ends within quotes");
    } else if (error.isEmpty()) {
        csv_fini(&parser, onCell, onRow, filling);
    }
    csv_free(&parser);
    return error;
}

} // namespace

Reply parseCsv(const QByteArray &bytes, const SourceSettings &settings, const StopFlag &stop)
{
    Reply reply;
    const QByteArray text = toCleanUtf8(bytes, settings.encoding, &reply.error);
    if (!reply.error.isEmpty()) {
        return reply;
    }
    const char delimiter = settings.delimiter.isEmpty() ? detectedDelimiter(text)
                                                        : settings.delimiter.at(0).toLatin1();
    Filling filling(size_t(text.size()));
    reply.error = parse(text, delimiter, stop, &filling);
    const int columns = qMax(filling.header.size(), filling.mostCells);
    if (reply.error.isEmpty() && filling.header.isEmpty()) {
        reply.error = SourceTexts::tr("there is no header line");
    } else if (reply.error.isEmpty() && columns > MostColumns) {
        reply.error = SourceTexts::tr("there are more than %1 columns").arg(MostColumns);
    }
    if (!reply.error.isEmpty()) {
        return reply;
    }
    const int headerCells = filling.header.size();
    while (filling.header.size() < columns) {
        filling.header.append(QString());
    }
    reply.looksCut =
        filling.cellsInLastRow < headerCells && !text.endsWith('\n') && !text.endsWith('\r');
    auto table =
        std::make_shared<const CellTable>(uniqueColumns(filling.header), filling.writer.take());
    reply.value =
        DataValue::fromRecord({{QStringLiteral("rows"), DataValue::fromTable(std::move(table))}});
    return reply;
}

} // namespace sources
