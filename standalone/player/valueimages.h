#pragma once

#include <QHash>
#include <QImage>
#include <QVector>

class QTextDocument;

namespace player {

/** The images of field values that a piece of HTML names, until a document takes them. */
class ValueImages
{
public:
    explicit ValueImages(bool antialias)
        : m_antialias(antialias)
    {}

    /** The name under which HTML shows @p text in @p style, as FieldStyle writes it. */
    [[nodiscard]] QString nameOf(const QString &text, const QString &style);
    /** Gives @p document, which is loaded, the images and forgets their names; false for none. */
    bool moveTo(QTextDocument *document);

private:
    struct Wanted
    {
        QString text;
        QString style;
    };

    bool m_antialias;
    QVector<Wanted> m_wanted; ///< The index makes the name.
    QHash<QString, int> m_indexes;
};

} // namespace player
