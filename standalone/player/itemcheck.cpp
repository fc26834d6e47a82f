#include "itemcheck.h"

#include "fontcheck.h"
#include "itemrenderer.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QGlyphRun>
#include <QHash>
#include <QTextBlock>
#include <QTextLayout>

namespace player {

namespace {

constexpr int CharactersNamed = 8;
constexpr int MostOfAKind = 5;
constexpr int TextShown = 24;
constexpr int LeastContrast = 12;

/** Texts of this file, under one name for translators. */
struct ItemCheckTexts
{
    Q_DECLARE_TR_FUNCTIONS(ItemCheck)
};

/** Whether a screen shows no difference between two colours. */
bool isAlike(const QColor &a, const QColor &b)
{
    return qAbs(a.red() - b.red()) < LeastContrast && qAbs(a.green() - b.green()) < LeastContrast &&
           qAbs(a.blue() - b.blue()) < LeastContrast;
}

/** The words of a line, shortened, by which a user finds it. */
QString quoted(QString text)
{
    text = text.simplified();
    if (text.size() > TextShown) {
        text = text.left(TextShown) + QChar(0x2026);
    }
    return QLatin1Char('"') + text + QLatin1Char('"');
}

class Checker
{
public:
    explicit Checker(ItemRenderer *item)
        : m_item(item)
    {}

    Problems run()
    {
        checkCharacters();
        for (QTextBlock block = document().begin(); block.isValid(); block = block.next()) {
            checkLines(block);
            checkRuns(block);
        }
        for (const int found : qAsConst(m_found)) {
            m_untold += qMax(0, found - MostOfAKind);
        }
        if (m_untold > 0) {
            warn(ItemCheckTexts::tr("text"),
                 ItemCheckTexts::tr("there are %1 more of these").arg(m_untold),
                 ItemCheckTexts::tr("mend the ones above first"));
        }
        return m_problems;
    }

private:
    lctrlsex::ItemDocument &document() { return m_item->document(); }

    void warn(const QString &part, const QString &reason, const QString &remedy)
    {
        m_problems.append(
            {Problem::Warning, m_item->place() + QStringLiteral(": ") + part, reason, remedy});
    }

    /** A warning of which one document can have thousands; @p part is only made when told. */
    template <typename Part>
    void warnOfMany(const QString &reason, const QString &remedy, Part part)
    {
        if (++m_found[reason] <= MostOfAKind) {
            warn(part(), reason, remedy);
        }
    }

    void checkCharacters()
    {
        const QVector<uint> missing = missingCharacters(document());
        if (missing.isEmpty()) {
            return;
        }
        QStringList names;
        for (const uint c : missing.mid(0, CharactersNamed)) {
            names.append(QStringLiteral("%1 (U+%2)")
                             .arg(QString::fromUcs4(&c, 1))
                             .arg(c, 4, 16, QLatin1Char('0')));
        }
        const int more = missing.size() - names.size();
        const QString list = names.join(QStringLiteral(", "));
        warn(ItemCheckTexts::tr("characters"),
             more > 0 ? ItemCheckTexts::tr("no installed font shows %1 and %2 more")
                            .arg(list, QString::number(more))
                      : ItemCheckTexts::tr("no installed font shows %1").arg(list),
             ItemCheckTexts::tr("install a font that has them or choose other characters"));
    }

    /** Ink, and not the line's box, decides: room for a descender may be cut away unseen. */
    void checkLines(const QTextBlock &block)
    {
        const QTextLayout *layout = block.layout();
        const QString blockText = block.text();
        const QPointF origin =
            document().documentLayout()->blockBoundingRect(block).topLeft() - layout->position();
        for (int i = 0; i < layout->lineCount(); ++i) {
            QRectF ink;
            const QTextLine line = layout->lineAt(i);
            for (const QGlyphRun &run : line.glyphRuns()) {
                ink |= run.boundingRect();
            }
            ink.translate(origin + layout->position());
            const QString text = blockText.mid(line.textStart(), line.textLength());
            checkInk(ink, text);
        }
    }

    void checkInk(const QRectF &ink, const QString &text)
    {
        if (ink.isEmpty()) {
            return;
        }
        if (ink.right() > m_item->size().width() + 1 || ink.left() < -1) {
            warnOfMany(ItemCheckTexts::tr("it is wider than the item and cut at the side"),
                       ItemCheckTexts::tr("use a smaller font or a wider item, or break the line"),
                       [&text] { return ItemCheckTexts::tr("text %1").arg(quoted(text)); });
        }
        const auto slices = m_item->slices();
        const bool isWhole = std::any_of(slices.begin(), slices.end(), [&ink](const auto &slice) {
            return slice.top <= ink.top() + 1 && slice.bottom >= ink.bottom() - 1;
        });
        if (!isWhole) {
            warnOfMany(ItemCheckTexts::tr("it is higher than the item and cut"),
                       ItemCheckTexts::tr("use a smaller font or a higher item"),
                       [&text] { return ItemCheckTexts::tr("text %1").arg(quoted(text)); });
        }
    }

    void checkRuns(const QTextBlock &block)
    {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            if (format.isImageFormat()) {
                checkImage(format.toImageFormat(), it.fragment().position());
            } else {
                checkColor(format, it.fragment().text());
            }
        }
    }

    void checkImage(const QTextImageFormat &format, int position)
    {
        QTextObjectInterface *handler =
            document().documentLayout()->handlerForObject(QTextFormat::ImageObject);
        const QSizeF size = handler->intrinsicSize(&document(), position, format);
        if (size.width() > m_item->size().width() || size.height() > m_item->size().height()) {
            // One reason for all images, so that they count together.
            const QString actual =
                ItemCheckTexts::tr("%1 x %2 pixels").arg(size.width()).arg(size.height());
            warnOfMany(ItemCheckTexts::tr("it is larger than the item"),
                       ItemCheckTexts::tr("make the image smaller than %1 x %2 pixels")
                           .arg(m_item->size().width())
                           .arg(m_item->size().height()),
                       [&] {
                           const QString name = format.name().left(TextShown);
                           return ItemCheckTexts::tr("image %1, %2").arg(name, actual);
                       });
        }
    }

    void checkColor(const QTextCharFormat &format, const QString &text)
    {
        const bool hasInk = format.foreground().style() != Qt::NoBrush;
        const QColor ink = hasInk ? format.foreground().color() : QColor(Qt::black);
        const bool hasGround = format.background().style() != Qt::NoBrush;
        const QColor ground = hasGround ? format.background().color() : m_item->groundColor();
        if (!text.trimmed().isEmpty() && ground.alpha() > 0 && isAlike(ink, ground)) {
            warnOfMany(ItemCheckTexts::tr("it has the colour of its ground"),
                       ItemCheckTexts::tr("change the colour of the text or of the ground"),
                       [&text] { return ItemCheckTexts::tr("text %1").arg(quoted(text)); });
        }
    }

    ItemRenderer *m_item;
    Problems m_problems;
    QHash<QString, int> m_found; ///< How many of each reason there are.
    int m_untold = 0;
};

} // namespace

Problems checkItem(ItemRenderer *item)
{
    return item->hasPages() ? Checker(item).run() : Problems();
}

} // namespace player
