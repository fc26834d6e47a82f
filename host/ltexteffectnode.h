#pragma once

#include "leffectnode.h"
#include "ltableproperties.h"

#include <QImage>
#include <QMap>

class LTextEffectNodePrivate;

/**
 * A rich-text programme item: its document, table, binding, look and pages.
 *
 * The editor writes it, the player reads it. Packed colours are red + green * 256 + blue * 65536.
 * A value that was never set, or that was stored with a type that does not fit, reads as its
 * default. Used on the GUI thread only.
 */
class LCOMMON_EXPORT LTextEffectNode : public LEffectNode
{
    Q_OBJECT

public:
    /** How the item takes its text; the values are stored. */
    enum LTextPluginType : int { MultiLine = 0, SingleLine = 1, Colorful = 3 };

    explicit LTextEffectNode(LNode *parent = nullptr);
    ~LTextEffectNode() override;

    /** "Text". */
    [[nodiscard]] QString TypeText() const override;

    // Mode

    /** An LTextPluginType; 1 means a single line. Default 0. */
    [[nodiscard]] int GetSingleMode() const;
    void SetSingleMode(int value);

    /** Whether the text comes from a source instead of the editor. Default false. */
    [[nodiscard]] bool GetSourceMode() const;
    void SetSourceMode(bool value);

    /** Whether the item is drawn as colourful text. Default false. */
    [[nodiscard]] bool GetColorfulTextEnable() const;
    void SetColorfulTextEnable(bool value);

    // Document

    /** The editor's HTML: UTF-8, then Base64. Attribute "RawHtml". */
    [[nodiscard]] QString GetRawHtmlText() const;
    void SetRawHtmlText(const QString &value);

    /** The document as plain text. Attribute "PlayText". */
    [[nodiscard]] QString GetPlayText() const;
    void SetPlayText(const QString &value);

    /** The HTML for display, font sizes in px. Attribute "Html", absent in a new item. */
    [[nodiscard]] QString GetHtmlText() const;
    void SetHtmlText(const QString &value);

    /** The display HTML with the table's template replaced by its placeholder. */
    [[nodiscard]] QString GetStringContent() const;
    void SetStringContent(const QString &value);

    // Table

    /** 0 fixed form (default), 1 dynamic rows, 2 dynamic columns, 3 adaptive rows and columns. */
    [[nodiscard]] int GetTableType() const;
    void SetTableType(int value);

    /** The table has a header row. Default true, as in a new table record. */
    [[nodiscard]] bool GetTableHeader() const;
    void SetTableHeader(bool value);

    /** The top row is repeated on every page. Default false. */
    [[nodiscard]] bool GetTableFixedHeader() const;
    void SetTableFixedHeader(bool value);

    /** The table is stretched to the page. Default false. */
    [[nodiscard]] bool GetTableFillArea() const;
    void SetTableFillArea(bool value);

    /** 0 pages turn vertically (default), 1 horizontally. */
    [[nodiscard]] int TextPageTurnDirection() const;
    void SetPageTurnDirection(int value);

    /**
     * The record of the item's table. Type, direction, header, fixed header and fill area are
     * those of the single accessors above, in both directions; the rest is kept in the record.
     */
    [[nodiscard]] LUM_EditInterface::LTableProperties GetTableProperties() const;
    void SetTableProperties(const LUM_EditInterface::LTableProperties &properties);

    // Binding: keys are paths into the data source, empty when unbound

    /** Name of the data source that the menus offer the fields of; empty for none. */
    [[nodiscard]] QString GetDataSource() const;
    void SetDataSource(const QString &value);

    /** Bind key of the table, whatever its type. */
    [[nodiscard]] QString GetTableBindKey() const;
    void SetTableBindKey(const QString &value);

    /** Bind key of a fixed form. */
    [[nodiscard]] QString GetTableFixedBindKey() const;
    void SetTableFixedBindKey(const QString &value);

    /** Bind key of dynamic rows. */
    [[nodiscard]] QString GetTableRowBindKey() const;
    void SetTableRowBindKey(const QString &value);

    /** Bind key of dynamic columns. */
    [[nodiscard]] QString GetTableColBindKey() const;
    void SetTableColBindKey(const QString &value);

    /** Bind key of an adaptive table. */
    [[nodiscard]] QString GetTableAdaptRowsColsBindKey() const;
    void SetTableAdaptRowsColsBindKey(const QString &value);

    /** Between the values of a text that holds a list: "," or a line feed (default). */
    [[nodiscard]] QString GetTableListTypeSeparator() const;
    void SetTableListTypeSeparator(const QString &value);

    // Templates: markup; placeholders are the bare token, written "${token}" in the document

    /** Rows of a fixed form, without its header. Default 0. */
    [[nodiscard]] int GetTableFixedRow() const;
    void SetTableFixedRow(int value);
    [[nodiscard]] QString GetTableFixedTemplate() const;
    void SetTableFixedTemplate(const QString &value);
    [[nodiscard]] QString GetTableFixedPlaceHolder() const;
    void SetTableFixedPlaceHolder(const QString &value);

    /** The row that dynamic rows repeat. */
    [[nodiscard]] QString GetTableRowTemplate() const;
    void SetTableRowTemplate(const QString &value);
    [[nodiscard]] QString GetTableRowPlaceHolder() const;
    void SetTableRowPlaceHolder(const QString &value);

    /** The cells that dynamic columns repeat, one a row, joined with the separator. */
    [[nodiscard]] QString GetTableColTemplate() const;
    void SetTableColTemplate(const QString &value);
    /** What stands before the repeated cells, one a row, joined with the separator. */
    [[nodiscard]] QString GetTableColTemplatePrefix() const;
    void SetTableColTemplatePrefix(const QString &value);
    /** What stands behind the repeated cells, one a row, joined with the separator. */
    [[nodiscard]] QString GetTableColTemplateSuffix() const;
    void SetTableColTemplateSuffix(const QString &value);
    /** Separates the rows in the three texts above. */
    [[nodiscard]] QString GetTableColTemplateSeparator() const;
    void SetTableColTemplateSeparator(const QString &value);
    [[nodiscard]] QString GetTableColPlaceHolder() const;
    void SetTableColPlaceHolder(const QString &value);

    /** The cell that an adaptive table repeats in both directions. */
    [[nodiscard]] QString GetTableAdaptRowsCols() const;
    void SetTableAdaptRowsCols(const QString &value);
    /** What stands before the repeated cells of a row. */
    [[nodiscard]] QString GetTableAdaptRowsColsTemplatePrefix() const;
    void SetTableAdaptRowsColsTemplatePrefix(const QString &value);
    /** What stands behind the repeated cells of a row. */
    [[nodiscard]] QString GetTableAdaptRowsColsTemplateSuffix() const;
    void SetTableAdaptRowsColsTemplateSuffix(const QString &value);
    [[nodiscard]] QString GetTableAdaptRowsColsPlaceHolder() const;
    void SetTableAdaptRowsColsPlaceHolder(const QString &value);

    // Conditional styles and calculations

    /** JSON array of the conditional styles; empty when there is none. */
    [[nodiscard]] QString GetSpanConditions() const;
    void SetSpanConditions(const QString &value);

    /** JSON array of the calculations; empty when there is none. */
    [[nodiscard]] QString GetCalculation() const;
    void SetCalculation(const QString &value);

    /** Forgets the registered field names; the client does so before it registers them anew. */
    void ClearFieldNameValue();
    /** Registers a field as source name, ":" and field name, with its current value. */
    void AddFieldNameValue(const QString &name, const QString &value);
    /** The registered field names with their values, sorted by name; not saved. */
    [[nodiscard]] QMap<QString, QString> FieldNameValues() const;

    // Look

    /** Font family; empty (default) leaves the choice to the editor. */
    [[nodiscard]] QString GetFontFamily() const;
    void SetFontFamily(const QString &value);

    /** Font size in points. Default 16. */
    [[nodiscard]] int GetFontSize() const;
    void SetFontSize(int value);

    /** Letter spacing as the word spacing box shows it, 0 to 99. Default 0. */
    [[nodiscard]] int GetFontSpace() const;
    void SetFontSpace(int value);

    /** Whether letters have soft edges, of colours between text and ground. Default true. */
    [[nodiscard]] bool GetTextAntialias() const;
    void SetTextAntialias(bool value);

    /** Background of the item as a packed colour. Default 0, black. */
    [[nodiscard]] int GetEditBgColor() const;
    void SetEditBgColor(int value);

    /** Whether the background is transparent instead. Default false. */
    [[nodiscard]] bool GetTransBgColor() const;
    void SetTransBgColor(bool value);

    /** Non-zero draws the text hollow. Default 0. */
    [[nodiscard]] int GetUseHollow() const;
    void SetUseHollow(int value);

    /** Non-zero draws a stroke around the text. Default 0. */
    [[nodiscard]] int GetUseStroke() const;
    void SetUseStroke(int value);

    /** Colour of the stroke, packed. Default 255, red. */
    [[nodiscard]] int GetStrokeColor() const;
    void SetStrokeColor(int value);

    /** Qt::AlignTop, Qt::AlignVCenter (default) or Qt::AlignBottom. */
    [[nodiscard]] int GetContentAlign() const;
    void SetContentAlign(int value);

    /** Qt::AlignLeft (default), Qt::AlignHCenter, Qt::AlignRight or Qt::AlignJustify. */
    [[nodiscard]] int GetContentHAlign() const;
    void SetContentHAlign(int value);

    // Pages: state of this run, never saved

    /** Number of pages, at least 1; a lower number is taken as 1. */
    [[nodiscard]] int GetPageCount() const;
    void SetPageCount(int count);

    /** The page that is shown, from 1; a lower number is taken as 1. Not clamped to the count. */
    [[nodiscard]] int GetCurrentPage() const;
    void SetCurrentPage(int page);

    /** Called when page or count were written: reports them through PlayIndexChanged. */
    void PageChanged();

    /** Keeps a picture of the current page for lists and overviews. */
    void UpdatePreviewCache(QImage image);
    /** The picture kept last; null before the first. */
    [[nodiscard]] QImage PreviewCache() const;

    /**
     * The item's own picture without its text: ARGB32 of @p size pixels, filled with the
     * background or fully transparent. Null for an empty size and one too large to allocate.
     */
    [[nodiscard]] QImage NodeImage(const QSize &size) const;

signals:
    /** The page that is played and the number of pages, both from 1. */
    void PlayIndexChanged(int current, int total);
    /** UpdatePreviewCache kept another picture. */
    void PreviewCacheChanged();
    /** The registered field names or their values changed. */
    void FieldNameValueChanged();

private:
    Q_DISABLE_COPY(LTextEffectNode)
    const QScopedPointer<LTextEffectNodePrivate> d;
};
