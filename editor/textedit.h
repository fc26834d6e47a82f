#pragma once

#include "lctrlsexexport.h"
#include "ltableproperties.h"

#include <QImage>
#include <QMap>
#include <QPointer>
#include <QTextCharFormat>
#include <QTimer>
#include <QWidget>

#include <memory>

class LTextEffectNode;
class QAction;
class QKeyEvent;
class QDomElement;
class QToolBar;
class LRichViewEdit;

namespace lctrlsex {
class BindingMenus;
class EditToolBar;
class FieldValues;
class FormatCommands;
class FragmentMerger;
class ItemConversion;
class NodePublisher;
class NoticeStrip;
class TableCommands;
class TableMenu;
struct TextWithFields;
} // namespace lctrlsex

/**
 * The editor of a text item: its tool bar, the view of its document, and the bridge between the
 * view and the node that it is attached to.
 *
 * Everything is forwarded to small collaborators; this class keeps the names that hosts and the
 * view connect to, emits, and owns the order of things. The node belongs to the host, may go at
 * any time, and is checked before every use; without one, commands still change the view and
 * nothing is stored. GUI thread only.
 */
class LCTRLSEX_EXPORT TextEdit : public QWidget
{
    Q_OBJECT

public:
    explicit TextEdit(QWidget *parent = nullptr);
    ~TextEdit() override;

    /** Attaches @p node and loads its document; null lets go of the one before. */
    void Init(LTextEffectNode *node);

    /** The current page as the screen shows it; null when the node is gone or has no size. */
    [[nodiscard]] QImage getCurrentImage();
    /**
     * Page @p page, from 1, as the screen shows it: from the node's page files, else the top of
     * the document. Null when the node is gone or has no size.
     */
    [[nodiscard]] QImage getIndexImage(int page);

    /**
     * Sets the single-line flag to whether @p mode is 1, when @p apply is set; in any case shows
     * the tool bar's twelve formatting actions. The name is spelt so on purpose.
     */
    void UpdateBottonMode(int mode, bool apply);

    /** Kept on purpose because hosts ask it: always false. */
    [[nodiscard]] static bool Contain(int value);
    /** Kept on purpose because hosts ask it: always true. */
    [[nodiscard]] static bool NotContain(int value);

    /** Whether the document holds a table. */
    [[nodiscard]] bool hasTable() const;

    /** Whether ConvertText() would do something now: there is a text, and it can be edited. */
    [[nodiscard]] Q_INVOKABLE bool CanConvertText() const;

    // What the client learns of data; each rebuilds the menu that shows it

    /** Values of fields by qualified name: offers these fields and redraws the field images. */
    void UpdateField(QMap<QString, QString> &values);
    /** Calculated values by name. */
    void UpdateExpression(QMap<QString, QString> &values);
    /** Conditional styles, identifier to name. */
    void UpdateConditionStyles(QMap<QString, QString> &styles);
    /** Fills the menu of conditional styles from what the node stores. */
    void LoadConditionStyles();
    /** Rebuilds the menus of sources, fields and expressions and redraws the field images. */
    void RefreshDataSource();
    /**
     * Classifies @p bindKey: its kind (see lctrlsex::BindKey) into @p kind, 0 when nothing can be
     * bound to it, and the names of its fields.
     */
    [[nodiscard]] static QStringList GetFields(const QString &bindKey, int &kind);
    /**
     * Writes the placeholders of the bound key into the template cells of the table, in the tool
     * bar's format and as one undo step. The document is stored before, and again as after any
     * edit.
     */
    void ProcessPaddingHtmlTable();
    /**
     * Stores @p html as what the node shows, and apart from it the template of its table where the
     * bind key allows one.
     */
    void ExtractTemplate(const QString &html);
    /**
     * @p html with the widths, borders and binding attributes of its tables made fit for other
     * renderers. Without a table the binding of the node is cleared. HTML that is not well-formed
     * comes back as it is and clears nothing.
     */
    [[nodiscard]] QString UnifyTableColumnWidths(const QString &html) const;
    /** Borders and widths of one table, see lctrlsex::unifyTable(); a null element is left alone.
     */
    void ProcessSingleTable(QDomElement table) const;

signals:
    /** Sent when it may have changed whether the document holds a table. */
    void DocumentHasTable(bool value);
    /** The table was bound to another field. */
    void TableBindFieldChanged();

public slots:
    /** Shows page @p curPage of @p numPage, both clamped, and tells the node. */
    void PageChanged(uint curPage, uint numPage);
    void OnSourceChanged();
    void OnFieldChanged();
    /** Stores what the table record says of type, header and pages on the node. */
    void OnTableInfoChange(const LUM_EditInterface::LTableProperties &prop);
    /** Sets every text anew in the current language. */
    void Translate();

    // Text and tables

    /**
     * Inserts @p text in the tool bar's format, always white; on one line in single-line mode.
     * What is too long, or would make the document one that cannot be opened again, is refused
     * with a notice and changes nothing.
     */
    void InsertCopyText(const QString &text);
    void InsertTable();
    /** Gives the current table the look of @p properties; null is ignored. */
    void ModfTablePropertiesed(LUM_EditInterface::LTableProperties *properties);
    void TableSplitCell(bool vert);

    // One value applied to the document, from the tool bar or from outside

    /** Merges @p format into the selection, or the word under the cursor, and the typing format. */
    void mergeFormatOnWordOrSelection(const QTextCharFormat &format);
    void TextFontNameChanged(const QString &family);
    /** @p size in points. */
    void TextFontSizeChanged(uint size);
    /** @p color as 0xAARRGGBB; the alpha is ignored. The same for the next two. */
    void TextColorChanged(uint color);
    void TextBackgroundColorChanged(uint color);
    void EditBackgroundColorChanged(uint color);
    /** @p align as Qt::Alignment. */
    void TextHAlignmentChanged(uint align);
    void TextVAlignmentChanged(uint align);
    void TextBoldFlagChanged(bool flag);
    void TextItalicFlagChanged(bool flag);
    void TextUnderlineFlagChanged(bool flag);
    /** Letter spacing of the whole document; nothing in single-line mode. */
    void TextWordSpacingChanged(int value);
    /** Line height of the cursor's paragraphs in percent, at least 100; nothing in single-line
     * mode. */
    void TextLineSpacingChanged(int value);

    // The whole text converted

    /**
     * Does what @p type as TextOperatType says: new text colours, as one undo step; or no
     * antialiasing for the item, and again with it when it is without. Works in the background,
     * with a window in which the user can cancel it when it takes long; the text cannot be edited
     * until then. Any other value does nothing.
     */
    void ConvertText(int type);

    /** Pushes the document to the node when it changed since the last push. */
    void TextDrawImage();
    /** Takes the keyboard focus from the view. */
    void EditFocusOut();
    /** Gives the view the keyboard focus. */
    void EditFocusIn();

    // Commands of the table menu

    void TableMenuShow();
    void TablePropModfy();
    void TableOperate();

    // Commands of the tool bar

    void SetEditFocus();
    void textFamily(const QString &family);
    void textSize(const QString &size);
    void textColor();
    void textBold();
    void textUnderline();
    void textItalic();
    void TextBgcolor();
    void ClearTextBgcolor();
    void EditorBgColor();
    void TransBgColor();
    void textAlign(QAction *action);
    void textVAlign(QAction *action);
    /** Follows a change of the document: repairs the typing format, pushes, merges later. */
    void TextChanged();
    /** Brings the tool bar in line with the format at the cursor. */
    void CursorPositionFontStatusMarked();
    /** Stretches the item's table to the page, or stops it. */
    void ON_VerticalStretch();
    void UseHollow();
    void StrokeColor();
    void ClearStrokeColor();
    void WordSpacingChanged(int value);
    void LineSpacingChanged(int value);

    // Fields and conditional styles

    void ONDataSourceNameChanged(QAction *action);
    void ONFieldNameChanged(QAction *action);
    void ONConditionStyleChanged(QAction *action);
    void ONInsertFieldNameChanged(const QString &field);
    /** Inserts a bound field in the tool bar's format. */
    void ApplyFormatAndInsert(const QString &field);
    void CopyAction();
    /** Pastes the clipboard's text as InsertCopyText() does. */
    void PasteAction();
    /** Redraws every field image. */
    void UpdateBindKeys();
    /** Merges neighbouring runs that look alike. */
    void performSmartMerge();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void setupEditActions(QToolBar *toolBar);
    void setupTextActions();
    void CreateConnect();
    void InitTextEditor();
    void InitFontSettings();
    void InitAlignmentSettings();
    void InitUISettings();
    void alignmentChanged(Qt::Alignment align);
    void SetStrokeColorButtonImage(const QColor &color);

    QWidget *noticeStrip();
    void showNotice(const QString &text);
    void showRefusal(const QString &text);
    void followGrowth();
    void checkGrowth();
    void setUsable(bool on);
    void flush();
    void letGo();
    void copyTableSettings();
    /** Adds the table button with its menu to @p toolBar. */
    void tableAction(QToolBar *toolBar);
    void translateTable();
    bool moveInTable(bool forward);
    /** Fills cells of the table with what a spreadsheet copied; false when @p text is no more. */
    bool pasteCells(const QString &text, const QTextCharFormat &format);
    void pasteFields(const lctrlsex::TextWithFields &pasted);
    void showGround();
    void redraw();
    void conversionEnded(int type, int outcome);
    void setAntialias(bool on);
    void rebuildTypingFormat();
    bool editByKey(const QKeyEvent &key, bool isLookNew);
    void restoreTypingFormat();
    [[nodiscard]] QColor askColor(const QString &title, const QColor &current);
    /** Whether the node taken when the count was @p attachment is still there and attached. */
    [[nodiscard]] bool isAttached(int attachment) const;

    Q_DISABLE_COPY(TextEdit)

    QPointer<LTextEffectNode> m_node;
    LRichViewEdit *m_view = nullptr;
    std::unique_ptr<lctrlsex::EditToolBar> m_toolBar;
    std::unique_ptr<lctrlsex::FormatCommands> m_format;
    std::unique_ptr<lctrlsex::NodePublisher> m_publisher;
    std::unique_ptr<lctrlsex::FragmentMerger> m_merger;
    std::unique_ptr<lctrlsex::TableCommands> m_table;
    std::unique_ptr<lctrlsex::TableMenu> m_tableMenu;
    QAction *m_newTable = nullptr;
    std::unique_ptr<lctrlsex::BindingMenus> m_binding;
    std::unique_ptr<lctrlsex::FieldValues> m_fields;
    QToolBar *m_dataToolBar = nullptr;
    lctrlsex::NoticeStrip *m_notice = nullptr;
    QColor m_textColor = Qt::white; ///< Of text that is typed where no colour shows.
    int m_attachment = 0;           ///< Counts Init(), so that a node is told from the one before.
    bool m_singleLine = false;
    bool m_initialising = false;
    bool m_firstShow = true;
    int m_refusedRevision = -1; ///< Of the document when something was refused.
    QTimer m_mergeTimer;
    QTimer m_growthTimer;
    std::unique_ptr<lctrlsex::ItemConversion> m_conversion;
};
