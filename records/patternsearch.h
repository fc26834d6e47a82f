#pragma once

#include <QRegularExpression>
#include <QString>

#include <array>
#include <atomic>

namespace lctrlsex {

/**
 * How long the patterns of one refresh may take together; one is made for each refresh and handed
 * to every condition that is asked. Not for several threads at once.
 */
class PatternBudget
{
public:
    explicit PatternBudget(int microseconds = 50000)
        : m_left(qint64(microseconds) * 1000)
    {}

    [[nodiscard]] bool isSpent() const { return m_left <= 0; }
    void spend(qint64 nanoseconds) { m_left -= nanoseconds; }

private:
    qint64 m_left;
};

/**
 * A user's regular expression, compiled once, that takes bounded time whatever it says. It is
 * searched for, not compared with the whole value: "^" and "$" anchor it. Upper and lower case
 * differ, \\d and \\w mean ASCII. Settings such as (*UCP) at its start make it broken.
 *
 * About half a millisecond is what one value may take; what takes longer counts as not found, and
 * so does a pattern or a value of more than 1,000 characters. The first time that a pattern cannot
 * be searched for, a line is logged, and never again. Lone surrogates of a value match U+FFFD.
 *
 * Several threads may search at once.
 */
class PatternSearch
{
public:
    enum Result { Found, NotFound, Broken, PatternTooLong, ValueTooLong, TooSlow, BudgetSpent };
    static constexpr int MaxLength = 1000;

    explicit PatternSearch(const QString &pattern);

    [[nodiscard]] Result search(const QString &value, PatternBudget *budget = nullptr) const;

    /** Why no value can be searched, Broken or PatternTooLong; NotFound when one can. */
    [[nodiscard]] Result flaw() const { return refusal(QString(), nullptr); }

    /** What is wrong with a broken pattern, in English. */
    [[nodiscard]] QString errorText() const;
    /** Where it is wrong, counted from 1. */
    [[nodiscard]] int errorPosition() const;

private:
    [[nodiscard]] Result searchBounded(const QString &text) const;
    [[nodiscard]] Result searchEverywhere(const QString &text) const;
    [[nodiscard]] Result refusal(const QString &value, const PatternBudget *budget) const;
    void logOnce(Result result) const;

    QString m_pattern;
    /** The same pattern, with more and more work allowed. */
    std::array<QRegularExpression, 3> m_leashes;
    int m_prefixLength = 0;
    int m_shortLength = 0;
    mutable std::atomic<bool> m_isLogged{false};
};

} // namespace lctrlsex
