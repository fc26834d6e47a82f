#pragma once

#include <QString>
#include <QStringView>
#include <QVector>

#include <string_view>

namespace player {

/** Writes @p value so that it shows as itself in HTML; see appendValue(). */
[[nodiscard]] QString escapedValue(const QString &value);
/**
 * Appends @p value to the HTML in @p html as text: markup escaped, line ends as <br/>, what XML or
 * the text engine cannot hold as U+FFFD. Of a value longer than LongestValue the rest is cut off.
 */
void appendValue(QString *html, const QString &value);
/** The same for a value in UTF-8. */
void appendValue(QString *html, std::string_view utf8);
/** The same value as the text that shows, with QChar::LineSeparator for line ends. */
[[nodiscard]] QString shownText(const QString &value);
/** The most characters that one value shows. */
constexpr int LongestValue = 4000;

/** A place in a template that values fill. */
struct TemplateSlot
{
    QString name;         ///< Between "${" and "}", entities resolved; or "i" counted: see below.
    int line = 0;         ///< Counted from the line that the template is expanded for.
    int number = -1;      ///< Of "${i}": how many of them stand before it in its line's part.
    bool isAlone = false; ///< Nothing else stands between the tags around it.
};

/** A field image: its tag is written anew with the image that shows the value. */
struct TemplateImage
{
    QString key;    ///< "source:field", or the name of a calculation.
    QString style;  ///< As lctrlsex::FieldStyle writes it.
    QString before; ///< The tag up to the value of its src, and what follows it.
    QString after;
    int line = 0; ///< As above.
};

/** Text under a conditional style. */
struct TemplateStyle
{
    QString id;
    int slot = -1; ///< The first slot that it covers, whose value is the one to test; -1 for none.
    int line = 0;
};

/**
 * Markup that is read once and expanded often. Only text between tags has slots; names of more than
 * 200 characters are no slots, and of more than MostSlots the rest stays as it is.
 *
 * Which slots are filled is the filler's business; see expand().
 */
class TemplateText
{
public:
    static constexpr int MostSlots = 100000;

    /** What a part of a template is made of, in order. */
    struct Piece
    {
        enum Kind {
            Literal,    ///< Text from begin to end.
            Slot,       ///< Index among slots(); begin to end is what was typed.
            Image,      ///< Index among images().
            StyleBegin, ///< Index among styles(): one run of text under it begins.
            StyleEnd,
            CellWidth ///< Index counts the cells from the template's beginning.
        };
        Kind kind = Literal;
        int index = 0;
        int begin = 0;
        int end = 0;
    };

    TemplateText() = default;
    explicit TemplateText(const QString &markup) { append(markup); }

    /**
     * Reads @p markup and puts it behind what is there. Its slots belong to line @p line; @p number
     * is where the count of "${i}" goes on, whose next number is returned. With @p hasWidths the
     * tag of each td gets its width from the filler.
     */
    int append(const QString &markup, int line = 0, int number = 0, bool hasWidths = false);

    [[nodiscard]] const QVector<Piece> &pieces() const { return m_pieces; }
    [[nodiscard]] const QVector<TemplateSlot> &slotList() const { return m_slots; }
    [[nodiscard]] const QVector<TemplateImage> &images() const { return m_images; }
    [[nodiscard]] const QVector<TemplateStyle> &styles() const { return m_styles; }
    [[nodiscard]] int cellCount() const { return m_cells; }
    /** Length of what does not change. */
    [[nodiscard]] int literalLength() const { return m_literalLength; }
    [[nodiscard]] QStringView typed(const Piece &piece) const
    {
        return QStringView(m_markup).mid(piece.begin, piece.end - piece.begin);
    }

    /**
     * Appends the expansion to @p html in one pass. @p filler has
     * - bool slot(QString *html, int index): false leaves what was typed,
     * - void image(QString *html, int index),
     * - void beginStyle(QString *html, int index) and endStyle(), in pairs,
     * - void cellWidth(QString *html, int index).
     */
    template <class Filler>
    void expand(QString *html, Filler &filler) const
    {
        for (const Piece &piece : m_pieces) {
            switch (piece.kind) {
            case Piece::Slot:
                if (filler.slot(html, piece.index)) {
                    break;
                }
                [[fallthrough]];
            case Piece::Literal:
                html->append(m_markup.constData() + piece.begin, piece.end - piece.begin);
                break;
            case Piece::Image:
                filler.image(html, piece.index);
                break;
            case Piece::StyleBegin:
                filler.beginStyle(html, piece.index);
                break;
            case Piece::StyleEnd:
                filler.endStyle(html, piece.index);
                break;
            case Piece::CellWidth:
                filler.cellWidth(html, piece.index);
                break;
            }
        }
    }

private:
    friend class TemplateReader;

    QString m_markup;
    QVector<Piece> m_pieces;
    QVector<TemplateSlot> m_slots;
    QVector<TemplateImage> m_images;
    QVector<TemplateStyle> m_styles;
    int m_cells = 0;
    int m_literalLength = 0;
};

} // namespace player
