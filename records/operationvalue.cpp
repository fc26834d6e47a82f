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
    const bool isNumber = m_kind == Kind::ShortNumber || m_kind == Kind::FixedNumber;
    return isNumber ? m_number : numberOf(m_text);
}

QString OperationValue::at(int index) const
{
    const int begin = index == 0 ? 0 : m_ends.at(index - 1) + 1;
    return m_text.mid(begin, m_ends.at(index) - begin);
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
    set(Kind::None, {});
}

void OperationValue::setText(const QString &text)
{
    set(Kind::Text, text);
}

void OperationValue::setShortNumber(double number)
{
    const auto rounded = roundedNumber(number, 6);
    if (!rounded) {
        setText(shortText(number));
        return;
    }
    set(Kind::ShortNumber, {});
    m_number = *rounded;
}

void OperationValue::setFixedNumber(double number, int places)
{
    const auto rounded = roundedNumber(number, places);
    if (!rounded) {
        setText(fixedText(number, places));
        return;
    }
    set(Kind::FixedNumber, {});
    m_number = *rounded;
    m_places = static_cast<signed char>(places);
}

void OperationValue::setList(const QString &joined, const QVector<int> &ends)
{
    set(Kind::List, joined, ends);
}

void OperationValue::set(Kind kind, const QString &text, const QVector<int> &ends)
{
    m_kind = kind;
    m_text = text;
    m_ends = ends;
}

} // namespace lctrlsex
