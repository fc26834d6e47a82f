#include "programmefile.h"

#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "programmekeys.h"
#include "programmereader.h"
#include "programmeschema.h"
#include "programmetexts.h"
#include "replacefile.h"
#include "systemreason.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>

namespace {

constexpr qint64 LargestFile = 256LL * 1024 * 1024;

QJsonObject unknownOf(const LNode &node, const char *property)
{
    return node.property(property).toJsonObject();
}

/** Puts the attributes with a name of their own into @p object and their keys into @p written. */
void writeMembers(const LNode &node, const QVector<ProgrammeSchema::Member> &members,
                  QJsonObject *object, QStringList *written)
{
    for (const ProgrammeSchema::Member &member : members) {
        written->append(member.attribute);
        if (node.HasAttribute(member.attribute)) {
            object->insert(member.key, QJsonValue::fromVariant(node.Attribute(member.attribute)));
        }
    }
}

void writeAttributes(const LNode &node, QStringList written, QJsonObject *object)
{
    written.append(ProgrammeKeys::NodeName);
    QJsonObject attributes;
    const QStringList keys = node.AttributeKeys();
    for (const QString &key : keys) {
        const QVariant value = node.Attribute(key);
        if (!written.contains(key) && !ProgrammeSchema::isBlank(key, value)) {
            attributes.insert(key, QJsonValue::fromVariant(value));
        }
    }
    if (!attributes.isEmpty()) {
        object->insert(ProgrammeKeys::Attributes, attributes);
    }
}

/** The stored document as readable text, null when that would not give the same bytes again. */
QJsonValue readableDocument(const QString &stored)
{
    const QString html = QString::fromUtf8(QByteArray::fromBase64(stored.toLatin1()));
    if (stored.isEmpty() || QString::fromLatin1(html.toUtf8().toBase64()) != stored) {
        return {};
    }
    const QStringList lines = html.split(QLatin1Char('\n'));
    return lines.size() == 1 ? QJsonValue(html) : QJsonValue(QJsonArray::fromStringList(lines));
}

QJsonObject writeItem(const LTextEffectNode &item)
{
    QJsonObject object = unknownOf(item, ProgrammeKeys::Unknown);
    object.insert(ProgrammeKeys::Name, item.name());
    object.insert(ProgrammeKeys::Type, ProgrammeKeys::TextType);
    QStringList written;
    const QJsonValue document = readableDocument(item.GetRawHtmlText());
    // Reading a document makes the display text too, which a new item must not have.
    if (!document.isNull() && item.HasAttribute(ProgrammeKeys::DisplayHtml)) {
        object.insert(ProgrammeKeys::Document, document);
        written.append(ProgrammeKeys::RawHtml);
        if (item.GetHtmlText().isEmpty()) {
            written.append(ProgrammeKeys::DisplayHtml);
        }
    }
    writeAttributes(item, written, &object);
    return object;
}

QJsonObject writeFrame(const LFrameNode &frame)
{
    QJsonObject object = unknownOf(frame, ProgrammeKeys::Unknown);
    object.insert(ProgrammeKeys::Name, frame.name());
    QStringList written;
    QJsonObject border = unknownOf(frame, ProgrammeKeys::UnknownOfBorder);
    writeMembers(frame, ProgrammeSchema::frameMembers(), &object, &written);
    writeMembers(frame, ProgrammeSchema::borderMembers(), &border, &written);
    if (!border.isEmpty()) {
        object.insert(ProgrammeKeys::Border, border);
    }
    writeAttributes(frame, written, &object);
    QJsonArray items;
    for (const LNode *child : frame.ChildNodes()) {
        if (const auto *item = qobject_cast<const LTextEffectNode *>(child)) {
            items.append(writeItem(*item));
        }
    }
    object.insert(ProgrammeKeys::Items, items);
    return object;
}

QJsonObject writeScreen(const LScreenNode &screen)
{
    QJsonObject object = unknownOf(screen, ProgrammeKeys::Unknown);
    object.insert(ProgrammeKeys::Name, screen.name());
    writeAttributes(screen, {}, &object);
    QJsonArray frames;
    for (const LNode *child : screen.ChildNodes()) {
        if (const auto *frame = qobject_cast<const LFrameNode *>(child)) {
            frames.append(writeFrame(*frame));
        }
    }
    object.insert(ProgrammeKeys::Frames, frames);
    return object;
}

/** Not readAll(): a device or a pipe may never end, and may give its bytes piece by piece. */
QByteArray readBounded(QFile *file)
{
    QByteArray bytes;
    while (bytes.size() <= LargestFile) {
        const QByteArray piece = file->read(LargestFile + 1 - bytes.size());
        if (piece.isEmpty()) {
            break;
        }
        bytes += piece;
    }
    return bytes;
}

ProgrammeError fileError(const QString &reason, const QString &remedy)
{
    ProgrammeError error;
    error.reason = reason;
    error.remedy = remedy;
    return error;
}

} // namespace

QString ProgrammeError::placeText() const
{
    QStringList parts;
    if (at.line > 0) {
        parts.append(ProgrammeFileTexts::tr("line %1, column %2").arg(at.line).arg(at.column));
    }
    if (!value.isEmpty()) {
        parts.append(value);
    }
    return parts.join(ProgrammeFileTexts::tr(", "));
}

ReadProgramme readProgramme(const QByteArray &bytes)
{
    const bool hasMark = bytes.startsWith("\xEF\xBB\xBF");
    return ProgrammeReader(hasMark ? bytes.mid(3) : bytes).read();
}

ReadProgramme loadProgramme(const QString &fileName)
{
    ReadProgramme result;
    QFile file(fileName);
    const bool isOpen = fileName == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                       : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        result.error =
            fileError(ProgrammeFileTexts::tr("the file cannot be read: %1")
                          .arg(systemReason(file.errorString())),
                      ProgrammeFileTexts::tr("check its name and whether you may read it"));
        return result;
    }
    const QByteArray bytes = readBounded(&file);
    if (file.error() != QFileDevice::NoError) {
        result.error = fileError(ProgrammeFileTexts::tr("the file cannot be read: %1")
                                     .arg(systemReason(file.errorString())),
                                 ProgrammeFileTexts::tr("name a *.programme.json file"));
        return result;
    }
    if (bytes.size() > LargestFile) {
        result.error = fileError(ProgrammeFileTexts::tr("the file is larger than 256 MiB"),
                                 ProgrammeFileTexts::tr("name a *.programme.json file"));
        return result;
    }
    return readProgramme(bytes);
}

QByteArray writeProgramme(const LControllerNode &controller)
{
    QJsonObject object = unknownOf(controller, ProgrammeKeys::Unknown);
    object.insert(ProgrammeKeys::Format, ProgrammeKeys::FormatName);
    object.insert(ProgrammeKeys::Version, ProgrammeFileVersion);
    if (!controller.name().isEmpty()) {
        object.insert(ProgrammeKeys::Name, controller.name());
    }
    QJsonObject device = unknownOf(controller, ProgrammeKeys::UnknownOfDevice);
    QStringList written;
    writeMembers(controller, ProgrammeSchema::controllerMembers(), &device, &written);
    writeAttributes(controller, written, &device);
    object.insert(ProgrammeKeys::Controller, device);
    QJsonArray screens;
    for (const LNode *child : controller.ChildNodes()) {
        if (const auto *screen = qobject_cast<const LScreenNode *>(child)) {
            screens.append(writeScreen(*screen));
        }
    }
    object.insert(ProgrammeKeys::Screens, screens);
    return QJsonDocument(object).toJson();
}

ProgrammeError saveProgramme(const LControllerNode &controller, const QString &fileName)
{
    const QString reason = replaceFile(fileName, writeProgramme(controller));
    return reason.isEmpty()
               ? ProgrammeError()
               : fileError(ProgrammeFileTexts::tr("the file cannot be written: %1").arg(reason),
                           ProgrammeFileTexts::tr(
                               "the old file is unchanged; make room, or save elsewhere"));
}
