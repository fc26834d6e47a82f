#pragma once

#include <QHash>
#include <QImage>
#include <QStringList>
#include <QTextDocument>

namespace lctrlsex {

/** How the text of an item is set beyond what its HTML says. */
struct TextSettings
{
    QString fontFamily;   ///< For text without a family of its own; empty: the application's.
    int fontSize = 16;    ///< In points, for text without a size of its own; 1 to 1000.
    int fontSpace = 0;    ///< The word-spacing control's number, see letterSpacing().
    bool singleLine = false;

    bool operator==(const TextSettings &other) const;
    bool operator!=(const TextSettings &other) const { return !(*this == other); }
};

/**
 * The absolute letter spacing in pixels that the word-spacing control's number @p value means:
 * the number itself from 0 to 99, an eighth of it below 0, 0 above 99.
 */
[[nodiscard]] qreal letterSpacing(int value);

/**
 * Makes @p document lay out one point, and one pixel of an image, as one pixel; outlives setHtml().
 * Every document that is shown or drawn goes through here, copies too, so that the author sees the
 * page that the screen shows.
 */
void prepareLayout(QTextDocument *document);

/**
 * prepareLayout(), and what else every document of an item has: links are never underlined, and
 * the font of @p settings is the default font. Outlives setHtml().
 */
void prepareItemDocument(QTextDocument *document, const TextSettings &settings);

/**
 * Gives all text of @p document the letter spacing of @p settings; HTML cannot carry it. Does
 * nothing in single-line mode, as the control does nothing there.
 */
void applyLetterSpacing(QTextDocument *document, const TextSettings &settings);

/**
 * A document that loads nothing from outside.
 *
 * Images come from the library's resources (":/..."), from the field images that were added under
 * "data://bindKey/...", and from raster data inside the document ("data:image/png;base64,...").
 * Anything else, above all files and the network, yields a transparent pixel and is remembered in
 * deniedResources(). Style sheets never load.
 */
class ItemDocument : public QTextDocument
{
    Q_OBJECT
public:
    explicit ItemDocument(QObject *parent = nullptr);

    /** An image that the document asked for and did not get. */
    struct DeniedResource
    {
        QString name;   ///< As the document names it, shortened for display.
        QString reason; ///< Fit for a user, with the remedy.
    };

    /** What was asked for and not loaded since the last load, in the order of asking. */
    [[nodiscard]] QVector<DeniedResource> deniedResources() const { return m_denied; }

    /**
     * Replaces the content by @p html, which has passed the guard. No undo step is kept.
     */
    void loadItem(const QString &html, const TextSettings &settings);

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    QImage resourceImage(const QString &name);
    QImage deny(const QString &name, const QString &reason);

    QVector<DeniedResource> m_denied;
    QHash<QString, QImage> m_images;
};

} // namespace lctrlsex
