#include "ltranslation.h"

#include "lappconfig.h"
#include "lcommonlogging.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QTranslator>

#include <memory>
#include <vector>

using Translators = std::vector<std::unique_ptr<QTranslator>>;

static const QString s_sourceLanguage = QStringLiteral("en");

class LTranslationPrivate
{
public:
    QString folder;
    QString language = s_sourceLanguage;
    Translators translators;
};

LTranslation::LTranslation()
    : d(new LTranslationPrivate)
{}

LTranslation::~LTranslation() = default;

LTranslation *LTranslation::instance()
{
    // Never destroyed: a plug-in may ask for it as late as in its own static destructors.
    static auto *const translation = new LTranslation;
    return translation;
}

QString LTranslation::Folder() const
{
    return d->folder.isEmpty() ? LAppConfig::AppDir() + QStringLiteral("/translations") : d->folder;
}

void LTranslation::SetFolder(const QString &folder)
{
    d->folder = folder;
}

static QStringList catalogues(const QString &folder)
{
    return QDir(folder).entryList({QStringLiteral("*_*.qm")}, QDir::Files | QDir::Readable,
                                  QDir::Name);
}

/** The language in a catalogue's file name, empty when there is none. */
static QString languageOf(const QString &file)
{
    static const QRegularExpression pattern(
        QStringLiteral("_([a-z]{2,3}(?:_[A-Z][a-z]{3})?(?:_[A-Z]{2})?)\\.qm$"));
    return pattern.match(file).captured(1);
}

QStringList LTranslation::AvailableLanguages() const
{
    QStringList languages{s_sourceLanguage};
    for (const QString &file : catalogues(Folder())) {
        const QString language = languageOf(file);
        if (!language.isEmpty() && !languages.contains(language)) {
            languages.append(language);
        }
    }
    languages.sort();
    return languages;
}

QString LTranslation::Language() const
{
    return d->language;
}

/** Ours, and before them those of the toolkit, so that its own dialogs speak the language. */
static Translators loadCatalogues(const QString &folder, const QString &language)
{
    Translators loaded;
    auto toolkit = std::make_unique<QTranslator>();
    const bool hasToolkit = language != s_sourceLanguage &&
                            toolkit->load(QStringLiteral("qtbase_") + language,
                                          QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    for (const QString &file : catalogues(folder)) {
        if (languageOf(file) != language) {
            continue;
        }
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(file, folder)) {
            loaded.push_back(std::move(translator));
        } else {
            qCWarning(lcLcommon) << folder + QLatin1Char('/') + file << "is not a catalogue";
        }
    }
    if (hasToolkit && !loaded.empty()) {
        loaded.insert(loaded.begin(), std::move(toolkit));
    }
    return loaded;
}

bool LTranslation::SetLanguage(const QString &language)
{
    if (!QCoreApplication::instance()) {
        return false;
    }
    // Catalogues of the source language may exist, for its plural forms, but need not.
    Translators loaded = loadCatalogues(Folder(), language);
    if (loaded.empty() && language != s_sourceLanguage) {
        return false;
    }
    for (const auto &translator : d->translators) {
        QCoreApplication::removeTranslator(translator.get());
    }
    d->translators = std::move(loaded);
    for (const auto &translator : d->translators) {
        QCoreApplication::installTranslator(translator.get());
    }
    d->language = language;
    emit LanguageChanged();
    return true;
}
