#include "itemvalues.h"

#include "datapath.h"
#include "recordsjson.h"
#include "templatetext.h"

#include <utility>

namespace player {

using namespace lctrlsex;

ItemValues::ItemValues(sources::DataSnapshot data, const ValueSettings &settings)
    : m_data(std::move(data))
    , m_source(settings.source)
{
    calculationsFromJson(settings.calculations, &m_stored);
}

ValueRef ItemValues::position(int number) const
{
    const int field = m_lines.fieldAt(number);
    return field >= 0 ? ValueRef{ValueRef::Field, field} : ValueRef{ValueRef::Position, number};
}

ValueRef ItemValues::placeholder(const QString &name)
{
    bool isNumber = false;
    const int number = name.toInt(&isNumber);
    if (isNumber && number >= 0) {
        return position(number);
    }
    const int field = m_lines.fieldIndex(name);
    return field >= 0 ? ValueRef{ValueRef::Field, field} : calculation(name);
}

ValueRef ItemValues::field(const QString &key)
{
    const SourceKey parts = SourceKey::fromText(key);
    if (parts.source.isEmpty()) {
        const ValueRef found = calculation(key);
        if (found) {
            return found;
        }
    }
    const bool isOfLines = parts.source.isEmpty() || parts.source == m_lines.source();
    const int own = isOfLines ? m_lines.findField(parts.path) : -1;
    if (own >= 0) {
        return {ValueRef::Field, own};
    }
    const ValueRef single = constant(key, false);
    if (single) {
        return single;
    }
    const int dot = parts.path.lastIndexOf(QLatin1Char('.'));
    const int last = isOfLines && dot >= 0 ? m_lines.findField(parts.path.mid(dot + 1)) : -1;
    return last >= 0 ? ValueRef{ValueRef::Field, last} : constant(key, true);
}

/** A text of a source; one that is not there is only remembered as such when @p isRequired. */
ValueRef ItemValues::constant(const QString &key, bool isRequired)
{
    const auto known = m_constantIndexes.constFind(key);
    if (known != m_constantIndexes.constEnd()) {
        return {ValueRef::Constant, *known};
    }
    bool isFound = false;
    const sources::DataValue value = valueOfKey(m_data, key, m_source, &isFound);
    const QString source = SourceKey::fromText(key).source;
    if (isFound || isRequired) {
        m_used.insert(source.isEmpty() ? m_source : source);
    }
    if (!isFound) {
        if (isRequired) {
            m_unresolved.insert(key);
        }
        return {};
    }
    m_constantIndexes.insert(key, m_constants.size());
    m_constants.append(value.text());
    return {ValueRef::Constant, m_constants.size() - 1};
}

ValueRef ItemValues::calculation(const QString &name)
{
    for (int i = 0; i < m_chains.size(); ++i) {
        if (m_chains.at(i).name == name) {
            return {ValueRef::Calculation, i};
        }
    }
    for (const CalculationCondition &stored : qAsConst(m_stored)) {
        if (!name.isEmpty() && stored.key == name) {
            Chain chain;
            chain.name = name;
            compile(&chain, stored);
            m_chains.append(chain);
            return {ValueRef::Calculation, m_chains.size() - 1};
        }
    }
    return {};
}

/** What an argument may name: a field of the line, else a text of a source. */
ValueRef ItemValues::variable(const QString &name)
{
    const int own = m_lines.findField(name);
    if (own >= 0) {
        return {ValueRef::Field, own};
    }
    if (name.contains(QLatin1Char(':'))) {
        return field(name);
    }
    return constant(name, false);
}

/** The variables are those that arguments name: the others would be looked up for nothing. */
void ItemValues::compile(Chain *chain, const CalculationCondition &stored)
{
    QVector<QString> names;
    for (const CalculationStep &step : stored.expressions) {
        for (QString name : step.expression.args) {
            const bool isMarked = name.startsWith(QLatin1String("${"));
            if (isMarked) {
                name.remove(0, 2);
            }
            if (name.endsWith(QLatin1Char('}'))) {
                name.chop(1);
            }
            const bool isNumber = !isMarked && !name.isEmpty() && !name.at(0).isLetter();
            const ValueRef found =
                name.isEmpty() || isNumber || names.contains(name) ? ValueRef() : variable(name);
            if (found) {
                names.append(name);
                chain->variables.append(found);
                chain->isOverLines = chain->isOverLines || found.kind == ValueRef::Field;
            }
        }
    }
    chain->operations = OperationChain(stored, names);
}

QString ItemValues::evaluate(Chain *chain, int line)
{
    const int wanted = chain->isOverLines ? line : -1;
    if (chain->line == wanted) {
        return chain->result;
    }
    QVector<QString> values;
    values.reserve(chain->variables.size());
    for (const ValueRef &variable : qAsConst(chain->variables)) {
        values.append(value(variable, line));
    }
    chain->operations.evaluate(values, &m_results);
    chain->result = chain->operations.published(m_results);
    chain->line = wanted;
    const int last = chain->operations.stepCount() - 1;
    if (last >= 0 && !m_results[size_t(last)].value.hasResult() &&
        !m_failed.contains(chain->name)) {
        m_failed.insert(chain->name, chain->operations.reason(last, values, m_results));
    }
    return chain->result;
}

QString ItemValues::value(ValueRef ref, int line)
{
    switch (ref.kind) {
    case ValueRef::Position:
        return m_lines.valueAt(line, ref.index);
    case ValueRef::Field:
        return m_lines.value(line, ref.index);
    case ValueRef::Calculation:
        return evaluate(&m_chains[ref.index], line);
    case ValueRef::Constant:
        return m_constants.at(ref.index);
    case ValueRef::None:
        break;
    }
    return {};
}

void ItemValues::append(QString *html, ValueRef ref, int line)
{
    const std::string_view cell =
        ref.kind == ValueRef::Field ? m_lines.utf8(line, ref.index) : std::string_view();
    if (cell.data() != nullptr) {
        appendValue(html, cell);
    } else {
        appendValue(html, value(ref, line));
    }
}

} // namespace player
