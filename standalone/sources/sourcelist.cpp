#include "sourcelist.h"

#include "lcontrollernode.h"
#include "movedsources.h"
#include "programmekeys.h"
#include "replacefile.h"
#include "secrets.h"
#include "sourcetexts.h"
#include "systemreason.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

namespace sources {

namespace {

const QString Sources = QStringLiteral("sources");
constexpr qint64 LargestList = 16LL * 1024 * 1024;

ProgrammeError errorOf(const SettingsFault &fault, const QByteArray &bytes)
{
    ProgrammeError error;
    error.value = fault.path.text();
    error.reason = fault.reason;
    error.remedy = SourceTexts::tr("mend the value named");
    if (!bytes.isEmpty()) {
        error.at = placeOfValue(bytes, fault.path);
    }
    return error;
}

ProgrammeError fileError(const QString &fileName, const QString &reason)
{
    ProgrammeError error;
    error.value = Sources;
    error.reason = QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(fileName), reason);
    error.remedy = SourceTexts::tr("check the file that \"sources\" names");
    return error;
}

QVector<SettingsFault> nameFaults(const QString &name, const JsonPath &path, QSet<QString> *names)
{
    if (names->contains(name)) {
        return {{path.key(QStringLiteral("name")),
                 SourceTexts::tr("there is another source of that name")}};
    }
    names->insert(name);
    return {};
}

void readList(const QJsonValue &value, const JsonPath &path, const QByteArray &bytes,
              ReadSources *read)
{
    if (!value.isArray()) {
        read->list.isBroken = true;
        read->faults.append(
            errorOf({path, SourceTexts::tr("it must be a list, or the name of a file")}, bytes));
        return;
    }
    const QJsonArray array = value.toArray();
    QSet<QString> names;
    for (int i = 0; i < array.size(); ++i) {
        const JsonPath place = path.index(i);
        QVector<SettingsFault> faults;
        if (!array.at(i).isObject()) {
            faults.append({place, SourceTexts::tr("it must be an object")});
        }
        const SourceSettings settings = settingsFromJson(array.at(i).toObject(), place, &faults);
        if (faults.isEmpty()) {
            faults = settingsFaults(settings, place) + nameFaults(settings.name, place, &names);
        }
        for (const SettingsFault &fault : qAsConst(faults)) {
            read->faults.append(errorOf(fault, bytes));
        }
        if (faults.isEmpty()) {
            read->list.sources.append(settings);
        } else {
            read->list.faulty.append(array.at(i));
        }
    }
}

void readFile(const QString &folder, ReadSources *read)
{
    const QString fileName = fullFileName(folder, read->list.reference);
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        read->list.isBroken = file.exists();
        read->faults.append(fileError(fileName, systemReason(file.errorString())));
        return;
    }
    const QByteArray bytes = file.read(LargestList);
    QJsonParseError parseError{};
    const QJsonDocument json = QJsonDocument::fromJson(bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        ProgrammeError error = fileError(
            fileName, SourceTexts::tr("not well-formed JSON: %1").arg(parseError.errorString()));
        error.at = placeOfOffset(bytes, parseError.offset);
        read->list.isBroken = true;
        read->faults.append(error);
        return;
    }
    const QJsonValue list = json.isArray() ? QJsonValue(json.array()) : QJsonValue();
    readList(movedSources(list, QFileInfo(fileName).absolutePath(), folder), JsonPath(), bytes,
             read);
}

/** The list as it is stored; an error names the first fault. */
QJsonArray toArray(const SourceList &list, const JsonPath &root, ProgrammeError *error)
{
    QJsonArray array;
    QSet<QString> names;
    for (const SourceSettings &settings : list.sources) {
        const JsonPath path = root.index(array.size());
        const QVector<SettingsFault> faults =
            settingsFaults(settings, path) + nameFaults(settings.name, path, &names);
        if (!faults.isEmpty()) {
            *error = errorOf(faults.constFirst(), QByteArray());
            return array;
        }
        array.append(settingsToJson(settings));
    }
    for (const QJsonValue &entry : list.faulty) {
        const auto secrets = secretFaults(entry.toObject(), root.index(array.size()));
        if (!secrets.isEmpty()) {
            *error = errorOf(secrets.constFirst(), QByteArray());
            return array;
        }
        array.append(entry);
    }
    return array;
}

} // namespace

ReadSources readSources(const LControllerNode &programme, const QString &folder,
                        const QByteArray &bytes)
{
    ReadSources read;
    const QJsonValue value =
        programme.property(ProgrammeKeys::Unknown).toJsonObject().value(Sources);
    if (value.isString()) {
        read.list.reference = value.toString();
        readFile(folder, &read);
    } else if (!value.isUndefined()) {
        readList(value, JsonPath().key(Sources), bytes, &read);
    }
    return read;
}

ProgrammeError storeSources(LControllerNode *programme, const QString &folder,
                            const SourceList &list)
{
    const JsonPath root = JsonPath().key(Sources);
    if (list.isBroken) {
        return errorOf({root, SourceTexts::tr("what stands there could not be read; mend it first, "
                                              "so that it is not lost")},
                       QByteArray());
    }
    ProgrammeError error;
    const QJsonArray array = toArray(list, root, &error);
    if (error.isSet()) {
        return error;
    }
    QJsonValue value = array;
    if (!list.reference.isEmpty()) {
        const QString fileName = fullFileName(folder, list.reference);
        const QJsonValue stored = movedSources(array, folder, QFileInfo(fileName).absolutePath());
        const QString reason = replaceFile(fileName, QJsonDocument(stored.toArray()).toJson());
        if (!reason.isEmpty()) {
            return fileError(fileName, reason);
        }
        value = list.reference;
    }
    QJsonObject members = programme->property(ProgrammeKeys::Unknown).toJsonObject();
    if (array.isEmpty() && list.reference.isEmpty()) {
        members.remove(Sources);
    } else {
        members.insert(Sources, value);
    }
    programme->setProperty(ProgrammeKeys::Unknown, members);
    return ProgrammeError();
}

} // namespace sources
