#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace lctrlsex {

/**
 * What a step of a calculation yields: nothing, a text or a list of texts.
 *
 * A number is a text that is written when somebody asks for it, because most steps only hand it on.
 */
class OperationValue
{
public:
    /** Whether there is a result; an empty text and an empty list are results. */
    [[nodiscard]] bool hasResult() const { return m_kind != Kind::None; }
    [[nodiscard]] bool isList() const { return m_kind == Kind::List; }

    /** The text; a list's elements joined with line feeds; empty without a result. */
    [[nodiscard]] QString text() const;
    /** The number that text() is, as QString::toDouble() reads it. */
    [[nodiscard]] std::optional<double> number() const;
    /** How many characters number() has to read. */
    [[nodiscard]] int charactersToRead() const { return m_text.size(); }

    /** How many elements a list has; 0 for what is no list. */
    [[nodiscard]] int count() const { return m_ends.size(); }
    /** The element of @p index, from 0 to count() - 1. */
    [[nodiscard]] QString at(int index) const;
    /** Where the element of @p index begins and ends in text(). */
    [[nodiscard]] int beginOf(int index) const;
    [[nodiscard]] int endOf(int index) const;
    /** The elements; empty for what is no list. */
    [[nodiscard]] QStringList list() const;

    void clear();
    void setText(const QString &text);
    /** The text of @p number with 6 places, without trailing zeros and point. */
    void setShortNumber(double number);
    /** The text of @p number with exactly @p places, from 0 to 6. */
    void setFixedNumber(double number, int places);
    /** A list given as its joined text and where each element ends in it. */
    void setList(const QString &joined, const QVector<int> &ends);

private:
    enum class Kind : signed char { None, Text, ShortNumber, FixedNumber, List };

    QString m_text;
    QVector<int> m_ends;
    double m_number = 0;
    Kind m_kind = Kind::None;
    signed char m_places = 0;
};

} // namespace lctrlsex
