#include "report.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <unistd.h>

namespace {

void print(FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}

/** Keeps a message on its line whatever a broken programme puts into it. */
QString oneLine(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator) {
            c = QLatin1Char(' ');
        }
    }
    return text;
}

/** A sentence as part of a line: without its capital and its full stop. */
QString asClause(QString text)
{
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    const bool isWord = text.size() > 1 && text.at(0).isUpper() && text.at(1).isLower();
    return isWord ? text.at(0).toLower() + text.mid(1) : text;
}

} // namespace

Report::Report(const QString &file, bool asJson, bool isQuiet, FILE *messages)
    : m_file(file == QLatin1String("-") ? QStringLiteral("standard input") : file)
    , m_asJson(asJson)
    , m_isQuiet(isQuiet)
    , m_messages(messages)
    , m_onTerminal(isatty(fileno(messages)) == 1)
{}

void Report::problem(const player::Problem &problem)
{
    const bool isError = problem.severity == player::Problem::Error;
    ++m_count;
    m_errors += isError ? 1 : 0;
    if (m_asJson) {
        m_problems.append(
            QJsonObject{{QStringLiteral("severity"),
                         isError ? QStringLiteral("error") : QStringLiteral("warning")},
                        {QStringLiteral("place"), problem.place},
                        {QStringLiteral("reason"), problem.reason},
                        {QStringLiteral("remedy"), problem.remedy}});
    }
    if (m_isQuiet && !isError) {
        return;
    }
    clearProgress();
    QStringList parts{m_file};
    if (!problem.place.isEmpty()) {
        parts.append(problem.place);
    }
    QString text = asClause(problem.reason);
    if (!problem.remedy.isEmpty()) {
        text += QStringLiteral("; ") + asClause(problem.remedy);
    }
    parts.append(isError ? text : QStringLiteral("warning: ") + text);
    print(m_messages, oneLine(parts.join(QStringLiteral(": "))) + QLatin1Char('\n'));
}

void Report::problems(const player::Problems &problems)
{
    for (const player::Problem &one : problems) {
        problem(one);
    }
}

void Report::page(const WrittenPage &page)
{
    if (m_asJson) {
        m_pages.append(QJsonObject{{QStringLiteral("place"), page.place},
                                   {QStringLiteral("page"), page.page},
                                   {QStringLiteral("file"), page.file},
                                   {QStringLiteral("width"), page.size.width()},
                                   {QStringLiteral("height"), page.size.height()}});
    } else if (!m_isQuiet) {
        clearProgress();
        print(stdout, page.file + QLatin1Char('\n'));
    }
}

void Report::progress(const QString &text)
{
    if (m_onTerminal && !m_isQuiet) {
        clearProgress();
        print(m_messages, oneLine(text));
        m_progressShown = true;
    }
}

void Report::clearProgress()
{
    if (m_progressShown) {
        print(m_messages, QStringLiteral("\r\033[K"));
        m_progressShown = false;
    }
}

void Report::finish(const QString &summary)
{
    clearProgress();
    if (m_asJson) {
        const QJsonObject report{{QStringLiteral("programme"), m_file},
                                 {QStringLiteral("pages"), m_pages},
                                 {QStringLiteral("problems"), m_problems}};
        print(stdout, QString::fromUtf8(QJsonDocument(report).toJson()));
    } else if (!m_isQuiet && !summary.isEmpty()) {
        print(m_messages, summary + QLatin1Char('\n'));
    }
}
