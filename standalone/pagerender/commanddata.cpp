#include "commanddata.h"

#include "commandline.h"
#include "datapath.h"
#include "reply.h"
#include "report.h"

#include <QFile>

using player::Problem;
using sources::DataValue;

namespace {

constexpr qint64 LargestFile = qint64(256) * 1024 * 1024;

/** The name and the text around the first "=" behind @p from; false without one. */
bool divide(const QString &text, int from, QString *name, QString *value)
{
    const int place = text.indexOf(QLatin1Char('='), from);
    *name = text.left(place);
    *value = text.mid(place + 1);
    return place > 0;
}

QString formatOf(const QString &file)
{
    const QString end = file.section(QLatin1Char('.'), -1).toLower();
    return end == QLatin1String("txt") ? QStringLiteral("text") : end;
}

/** Why the file cannot be taken as a source's data; empty when it was. */
QString readFile(const QString &name, DataValue *value)
{
    const QString format = formatOf(name);
    if (format != QLatin1String("csv") && format != QLatin1String("json") &&
        format != QLatin1String("text")) {
        return QStringLiteral("its name must end in .csv, .json or .txt");
    }
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    if (file.size() > LargestFile) {
        return QStringLiteral("it has more than %1 MB").arg(LargestFile / 1024 / 1024);
    }
    const sources::StopFlag stop{false};
    const sources::Reply reply = sources::parseReply(file.readAll(), format, {}, stop);
    *value = reply.value;
    return reply.error;
}

} // namespace

bool readData(const CommandLine &line, sources::DataSnapshot *data, Report *report)
{
    bool isGood = true;
    const auto problem = [report, &isGood](const QString &place, const QString &reason,
                                           const QString &remedy) {
        report->problem({Problem::Error, place, reason, remedy});
        isGood = false;
    };
    QString name;
    QString text;
    for (const QString &pair : line.dataFiles) {
        DataValue value;
        const bool isPair = divide(pair, 0, &name, &text);
        const QString reason = isPair ? readFile(text, &value) : QStringLiteral("no file is named");
        if (!reason.isEmpty()) {
            problem(QStringLiteral("--data %1").arg(pair), reason,
                    QStringLiteral("give a source and its file, such as shop=prices.csv"));
        }
        (*data)[name].value = value;
    }
    for (const QString &pair : line.settings) {
        const int colon = pair.indexOf(QLatin1Char(':'));
        if (colon <= 0 || !divide(pair, colon, &name, &text)) {
            problem(QStringLiteral("--set %1").arg(pair), QStringLiteral("no key is named"),
                    QStringLiteral("give a source, a key and a value, such as shop:title=Offers"));
            continue;
        }
        const player::SourceKey key = player::SourceKey::fromText(name);
        DataValue &value = (*data)[key.source].value;
        if (!player::setValueAt(&value, key.path, text)) {
            problem(QStringLiteral("--set %1").arg(pair),
                    QStringLiteral("the key leads into something that is no record"),
                    QStringLiteral("name the member of a record"));
        }
    }
    return isGood;
}
