#include "reply.h"

#include "celltable.h"
#include "sourcetexts.h"
#include "textdecoding.h"

namespace sources {

namespace {

Reply parseText(const QByteArray &bytes, const SourceSettings &settings)
{
    Reply reply;
    const QByteArray text = toCleanUtf8(bytes, settings.encoding, &reply.error);
    if (reply.error.isEmpty()) {
        const QString content = text.isEmpty() ? QStringLiteral("") : QString::fromUtf8(text);
        reply.value =
            DataValue::fromRecord({{QStringLiteral("text"), DataValue::fromText(content)}});
    }
    return reply;
}

void quote(const QString &text, QByteArray *json)
{
    static const char digits[] = "0123456789abcdef";
    json->append('"');
    const QByteArray utf8 = text.toUtf8();
    for (const char c : utf8) {
        if (c == '"' || c == '\\') {
            json->append('\\').append(c);
        } else if (uchar(c) < 0x20) {
            json->append("\\u00").append(digits[uchar(c) >> 4]).append(digits[uchar(c) & 15]);
        } else {
            json->append(c);
        }
    }
    json->append('"');
}

void write(const DataValue &value, QByteArray *json)
{
    switch (value.kind()) {
    case DataValue::Kind::Missing:
        json->append("null");
        return;
    case DataValue::Kind::Text:
        quote(value.text(), json);
        return;
    case DataValue::Kind::List:
    case DataValue::Kind::Record:
        break;
    }
    const bool isRecord = value.kind() == DataValue::Kind::Record;
    json->append(isRecord ? '{' : '[');
    for (int i = 0; i < value.size(); ++i) {
        if (i > 0) {
            json->append(',');
        }
        if (isRecord) {
            quote(value.memberName(i), json);
            json->append(':');
        }
        write(value.at(i), json);
    }
    json->append(isRecord ? '}' : ']');
}

} // namespace

Reply parseReply(const QByteArray &bytes, const QString &format, const SourceSettings &settings,
                 const StopFlag &stop)
{
    if (format == QLatin1String("json")) {
        return parseJson(bytes);
    }
    return format == QLatin1String("text") ? parseText(bytes, settings)
                                           : parseCsv(bytes, settings, stop);
}

QByteArray toJson(const DataValue &value)
{
    QByteArray json;
    write(value, &json);
    return json;
}

qint64 rowsOf(const DataValue &record)
{
    qint64 rows = 0;
    for (int i = 0; i < record.size(); ++i) {
        const DataValue member = record.at(i);
        rows += member.kind() == DataValue::Kind::List ? member.size() : 0;
    }
    return rows;
}

bool isSameRecord(const DataValue &left, const DataValue &right)
{
    if (left.size() != right.size() || left.kind() != right.kind()) {
        return false;
    }
    for (int i = 0; i < left.size(); ++i) {
        const auto *leftCells = dynamic_cast<const CellTable *>(left.at(i).table());
        const auto *rightCells = dynamic_cast<const CellTable *>(right.at(i).table());
        const bool isSame = leftCells != nullptr && rightCells != nullptr
                                ? leftCells->isSameAs(*rightCells)
                                : left.at(i) == right.at(i);
        if (!isSame || left.memberName(i) != right.memberName(i)) {
            return false;
        }
    }
    return true;
}

} // namespace sources
