#pragma once

#include "datasnapshot.h"
#include "table/bindkey.h"

#include <QStringList>
#include <QVector>

#include <vector>

namespace player {

/** How values that are no lines by themselves make up lines. */
struct LineShape
{
    QString separator = QStringLiteral("\n"); ///< Between the values of a text.
    int perLine = 1;                          ///< Values on a line; 0: all of them.
};

/**
 * The lines of values that a bind key stands for, at random access; nothing is copied out of the
 * data. Const members may be called from several threads.
 */
class DataLines
{
public:
    /** No lines. */
    DataLines() = default;
    /**
     * The lines of @p bindKey, whose source is @p defaultSource when it names none. A key of no
     * bindable kind, and one that leads nowhere, has no lines.
     */
    DataLines(const sources::DataSnapshot &data, const QString &bindKey,
              const QString &defaultSource, const LineShape &shape);

    /** Whether the key is one and leads to something. */
    [[nodiscard]] bool isFound() const { return m_isFound; }
    [[nodiscard]] QString source() const { return m_source; }
    [[nodiscard]] int count() const { return m_count; }

    /** Values on line @p line, named or not; 0 out of range. */
    [[nodiscard]] int valueCount(int line) const;
    /** Values on the longest line. */
    [[nodiscard]] int longestLine() const;
    /** A value by its position on the line. Null when missing, or a list or a record. */
    [[nodiscard]] QString valueAt(int line, int position) const;

    /** Index of a field that the key names, for value(); -1 for another name. */
    [[nodiscard]] int fieldIndex(const QString &name) const;
    /**
     * The same for any field of the lines, which the key need not name: the first line that is a
     * record decides whether there is such a one.
     */
    [[nodiscard]] int findField(const QString &name);
    /** The index of what valueAt() gives there; -1 where the key names no fields. */
    [[nodiscard]] int fieldAt(int position) const;
    /** A value by an index that was got here. Null as above. */
    [[nodiscard]] QString value(int line, int field) const;
    /** The same where a table holds it in UTF-8; else null. */
    [[nodiscard]] std::string_view utf8(int line, int field) const;

private:
    /** A path from a line to a value. */
    struct Field
    {
        QString path;
        int column = -1;   ///< Of the table that the lines stand on.
        int position = -1; ///< On a line, of a field that has no path.
    };
    struct Span
    {
        int first = 0;
        int count = 0; ///< 0 for an entry that is a line by itself.
    };

    [[nodiscard]] bool isNamed() const { return m_ownFields > 0 && m_fields.front().position < 0; }
    [[nodiscard]] bool isValue(int line, int field) const;
    void setValue(const sources::DataValue &value, int kind, const LineShape &shape);
    void setText(const QString &text, const LineShape &shape);
    void setEntries(int perLine);
    void setMixed(int perLine);
    [[nodiscard]] int valuesInAll() const;
    [[nodiscard]] Span spanOf(int line) const;
    [[nodiscard]] sources::DataValue entry(int line) const;
    [[nodiscard]] QString textOf(int index) const;

    QString m_source;
    bool m_isFound = false;
    int m_count = 0;
    std::vector<Field> m_fields;
    int m_ownFields = 0; ///< Of them, those that the key names.
    sources::DataValue m_value;
    bool m_isSingle = false;   ///< The value itself is the one line.
    QStringList m_texts;       ///< Of a text that was split; then there is no value.
    int m_perLine = 0;         ///< Above 0: values fill lines of so many.
    std::vector<Span> m_spans; ///< Where lines and values stand side by side.
};

} // namespace player
