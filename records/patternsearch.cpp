#include "patternsearch.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QVector>

#include <algorithm>
#include <ctime>

namespace lctrlsex {

namespace {

Q_LOGGING_CATEGORY(recordsLog, "lctrlsex.records")

/** Steps of the first, shortest leash, and by how much the next one is longer. */
constexpr int FirstLeash = 20;
constexpr int Lengthening = 20;
constexpr qint64 ValueNanoseconds = 500000;
/**
 * Up to these lengths one search over all starts is sure to be short on the first leash. Where a
 * pattern looks around, a single step may read the whole value many times.
 */
constexpr int ShortLength = 128;
constexpr int ShortLengthLookingAround = 32;

/** How long this thread has worked. It does not grow while others have the processor. */
qint64 workedNanoseconds()
{
#ifdef Q_OS_UNIX
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
#else
    return qint64(std::clock()) * (1000000000 / CLOCKS_PER_SEC);
#endif
}

QString withoutLoneSurrogates(const QString &text)
{
    const QVector<uint> characters = text.toUcs4();
    return QString::fromUcs4(characters.constData(), characters.size());
}

QString prefix(int steps, const QString &pattern)
{
    // The empty group keeps the pattern from lifting the limit by a setting of its own.
    const bool hasSetting = pattern.startsWith(QLatin1String("(*"));
    return QStringLiteral("(*LIMIT_MATCH=%1)").arg(steps) + QLatin1String(hasSetting ? "(?:)" : "");
}

} // namespace

PatternSearch::PatternSearch(const QString &pattern)
    : m_pattern(pattern)
{
    if (pattern.size() > MaxLength) {
        return;
    }
    m_shortLength = pattern.contains(QLatin1String("(?")) ? ShortLengthLookingAround : ShortLength;
    m_prefixLength = prefix(FirstLeash, pattern).size();
    int steps = FirstLeash;
    for (QRegularExpression &leash : m_leashes) {
        leash.setPattern(prefix(steps, pattern) + pattern);
        if (!leash.isValid()) {
            return;
        }
        leash.optimize();
        steps *= Lengthening;
    }
}

QString PatternSearch::errorText() const
{
    return m_leashes.front().errorString();
}

int PatternSearch::errorPosition() const
{
    return std::max(0, m_leashes.front().patternErrorOffset() - m_prefixLength) + 1;
}

PatternSearch::Result PatternSearch::search(const QString &value, PatternBudget *budget) const
{
    Result result = refusal(value, budget);
    if (result == NotFound) {
        QElapsedTimer timer;
        timer.start();
        result = searchBounded(value.isValidUtf16() ? value : withoutLoneSurrogates(value));
        if (budget != nullptr) {
            budget->spend(std::min(timer.nsecsElapsed(), 2 * ValueNanoseconds));
        }
    }
    if (result > NotFound) {
        logOnce(result);
    }
    return result;
}

PatternSearch::Result PatternSearch::refusal(const QString &value,
                                             const PatternBudget *budget) const
{
    if (m_pattern.size() > MaxLength) {
        return PatternTooLong;
    }
    if (!m_leashes.front().isValid()) {
        return Broken;
    }
    if (value.size() > MaxLength) {
        return ValueTooLong;
    }
    return budget != nullptr && budget->isSpent() ? BudgetSpent : NotFound;
}

PatternSearch::Result PatternSearch::searchBounded(const QString &text) const
{
    if (text.size() <= m_shortLength) {
        const QRegularExpressionMatch match =
            m_leashes.front().match(text, 0, QRegularExpression::NormalMatch,
                                    QRegularExpression::DontCheckSubjectStringMatchOption);
        if (match.isValid()) {
            return match.hasMatch() ? Found : NotFound;
        }
    }
    return searchEverywhere(text);
}

/**
 * Qt's limit holds for each start of a match anew, and a step may read the whole text: one search
 * over all starts of 1,000 characters was seen to take 220 ms. So every start is tried by itself,
 * with the clock between, and a longer leash is taken only where the shorter one promises to end
 * in time.
 */
PatternSearch::Result PatternSearch::searchEverywhere(const QString &text) const
{
    QElapsedTimer timer;
    timer.start();
    const qint64 workedBefore = workedNanoseconds();
    for (int start = 0; start <= text.size(); ++start) {
        if (start < text.size() && text.at(start).isLowSurrogate()) {
            continue;
        }
        for (size_t leash = 0;; ++leash) {
            const qint64 before = timer.nsecsElapsed();
            // The time worked decides, so that a busy machine changes no verdict; it is slow to
            // ask.
            if (before > ValueNanoseconds &&
                workedNanoseconds() - workedBefore > ValueNanoseconds) {
                return TooSlow;
            }
            const QRegularExpressionMatch match = m_leashes.at(leash).match(
                text, start, QRegularExpression::NormalMatch,
                QRegularExpression::AnchoredMatchOption |
                    QRegularExpression::DontCheckSubjectStringMatchOption);
            if (match.hasMatch()) {
                return Found;
            }
            if (match.isValid()) {
                break;
            }
            const qint64 took = timer.nsecsElapsed() - before;
            if (leash + 1 == m_leashes.size() || took * Lengthening > ValueNanoseconds) {
                return TooSlow;
            }
        }
    }
    return NotFound;
}

void PatternSearch::logOnce(Result result) const
{
    if (m_isLogged.exchange(true)) {
        return;
    }
    const QString shown = m_pattern.left(60);
    switch (result) {
    case Broken:
        qCWarning(recordsLog) << "Pattern" << shown << "is broken at character" << errorPosition()
                              << "and never matches:" << errorText();
        break;
    case PatternTooLong:
        qCWarning(recordsLog) << "Pattern" << shown << "is too long and never matches";
        break;
    case ValueTooLong:
        qCWarning(recordsLog) << "Pattern" << shown << "got a value too long to be searched";
        break;
    default:
        qCWarning(recordsLog) << "Pattern" << shown << "took too long; counted as not found";
    }
}

} // namespace lctrlsex
