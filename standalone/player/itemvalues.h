#pragma once

#include "datalines.h"
#include "operationchain.h"

#include <QHash>
#include <QMap>
#include <QSet>

namespace player {

/** Where a placeholder, a field image or a rule takes its text from. */
struct ValueRef
{
    enum Kind {
        None,
        Position,    ///< On the line.
        Field,       ///< Of the line.
        Calculation, ///< Over the line's fields.
        Constant     ///< Of a source; the same on all lines.
    };
    Kind kind = None;
    int index = -1;

    [[nodiscard]] explicit operator bool() const { return kind != None; }
};

/** What an item stores of its values. */
struct ValueSettings
{
    QString calculations; ///< JSON of the records.
    QString source;       ///< The source that names without one belong to.
};

/**
 * All texts that an item can show: of the lines of its table, of the sources and of the item's
 * calculations over both. Names are looked up once, values often. Not for several threads at once.
 */
class ItemValues
{
public:
    ItemValues(sources::DataSnapshot data, const ValueSettings &settings);

    /** The lines that fields are looked up in first. To be called before anything is looked up. */
    void setLines(const DataLines &lines) { m_lines = lines; }
    [[nodiscard]] const DataLines &lines() const { return m_lines; }

    /** A value by its position on the line. */
    [[nodiscard]] ValueRef position(int number) const;
    /** A placeholder in text: a number is a position; else a field of the key or a calculation. */
    [[nodiscard]] ValueRef placeholder(const QString &name);
    /**
     * A field as images and rules name it: "source:field" or a calculation. A field of the lines
     * may stand for its last part; what no line has is looked up in the source.
     */
    [[nodiscard]] ValueRef field(const QString &key);

    /**
     * Its text; null when it is missing there. Without a line, @p line -1, there are no fields of
     * lines.
     */
    [[nodiscard]] QString value(ValueRef ref, int line);

    /** The same as an HTML text, see appendValue(), behind what @p html holds. */
    void append(QString *html, ValueRef ref, int line);

    /** Keys that lead nowhere in the data, of all that were looked up. */
    [[nodiscard]] const QSet<QString> &unresolvedKeys() const { return m_unresolved; }
    /** The calculations that had no result on some line that was asked for, with the reason. */
    [[nodiscard]] const QMap<QString, QString> &failedCalculations() const { return m_failed; }
    /** The sources that texts come from, those of the lines among them. */
    [[nodiscard]] const QSet<QString> &usedSources() const { return m_used; }

private:
    struct Chain
    {
        QString name;
        lctrlsex::OperationChain operations;
        QVector<ValueRef> variables;
        bool isOverLines = false;
        int line = -2; ///< What the result is of.
        QString result;
    };

    [[nodiscard]] ValueRef calculation(const QString &name);
    [[nodiscard]] ValueRef constant(const QString &key, bool isRequired);
    [[nodiscard]] ValueRef variable(const QString &name);
    void compile(Chain *chain, const CalculationCondition &stored);
    [[nodiscard]] QString evaluate(Chain *chain, int line);

    sources::DataSnapshot m_data;
    QString m_source;
    DataLines m_lines;
    QVector<CalculationCondition> m_stored;
    QVector<Chain> m_chains;
    QVector<QString> m_constants;
    QHash<QString, int> m_constantIndexes;
    QSet<QString> m_unresolved;
    QMap<QString, QString> m_failed;
    QSet<QString> m_used;
    lctrlsex::OperationResults m_results;
};

} // namespace player
