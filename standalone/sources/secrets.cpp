#include "secrets.h"

#include "sourcetexts.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QUrl>
#include <QUrlQuery>

namespace sources {

namespace {

const QRegularExpression &reference()
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(\$\{env:([A-Za-z_][A-Za-z0-9_]*)\})"));
    return pattern;
}

bool isSecretName(const QString &name)
{
    static const QRegularExpression pattern(
        QStringLiteral("pass(word|wd|phrase)|^pwd$|token|secret|api[-_]?key|access[-_]?key|"
                       "authorization|cookie|credential|^x-auth"),
        QRegularExpression::CaseInsensitiveOption);
    return pattern.match(name).hasMatch();
}

/** Whether nothing but a scheme such as "Bearer" stands there beside references. */
bool isReferenceOnly(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^(?:[A-Za-z]+ +)?(?:\$\{env:[A-Za-z_][A-Za-z0-9_]*\})+$)"));
    return text.isEmpty() || pattern.match(text.trimmed()).hasMatch();
}

/** Whether an address, or the words of a driver, holds a secret in clear. */
bool holdsSecret(const QString &text)
{
    static const QRegularExpression inAddress(
        QStringLiteral(R"(^[A-Za-z][A-Za-z0-9+.-]*://[^/?#@]*?:([^/?#]*)@)"));
    const QRegularExpressionMatch address = inAddress.match(text);
    if (address.hasMatch() && !isReferenceOnly(address.captured(1))) {
        return true;
    }
    static const QRegularExpression assignment(QStringLiteral(R"(([\w-]+)\s*=\s*([^;&\s#]*))"));
    auto it = assignment.globalMatch(text);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        if (isSecretName(match.captured(1)) && !isReferenceOnly(match.captured(2))) {
            return true;
        }
    }
    return false;
}

void look(const QString &name, const QJsonValue &value, const JsonPath &path, bool isProse,
          QVector<SettingsFault> *faults)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
            // The text of a query compares columns such as token = 5, which is no secret.
            look(it.key(), it.value(), path.key(it.key()),
                 isProse || it.key() == QLatin1String("query") ||
                     it.key() == QLatin1String("queries"),
                 faults);
        }
    } else if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            look(name, array.at(i), path.index(i), isProse, faults);
        }
    } else if (!isProse) {
        const QString text = value.isString() ? value.toString() : value.toVariant().toString();
        const bool isSecret = isSecretName(name) && !value.isBool();
        if (isSecret ? !isReferenceOnly(text) : holdsSecret(text)) {
            faults->append({path, SourceTexts::tr("a secret must not stand in the file; put it "
                                                  "into an environment variable and write "
                                                  "${env:NAME} here")});
        }
    }
}

} // namespace

bool hasReference(const QString &text)
{
    return reference().match(text).hasMatch();
}

QString resolveReferences(const QString &text, QString *error)
{
    QString resolved;
    int end = 0;
    auto it = reference().globalMatch(text);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        const QByteArray variable = match.captured(1).toLatin1();
        if (!qEnvironmentVariableIsSet(variable.constData())) {
            *error =
                SourceTexts::tr("the environment variable %1 is not set").arg(match.captured(1));
            return QString();
        }
        resolved += text.midRef(end, match.capturedStart() - end);
        resolved += qEnvironmentVariable(variable.constData());
        end = match.capturedEnd();
    }
    return resolved + text.midRef(end);
}

QString withoutSecrets(const QString &text)
{
    QUrl url(text);
    url.setUserInfo(QString());
    url.setQuery(QString());
    return url.toString();
}

QVector<SettingsFault> secretFaults(const QJsonObject &source, const JsonPath &path)
{
    QVector<SettingsFault> faults;
    look(QString(), source, path, false, &faults);
    return faults;
}

} // namespace sources
