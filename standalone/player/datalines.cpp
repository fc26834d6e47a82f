#include "datalines.h"

#include "datapath.h"

#include <algorithm>

namespace player {

using sources::DataValue;

namespace {

/** Kinds of bind keys, see lctrlsex::classifyBindKey(). */
enum Kind { Values = 11, Text = 12, InnerValues = 13, Records = 21, Record = 22, Lists = 23 };

/** The path of a key without what its kind says at its end. */
QString pathOf(QString path, const lctrlsex::BindKey &key)
{
    if (path.endsWith(QLatin1Char('\n'))) {
        path.chop(1); // it does not count
    }
    switch (key.kind) {
    case Records:
    case Record: {
        const int around = key.kind == Records ? 5 : 3; // .{}[] or .{}
        path.chop(key.fields.join(QLatin1Char(',')).size() + around);
        break;
    }
    case Lists:
        path.chop(4);
        break;
    case Values:
    case InnerValues:
        path.chop(2);
        break;
    default:
        break;
    }
    return path;
}

bool isLine(const DataValue &entry)
{
    return entry.kind() == DataValue::Kind::List || entry.kind() == DataValue::Kind::Record;
}

} // namespace

DataLines::DataLines(const sources::DataSnapshot &data, const QString &bindKey,
                     const QString &defaultSource, const LineShape &shape)
{
    const SourceKey key = SourceKey::fromText(bindKey);
    const lctrlsex::BindKey kind = lctrlsex::classifyBindKey(bindKey);
    m_source = key.source.isEmpty() ? defaultSource : key.source;
    if (!lctrlsex::isBindable(kind.kind)) {
        return;
    }
    const DataValue value =
        player::valueAt(data.value(m_source).value, pathOf(key.path, kind), &m_isFound);
    const bool isNamed = kind.kind == Records || kind.kind == Record;
    for (const QString &field : kind.fields) {
        m_fields.push_back({field, -1, isNamed ? -1 : int(m_fields.size())});
    }
    m_ownFields = int(m_fields.size());
    setValue(value, kind.kind, shape);
    const sources::DataTable *const table = m_value.table();
    for (Field &field : m_fields) {
        field.column = table != nullptr ? table->columnOf(field.path) : -1;
    }
}

void DataLines::setValue(const DataValue &value, int kind, const LineShape &shape)
{
    if (kind == Text && value.kind() == DataValue::Kind::Text) {
        setText(value.text(), shape);
        return;
    }
    m_value = value;
    if (value.kind() == DataValue::Kind::Record) {
        m_isSingle = kind == Record || kind == Records || kind == Text;
        m_count = m_isSingle ? 1 : 0;
    } else if (value.kind() == DataValue::Kind::List && kind != Record) {
        const bool isByEntry = kind == Records || kind == Lists;
        m_count = value.size();
        if (!isByEntry) {
            setEntries(shape.perLine);
        }
    }
}

void DataLines::setText(const QString &text, const LineShape &shape)
{
    m_texts = text.isEmpty() || shape.separator.isEmpty() ? QStringList(text)
                                                          : text.split(shape.separator);
    if (shape.separator == QLatin1String("\n")) {
        for (QString &line : m_texts) {
            if (line.endsWith(QLatin1Char('\r'))) {
                line.chop(1);
            }
        }
        if (m_texts.constLast().isEmpty()) {
            m_texts.removeLast();
        }
    } else if (m_texts.constLast().endsWith(QLatin1Char('\n'))) {
        m_texts.last().chop(1);
    }
    if (text.isEmpty()) {
        m_texts.clear();
    }
    m_perLine = shape.perLine > 0 ? shape.perLine : qMax(1, m_texts.size());
    m_count = (m_texts.size() + m_perLine - 1) / m_perLine;
}

void DataLines::setEntries(int perLine)
{
    int lines = 0;
    if (m_value.table() != nullptr) {
        return; // rows are records
    }
    for (int i = 0; i < m_value.size(); ++i) {
        lines += isLine(m_value.at(i)) ? 1 : 0;
    }
    if (lines == m_value.size()) {
        return;
    }
    if (lines > 0) {
        setMixed(perLine);
        return;
    }
    m_perLine = perLine > 0 ? perLine : m_value.size();
    m_count = (m_value.size() + m_perLine - 1) / m_perLine;
}

void DataLines::setMixed(int perLine)
{
    for (int i = 0; i < m_value.size(); ++i) {
        const bool hasRoom = !m_spans.empty() && m_spans.back().count > 0 &&
                             (perLine <= 0 || m_spans.back().count < perLine);
        if (isLine(m_value.at(i))) {
            m_spans.push_back({i, 0});
        } else if (hasRoom) {
            ++m_spans.back().count;
        } else {
            m_spans.push_back({i, 1});
        }
    }
    m_count = int(m_spans.size());
}

int DataLines::valuesInAll() const
{
    return m_value.isMissing() ? m_texts.size() : m_value.size();
}

DataLines::Span DataLines::spanOf(int line) const
{
    if (!m_spans.empty()) {
        return m_spans[size_t(line)];
    }
    if (m_perLine > 0) {
        const int first = line * m_perLine;
        return {first, qMin(m_perLine, valuesInAll() - first)};
    }
    return {line, 0};
}

DataValue DataLines::entry(int line) const
{
    return m_isSingle ? m_value : m_value.at(spanOf(line).first);
}

QString DataLines::textOf(int index) const
{
    return m_value.isMissing() ? m_texts.value(index) : m_value.at(index).text();
}

int DataLines::valueCount(int line) const
{
    if (line < 0 || line >= m_count) {
        return 0;
    }
    const Span span = spanOf(line);
    if (span.count > 0 && !m_isSingle) {
        return span.count;
    }
    const DataValue value = entry(line);
    return isNamed() ? m_ownFields : value.kind() == DataValue::Kind::Text ? 1 : value.size();
}

int DataLines::longestLine() const
{
    if (m_count > 0 && (m_value.table() != nullptr || m_perLine > 0)) {
        return valueCount(0);
    }
    int longest = 0;
    for (int line = 0; line < m_count; ++line) {
        longest = qMax(longest, valueCount(line));
    }
    return longest;
}

QString DataLines::valueAt(int line, int position) const
{
    if (line < 0 || line >= m_count || position < 0) {
        return {};
    }
    if (isNamed()) {
        return position < m_ownFields ? value(line, position) : QString();
    }
    const Span span = spanOf(line);
    if (span.count > 0 && !m_isSingle) {
        return position < span.count ? textOf(span.first + position) : QString();
    }
    if (m_value.table() != nullptr) {
        const sources::DataTable &table = *m_value.table();
        return position < table.columns().size() ? table.text(span.first, position) : QString();
    }
    const DataValue value = entry(line);
    return value.kind() == DataValue::Kind::Text && position == 0 ? value.text()
                                                                  : value.at(position).text();
}

int DataLines::fieldIndex(const QString &name) const
{
    const auto begin = m_fields.begin();
    const auto end = begin + m_ownFields;
    const auto found =
        std::find_if(begin, end, [&name](const Field &field) { return field.path == name; });
    return found == end ? -1 : int(found - begin);
}

int DataLines::findField(const QString &name)
{
    const auto found = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&name](const Field &field) { return field.path == name; });
    if (found != m_fields.end()) {
        return int(found - m_fields.begin());
    }
    Field field{name, -1, -1};
    bool isThere = false;
    if (m_value.table() != nullptr) {
        field.column = m_value.table()->columnOf(name);
        isThere = field.column >= 0;
    } else {
        for (int line = 0; line < m_count && !isThere; ++line) {
            const DataValue value = m_texts.isEmpty() ? entry(line) : DataValue();
            if (value.kind() == DataValue::Kind::Record) {
                Q_UNUSED(player::valueAt(value, name, &isThere))
                break;
            }
        }
    }
    if (!isThere) {
        return -1;
    }
    m_fields.push_back(field);
    return int(m_fields.size()) - 1;
}

int DataLines::fieldAt(int position) const
{
    return isNamed() && position < m_ownFields ? position : -1;
}

bool DataLines::isValue(int line, int field) const
{
    return line >= 0 && line < m_count && field >= 0 && field < int(m_fields.size());
}

QString DataLines::value(int line, int index) const
{
    if (!isValue(line, index)) {
        return {};
    }
    const Field &field = m_fields[size_t(index)];
    if (field.column >= 0) {
        return m_value.table()->text(line, field.column);
    }
    if (field.position >= 0) {
        return valueAt(line, field.position);
    }
    return player::valueAt(entry(line), field.path).text();
}

std::string_view DataLines::utf8(int line, int index) const
{
    const int column = isValue(line, index) ? m_fields[size_t(index)].column : -1;
    return column >= 0 ? m_value.table()->utf8(line, column) : std::string_view();
}

} // namespace player
