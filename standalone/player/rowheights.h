#pragma once

#include "charwidths.h"
#include "pagedocument.h"

#include <QTextBlockFormat>
#include <QTextOption>

namespace player {

/**
 * How high the rows of a bound table are, each without laying out the others.
 *
 * Of each template the places of values in its cells are looked up in a document once. Then a row
 * costs its values' widths: mostly they tell that every line of text fits. What does not is broken
 * into lines by the text engine; rows with images or lists are laid out in a document of their own,
 * and alike ones are remembered.
 */
class RowHeights
{
public:
    /** All outlive this. */
    RowHeights(const ItemTemplate *rows, const FillSources &sources,
               const PageDocuments *documents);

    /** What the row adds to the height of its table, in pixels. */
    [[nodiscard]] qreal height(int row);
    /** What a document has besides the rows of its table, both margins included. */
    [[nodiscard]] qreal frameHeight();

private:
    /** Text in one font, from the template or of a slot. */
    struct Run
    {
        QString text;
        int slot = -1;
        int style = -1;
        CharWidths *font = nullptr;
    };
    struct Paragraph
    {
        QVector<Run> runs;
        QTextBlockFormat format;
        qreal width = 0; ///< For its lines.
    };
    struct Cell
    {
        QVector<Paragraph> paragraphs;
        qreal around = 0; ///< Paddings, borders, margins.
    };
    struct Model
    {
        bool isKnown = false;
        bool isUsable = false;
        qreal least = 0;     ///< By cells that do not change.
        QVector<Cell> cells; ///< Those that do.
        QTextOption option;
    };
    class Modeller;

    [[nodiscard]] Model &model(int row);
    [[nodiscard]] qreal tableHeight(const QString &markup, int row);
    [[nodiscard]] qreal measured(int row);
    [[nodiscard]] qreal paragraphHeight(const Paragraph &paragraph, const Model &of, int row);
    [[nodiscard]] qreal brokenHeight(const Paragraph &paragraph, const Model &of,
                                     const QVector<CharWidths *> &fonts) const;
    [[nodiscard]] CharWidths *fontFor(const QFont &font);
    [[nodiscard]] CharWidths *fontOf(const Run &run, const FilledText &text, int line);

    const ItemTemplate &m_rows;
    FillSources m_sources;
    const PageDocuments &m_documents;
    lctrlsex::ItemDocument m_document;
    qreal m_frame = -1; ///< Height of a document without its rows.
    std::vector<Model> m_models;
    QHash<QString, std::shared_ptr<CharWidths>> m_fonts;
    QHash<QString, qreal> m_measured;
    QVector<QString> m_values; ///< Of the runs of one paragraph.
};

} // namespace player
