#pragma once

#include "documentsetup.h"

#include <QHash>
#include <QImage>
#include <QStringList>
#include <QTextDocument>

namespace lctrlsex {

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
     * Replaces the content by @p html, which has passed the guard, ready to be laid out and drawn
     * as pages. Images that were added are dropped. No undo step is kept.
     */
    void loadItem(const QString &html, const TextSettings &settings);

    /** Empties the document and makes it ready for what a view then loads and edits. */
    void clearForView(const TextSettings &settings);

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    QImage resourceImage(const QString &name);
    QImage deny(const QString &name, const QString &reason);

    QVector<DeniedResource> m_denied;
    QHash<QString, QImage> m_images;
};

} // namespace lctrlsex
