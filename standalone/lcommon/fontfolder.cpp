#include "fontfolder.h"

#include "lappconfig.h"
#include "lcommonlogging.h"
#include "systemreason.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QMap>
#include <QSaveFile>

#include <fontconfig/fontconfig.h>

#include <cerrno>
#include <cstdlib>
#include <memory>

namespace {

struct Face
{
    QString file;
    /** Distance of the face's weight from the regular one. */
    int weightError = 0;
    bool hasChinese = false;
    /** Made for Chinese, and with Latin letters: mixed text needs no second family. */
    bool isForChinese = false;
};
using Faces = QMap<QString, Face>;

template <typename Type, void (*destroy)(Type *)>
struct Destroy
{
    void operator()(Type *object) const { destroy(object); }
};
template <typename Type, void (*destroy)(Type *)>
using Owned = std::unique_ptr<Type, Destroy<Type, destroy>>;

QString text(const FcPattern *pattern, const char *object)
{
    FcChar8 *value = nullptr;
    return FcPatternGetString(pattern, object, 0, &value) == FcResultMatch
               ? QString::fromUtf8(reinterpret_cast<const char *>(value))
               : QString();
}

int number(const FcPattern *pattern, const char *object, int fallback)
{
    int value = fallback;
    return FcPatternGetInteger(pattern, object, 0, &value) == FcResultMatch ? value : fallback;
}

QString extensionOf(const QString &file)
{
    return QFileInfo(file).suffix().toLower();
}

/** Whether a link can carry the family's name: the editor reads it up to the first dot. */
bool canBeFileName(const QString &family)
{
    return !family.isEmpty() && family.size() < 100 && !family.contains(QLatin1Char('/')) &&
           !family.contains(QLatin1Char('.'));
}

bool isRegularTrueType(const FcPattern *pattern)
{
    const QString extension = extensionOf(text(pattern, FC_FILE));
    const int weight = number(pattern, FC_WEIGHT, FC_WEIGHT_REGULAR);
    return (extension == QLatin1String("ttf") || extension == QLatin1String("ttc")) &&
           number(pattern, FC_SLANT, FC_SLANT_ROMAN) == FC_SLANT_ROMAN &&
           number(pattern, FC_WIDTH, FC_WIDTH_NORMAL) == FC_WIDTH_NORMAL &&
           weight >= FC_WEIGHT_BOOK && weight <= FC_WEIGHT_MEDIUM;
}

Face faceOf(const FcPattern *pattern)
{
    Face face;
    face.file = text(pattern, FC_FILE);
    face.weightError = std::abs(number(pattern, FC_WEIGHT, FC_WEIGHT_REGULAR) - FC_WEIGHT_REGULAR);
    FcCharSet *characters = nullptr;
    if (FcPatternGetCharSet(pattern, FC_CHARSET, 0, &characters) == FcResultMatch) {
        face.hasChinese =
            FcCharSetHasChar(characters, 0x4e2d) && FcCharSetHasChar(characters, 0x6587);
    }
    FcLangSet *languages = nullptr;
    if (face.hasChinese && FcPatternGetLangSet(pattern, FC_LANG, 0, &languages) == FcResultMatch) {
        const auto *const chinese = reinterpret_cast<const FcChar8 *>("zh-cn");
        face.isForChinese = FcLangSetHasLang(languages, chinese) != FcLangDifferentLang &&
                            FcCharSetHasChar(characters, 'A');
    }
    return face;
}

Faces systemFaces()
{
    Faces faces;
    const Owned<FcPattern, FcPatternDestroy> everything(FcPatternCreate());
    const Owned<FcObjectSet, FcObjectSetDestroy> wanted(
        FcObjectSetBuild(FC_FAMILY, FC_FILE, FC_SLANT, FC_WEIGHT, FC_WIDTH, FC_CHARSET, FC_LANG,
                         static_cast<const char *>(nullptr)));
    const Owned<FcFontSet, FcFontSetDestroy> fonts(
        FcFontList(nullptr, everything.get(), wanted.get()));
    for (int i = 0; fonts && i < fonts->nfont; ++i) {
        const FcPattern *const pattern = fonts->fonts[i];
        const QString family = text(pattern, FC_FAMILY);
        if (!isRegularTrueType(pattern) || !canBeFileName(family)) {
            continue;
        }
        const Face face = faceOf(pattern);
        const auto known = faces.constFind(family);
        // The file decides between equals, so that every run links the same one.
        if (known == faces.constEnd() ||
            qMakePair(face.weightError, face.file) < qMakePair(known->weightError, known->file)) {
            faces.insert(family, face);
        }
    }
    return faces;
}

/** Drops the families that Qt does not list under exactly that name: the editor offers no other. */
void keepFamiliesOfQt(Faces &faces)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        return;
    }
    const QStringList families = QFontDatabase().families();
    for (auto it = faces.begin(); it != faces.end();) {
        it = families.contains(it.key()) ? std::next(it) : faces.erase(it);
    }
}

QFileInfoList fontFiles(const QString &folder)
{
    const QStringList patterns{QStringLiteral("*.ttf"), QStringLiteral("*.TTF"),
                               QStringLiteral("*.ttc")};
    // QDir::System lists links that lead nowhere.
    return QDir(folder).entryInfoList(patterns, QDir::Files | QDir::System, QDir::Name);
}

bool isBrokenLink(const QFileInfo &file)
{
    return file.isSymLink() && !file.exists();
}

/** Remembers that the folder was filled; its only line is the CJK family. */
QString stampFile(const QString &folder)
{
    return folder + QStringLiteral("/.filled");
}

bool readStamp(const QString &folder, FontFolder::Result &result)
{
    QFile stamp(stampFile(folder));
    if (!stamp.open(QIODevice::ReadOnly)) {
        return false;
    }
    result.cjkFamily = QString::fromUtf8(stamp.readLine(1000)).trimmed();
    const QFileInfoList files = fontFiles(folder);
    result.files = files.size();
    bool cjkStands = result.cjkFamily.isEmpty();
    for (const QFileInfo &file : files) {
        if (isBrokenLink(file)) {
            return false;
        }
        cjkStands = cjkStands || file.completeBaseName() == result.cjkFamily;
    }
    return cjkStands && !files.isEmpty();
}

QString translated(const char *message)
{
    return QCoreApplication::translate("FontFolder", message);
}

/** Removes links that lead nowhere and links the faces; what is there already stays. */
QString linkFaces(const Faces &faces, const QString &folder)
{
    QString error;
    for (const QFileInfo &file : fontFiles(folder)) {
        if (isBrokenLink(file)) {
            QFile::remove(file.filePath());
        }
    }
    for (auto it = faces.cbegin(); it != faces.cend(); ++it) {
        const QString link =
            folder + QLatin1Char('/') + it.key() + QLatin1Char('.') + extensionOf(it->file);
        if (QFileInfo::exists(link) || QFileInfo(link).isSymLink()) {
            continue;
        }
        QFile target(it->file);
        if (!target.link(link)) {
            error = translated(QT_TRANSLATE_NOOP("FontFolder", "Cannot make the link %1: %2"))
                        .arg(link, systemReason(target.errorString()));
        }
    }
    return error;
}

/** The family to read Chinese with: one made for it before one that merely has the characters. */
QString chooseCjkFamily(const Faces &faces, const QString &folder)
{
    QString chosen;
    for (auto it = faces.cbegin(); it != faces.cend(); ++it) {
        const QString link =
            folder + QLatin1Char('/') + it.key() + QLatin1Char('.') + extensionOf(it->file);
        if (!it->hasChinese || !QFileInfo::exists(link)) {
            continue;
        }
        if (it->isForChinese) {
            return it.key();
        }
        if (chosen.isEmpty()) {
            chosen = it.key();
        }
    }
    return chosen;
}

void writeStamp(const QString &folder, const QString &cjkFamily)
{
    QSaveFile stamp(stampFile(folder));
    const QByteArray line = cjkFamily.toUtf8() + '\n';
    if (!stamp.open(QIODevice::WriteOnly) || stamp.write(line) != line.size() || !stamp.commit()) {
        qCWarning(lcLcommon) << stamp.fileName() << stamp.errorString();
    }
}

} // namespace

QString FontFolder::path()
{
    return LAppConfig::AppDataDir() + QStringLiteral("/outputpath/Font");
}

FontFolder::Result FontFolder::fill(Mode mode, const QString &folder)
{
    const QString place = folder.isEmpty() ? path() : folder;
    Result result;
    if (mode == WhenNeeded && readStamp(place, result)) {
        result.skipped = true;
        return result;
    }
    result = Result();
    if (!QDir().mkpath(place)) {
        result.error = translated(QT_TRANSLATE_NOOP("FontFolder", "Cannot make the folder %1: %2"))
                           .arg(place, qt_error_string(errno));
        return result;
    }
    Faces faces = systemFaces();
    keepFamiliesOfQt(faces);
    result.error = linkFaces(faces, place);
    result.files = fontFiles(place).size();
    result.cjkFamily = chooseCjkFamily(faces, place);
    if (result.files == 0 && result.error.isEmpty()) {
        result.error =
            translated(QT_TRANSLATE_NOOP(
                           "FontFolder",
                           "The system has no regular TrueType font; install one or put font files "
                           "into %1"))
                .arg(place);
    }
    if (result.error.isEmpty()) {
        writeStamp(place, result.cjkFamily);
    }
    return result;
}
