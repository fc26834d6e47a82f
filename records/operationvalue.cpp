#include "operationvalue.h"

#include "operationnumber.h"

namespace lctrlsex {

QString OperationValue::text() const
{
    switch (m_kind) {
    case Kind::ShortNumber:
        return shortText(m_number);
    case Kind::FixedNumber:
        return fixedText(m_number, m_places);
    default:
        return m_text;
    }
}

std::optional<double> OperationValue::number() const
{
    if (m_kind == Kind::ShortNumber || m_kind == Kind::FixedNumber) {
        return m_number;
    }
    return numberOf(m_text);
}

QString OperationValue::at(int index) const
{
    return m_text.mid(beginOf(index), endOf(index) - beginOf(index));
}

int OperationValue::beginOf(int index) const
{
    return index == 0 ? 0 : m_ends.at(index - 1) + 1;
}

int OperationValue::endOf(int index) const
{
    return m_ends.at(index);
}

QStringList OperationValue::list() const
{
    QStringList result;
    result.reserve(count());
    for (int i = 0; i < count(); ++i) {
        result.append(at(i));
    }
    return result;
}

void OperationValue::clear()
{
    // Most are numbers: assigning nothing to nothing would be half of what clearing them costs.
    m_kind = Kind::None;
    if (!m_text.isNull()) {
        m_text = QString();
    }
    if (!m_ends.isEmpty()) {
        m_ends = QVector<int>();
    }
}

void OperationValue::setText(const QString &text)
{
    clear();
    m_kind = Kind::Text;
    m_text = text;
}

void OperationValue::setShortNumber(double number)
{
    const auto rounded = roundedNumber(number, 6);
    if (!rounded) {
        setText(shortText(number));
        return;
    }
    clear();
    m_kind = Kind::ShortNumber;
    m_number = *rounded;
}

void OperationValue::setFixedNumber(double number, int places)
{
    const auto rounded = roundedNumber(number, places);
    if (!rounded) {
        setText(fixedText(number, places));
        return;
    }
    clear();
    m_kind = Kind::FixedNumber;
    m_number = *rounded;
    m_places = static_cast<signed char>(places);
}

void OperationValue::setList(const QString &joined, const QVector<int> &ends)
{
    m_kind = Kind::List;
    m_text = joined;
    m_ends = ends;
}

} // namespace lctrlsex
