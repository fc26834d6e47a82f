#pragma once

#include "fieldformat.h"

#include <QHash>
#include <QImage>
#include <QMap>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QVector>

class QTextDocument;

namespace lctrlsex {

/**
 * A field's text on a transparent ground: one line, at most 1000 characters, the letters as many
 * pixels high as @p style has points. An @p isDimmed text shows that a value is missing.
 */
[[nodiscard]] QImage drawField(const QString &text, const FieldStyle &style, bool isDimmed,
                               bool antialias = true);

/** Keeps the images of one document's fields up to date. */
class FieldImages
{
public:
    /**
     * Draws the fields of @p document whose value or look differs from what was drawn last, or
     * whose image was lost, and has just these laid out again. @p values are texts by qualified
     * key or, for a key that is not there, by field name. A field without a value, or with an
     * empty one, shows its own name dimmed. Of fields with one key and several looks the last in
     * the document wins, since they share an image. A field that was taken
     * out is kept up to date too, because undo brings it back. Returns whether anything changed.
     * Makes no undo step and announces no change of text; null changes nothing.
     */
    bool refresh(QTextDocument *document, const QMap<QString, QString> &values);

private:
    struct Drawn
    {
        QString text;
        QString style;
        bool isDimmed = false;
        bool antialias = true;
        qint64 imageKey = 0;
    };
    struct Found
    {
        int position = 0;
        int length = 0; ///< 0 of one that was taken out.
        QString name;
        QString style;
    };

    static QVector<Found> fieldsOf(const QTextDocument &document);
    [[nodiscard]] QVector<Found> removed(const QTextDocument &document) const;
    static bool holds(const QTextDocument &document, const QString &name, const Drawn &drawn);
    static QHash<QString, Drawn> wanted(const QVector<Found> &fields,
                                        const QMap<QString, QString> &values, bool antialias);
    static void markDirty(QTextDocument *document, const QVector<Found> &fields,
                          const QSet<QString> &changed);
    [[nodiscard]] bool hasSameFields(const QTextDocument *document, bool antialias) const;
    [[nodiscard]] QVector<Found> fieldsShowing(const QSet<QString> &keys);
    bool isCurrent(const QTextDocument &document, const QString &name, const Drawn &field) const;
    QSet<QString> draw(QTextDocument *document, QHash<QString, Drawn> *fields) const;

    QHash<QString, Drawn> m_drawn;
    // Of the refresh before.
    QPointer<QTextDocument> m_document;
    int m_revision = -1;
    bool m_antialias = true;
    QMap<QString, QString> m_values;
    QVector<Found> m_fields;
    QMultiHash<QString, int> m_places; ///< Indices of fields by each key that they may show.
};

} // namespace lctrlsex
