#pragma once

#include "lcommon_global.h"

#include <QObject>
#include <QScopedPointer>
#include <QStringList>

class LTranslationPrivate;

/**
 * The language of the user interface, changed at run time. One for the process; GUI thread only.
 *
 * Catalogues are files named "<catalogue>_<language>.qm", such as "lctrlsex_zh_CN.qm", in one
 * folder; a language is made of all its catalogues. "en" is the language of the sources.
 */
class LCOMMON_EXPORT LTranslation : public QObject
{
    Q_OBJECT

public:
    /** The one service, made on first use; never null, lives as long as the process. */
    [[nodiscard]] static LTranslation *instance();
    ~LTranslation() override;

    /** Folder of the catalogues; "translations" in the application's folder at first. */
    [[nodiscard]] QString Folder() const;
    /** Looks for catalogues elsewhere from now on; the current language stays. */
    void SetFolder(const QString &folder);

    /** "en" and every language that the folder holds a catalogue of, sorted. */
    [[nodiscard]] QStringList AvailableLanguages() const;
    /** The current language; "en" at first. */
    [[nodiscard]] QString Language() const;
    /**
     * Installs a language's catalogues in place of the current ones and sends LanguageChanged.
     * False, and no change, when the folder holds none that can be read. Needs an application.
     */
    bool SetLanguage(const QString &language);

signals:
    /** Texts must be set anew; the catalogues are in place. */
    void LanguageChanged();

private:
    LTranslation();
    Q_DISABLE_COPY(LTranslation)
    const QScopedPointer<LTranslationPrivate> d;
};
