#include "programmereader.h"

#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "programmekeys.h"
#include "programmeschema.h"
#include "programmetexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>

namespace {

QString mendRemedy()
{
    return ProgrammeFileTexts::tr("mend the value named, or restore the file from a copy");
}

/** Members that are not ours stay with the node and are written back. */
void keepUnknown(LNode *node, const char *property, const QJsonObject &rest)
{
    if (!rest.isEmpty()) {
        node->setProperty(property, rest);
    }
}

} // namespace

bool ProgrammeReader::fail(const JsonPath &path, const QString &reason, const QString &remedy)
{
    m_error.value = path.text();
    m_error.at = placeOfValue(m_bytes, path);
    m_error.reason = reason;
    m_error.remedy = remedy;
    return false;
}

ReadProgramme ProgrammeReader::read()
{
    ReadProgramme result;
    QJsonParseError parseError{};
    const QJsonDocument json = QJsonDocument::fromJson(m_bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        result.error.at = placeOfOffset(m_bytes, parseError.offset);
        result.error.reason = ProgrammeFileTexts::tr("the file is not well-formed JSON: %1")
                                  .arg(parseError.errorString());
        result.error.remedy =
            ProgrammeFileTexts::tr("mend the place named, or restore the file from a copy");
        return result;
    }
    if (!json.isObject()) {
        fail({}, ProgrammeFileTexts::tr("a programme is a JSON object"), mendRemedy());
    } else if (readHead(json.object())) {
        auto controller = std::make_unique<LControllerNode>();
        if (readController(json.object(), controller.get())) {
            result.controller = std::move(controller);
        }
    }
    result.error = m_error;
    return result;
}

bool ProgrammeReader::readHead(const QJsonObject &programme)
{
    const QJsonValue format = programme.value(ProgrammeKeys::Format);
    if (format.toString() != ProgrammeKeys::FormatName) {
        return fail(
            format.isUndefined() ? JsonPath() : JsonPath().key(ProgrammeKeys::Format),
            ProgrammeFileTexts::tr("this is no programme file"),
            ProgrammeFileTexts::tr("its \"format\" must be \"%1\"").arg(ProgrammeKeys::FormatName));
    }
    const JsonPath path = JsonPath().key(ProgrammeKeys::Version);
    const QJsonValue version = programme.value(ProgrammeKeys::Version);
    const QString fault = ProgrammeSchema::fault(ProgrammeSchema::Number, version);
    if (!fault.isEmpty() || version.toInt() < 1) {
        return fail(path, ProgrammeFileTexts::tr("the file says no version"),
                    ProgrammeFileTexts::tr("write \"version\": %1").arg(ProgrammeFileVersion));
    }
    if (version.toDouble() > ProgrammeFileVersion) {
        return fail(
            path,
            ProgrammeFileTexts::tr("version %1 is newer than the %2 that this program reads")
                .arg(version.toDouble())
                .arg(ProgrammeFileVersion),
            ProgrammeFileTexts::tr("open the file with a newer release"));
    }
    return true;
}

bool ProgrammeReader::readController(const QJsonObject &programme, LControllerNode *controller)
{
    QJsonObject rest = programme;
    rest.remove(ProgrammeKeys::Format);
    rest.remove(ProgrammeKeys::Version);
    const JsonPath path;
    const JsonPath devicePath = path.key(ProgrammeKeys::Controller);
    QJsonObject device;
    if (!readName(&rest, path, controller, QString()) ||
        !takeObject(ProgrammeKeys::Controller, &rest, path, &device) ||
        !readMembers(ProgrammeSchema::controllerMembers(), &device, devicePath, controller) ||
        !readAttributes(&device, devicePath, controller)) {
        return false;
    }
    keepUnknown(controller, ProgrammeKeys::UnknownOfDevice, device);
    const bool isRead = readChildren(ProgrammeKeys::Screens, &rest, path,
                                     [&](const QJsonObject &object, const JsonPath &place) {
                                         return readScreen(object, place, controller);
                                     });
    keepUnknown(controller, ProgrammeKeys::Unknown, rest);
    return isRead;
}

bool ProgrammeReader::readScreen(const QJsonObject &object, const JsonPath &path, LNode *parent)
{
    auto *screen = new LScreenNode;
    parent->AppendChild(screen);
    QJsonObject rest = object;
    const QString fallback = ProgrammeFileTexts::tr("Screen %1").arg(parent->ChildNodes().size());
    const bool isRead = readName(&rest, path, screen, fallback) &&
                        readAttributes(&rest, path, screen) &&
                        readChildren(ProgrammeKeys::Frames, &rest, path,
                                     [&](const QJsonObject &frame, const JsonPath &place) {
                                         return readFrame(frame, place, screen);
                                     });
    keepUnknown(screen, ProgrammeKeys::Unknown, rest);
    return isRead;
}

bool ProgrammeReader::readFrame(const QJsonObject &object, const JsonPath &path, LNode *parent)
{
    auto *frame = new LFrameNode;
    parent->AppendChild(frame);
    QJsonObject rest = object;
    QJsonObject border;
    const QString fallback = ProgrammeFileTexts::tr("Frame %1").arg(parent->ChildNodes().size());
    const bool isRead = readName(&rest, path, frame, fallback) &&
                        readMembers(ProgrammeSchema::frameMembers(), &rest, path, frame) &&
                        takeObject(ProgrammeKeys::Border, &rest, path, &border) &&
                        readMembers(ProgrammeSchema::borderMembers(), &border,
                                    path.key(ProgrammeKeys::Border), frame) &&
                        readAttributes(&rest, path, frame) &&
                        readChildren(ProgrammeKeys::Items, &rest, path,
                                     [&](const QJsonObject &item, const JsonPath &place) {
                                         return readItem(item, place, frame);
                                     });
    keepUnknown(frame, ProgrammeKeys::UnknownOfBorder, border);
    keepUnknown(frame, ProgrammeKeys::Unknown, rest);
    return isRead;
}

bool ProgrammeReader::readItem(const QJsonObject &object, const JsonPath &path, LNode *parent)
{
    QJsonObject rest = object;
    const QJsonValue type = rest.take(ProgrammeKeys::Type);
    if (!type.isUndefined() && type.toString() != ProgrammeKeys::TextType) {
        return fail(path.key(ProgrammeKeys::Type),
                    ProgrammeFileTexts::tr("there is no such kind of item"),
                    ProgrammeFileTexts::tr("write \"type\": \"%1\"").arg(ProgrammeKeys::TextType));
    }
    auto *item = new LTextEffectNode;
    parent->AppendChild(item);
    const QString fallback = ProgrammeFileTexts::tr("Text %1").arg(parent->ChildNodes().size());
    const bool isRead = readName(&rest, path, item, fallback) &&
                        readAttributes(&rest, path, item) && readDocument(&rest, path, item);
    keepUnknown(item, ProgrammeKeys::Unknown, rest);
    return isRead;
}

bool ProgrammeReader::readName(QJsonObject *rest, const JsonPath &path, LNode *node,
                               const QString &fallback)
{
    const QJsonValue name = rest->take(ProgrammeKeys::Name);
    if (name.isUndefined()) {
        node->SetName(fallback);
        return true;
    }
    const QString fault = ProgrammeSchema::fault(ProgrammeSchema::Text, name);
    if (!fault.isEmpty()) {
        return fail(path.key(ProgrammeKeys::Name), fault, mendRemedy());
    }
    node->SetName(name.toString());
    return true;
}

bool ProgrammeReader::readDocument(QJsonObject *rest, const JsonPath &path, LTextEffectNode *item)
{
    const QJsonValue document = rest->take(ProgrammeKeys::Document);
    if (document.isUndefined()) {
        return true;
    }
    QStringList lines;
    for (const QJsonValue line : document.isArray() ? document.toArray() : QJsonArray{document}) {
        if (!line.isString()) {
            return fail(path.key(ProgrammeKeys::Document),
                        ProgrammeFileTexts::tr("it must be HTML: a text or a list of lines"),
                        mendRemedy());
        }
        lines.append(line.toString());
    }
    if (!item->GetRawHtmlText().isEmpty()) {
        return fail(
            path.key(ProgrammeKeys::Document),
            ProgrammeFileTexts::tr("the item has a document twice, here and as its RawHtml"),
            ProgrammeFileTexts::tr("remove one of them"));
    }
    const QByteArray html = lines.join(QLatin1Char('\n')).toUtf8();
    item->SetRawHtmlText(QString::fromLatin1(html.toBase64()));
    if (!item->HasAttribute(ProgrammeKeys::DisplayHtml)) {
        item->SetHtmlText(QStringLiteral("")); // an item that has been written is not a new one
    }
    return true;
}

bool ProgrammeReader::readAttributes(QJsonObject *rest, const JsonPath &path, LNode *node)
{
    QJsonObject attributes;
    if (!takeObject(ProgrammeKeys::Attributes, rest, path, &attributes)) {
        return false;
    }
    for (auto it = attributes.constBegin(); it != attributes.constEnd(); ++it) {
        const QString fault = ProgrammeSchema::attributeFault(it.key(), it.value());
        if (!fault.isEmpty()) {
            return fail(path.key(ProgrammeKeys::Attributes).key(it.key()), fault, mendRemedy());
        }
        node->SetAttribute(it.key(), it.value().toVariant());
    }
    return true;
}

template <typename Members>
bool ProgrammeReader::readMembers(const Members &members, QJsonObject *rest, const JsonPath &path,
                                  LNode *node)
{
    for (const ProgrammeSchema::Member &member : members) {
        const QJsonValue value = rest->take(member.key);
        if (value.isUndefined()) {
            continue;
        }
        const QString fault = ProgrammeSchema::fault(member.kind, value);
        if (!fault.isEmpty()) {
            return fail(path.key(member.key), fault, mendRemedy());
        }
        node->SetAttribute(member.attribute, value.toVariant());
    }
    return true;
}

template <typename Read>
bool ProgrammeReader::readChildren(const QString &key, QJsonObject *rest, const JsonPath &path,
                                   Read read)
{
    const QJsonValue value = rest->take(key);
    if (!value.isUndefined() && !value.isArray()) {
        return fail(path.key(key), ProgrammeFileTexts::tr("it must be a list"), mendRemedy());
    }
    const QJsonArray children = value.toArray();
    for (int i = 0; i < children.size(); ++i) {
        const JsonPath place = path.key(key).index(i);
        if (!children.at(i).isObject()) {
            return fail(place, ProgrammeFileTexts::tr("it must be an object"), mendRemedy());
        }
        if (!read(children.at(i).toObject(), place)) {
            return false;
        }
    }
    return true;
}

bool ProgrammeReader::takeObject(const QString &key, QJsonObject *rest, const JsonPath &path,
                                 QJsonObject *object)
{
    const QJsonValue value = rest->take(key);
    if (!value.isUndefined() && !value.isObject()) {
        return fail(path.key(key), ProgrammeFileTexts::tr("it must be an object"), mendRemedy());
    }
    *object = value.toObject();
    return true;
}
