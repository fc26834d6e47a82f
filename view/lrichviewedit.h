#pragma once

#include "ltableproperties.h"

#include <QTextEdit>

namespace lctrlsex {
class ImageResize;
struct InsertedPicture;
class ItemDocument;
class ViewMenu;
struct TextSettings;
struct TextWithFields;
} // namespace lctrlsex

/**
 * The view in which the document of a text item is edited.
 *
 * Lines break at the width of the item, whatever the width of the view, and it is shown where the
 * item's pages end, so that the author sees what the screen will show. Its document loads
 * nothing from outside; pasted and dropped content is taken as plain text.
 *
 * The signals are the ways in which a view may ask its editor for something; the editor connects
 * each of them by name.
 */
class LRichViewEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit LRichViewEdit(QWidget *parent = nullptr);

    /** Replaces the content; @p html has passed the guard. Nothing can be undone afterwards. */
    void load(const QString &html, const lctrlsex::TextSettings &settings);

    /** Sets the size of the item in pixels; an empty one lets lines break at the view's edge. */
    void setItemSize(const QSize &size);
    [[nodiscard]] QSize itemSize() const { return m_itemSize; }

    /** In single-line mode no second paragraph is made by typing. */
    void setSingleLine(bool on) { m_singleLine = on; }
    [[nodiscard]] bool isSingleLine() const { return m_singleLine; }

    /** The ground behind the text. A transparent one is shown as a chequered pattern. */
    void setGround(const QColor &color, bool isTransparent);

    /** What the context menu offers beyond the toolkit's entries. */
    [[nodiscard]] lctrlsex::ViewMenu *menuAdditions() const { return m_menu; }
    /**
     * Leaves the toolkit's own entries alone in the context menu; the wheel then leaves the band
     * over a picture where it is.
     */
    void setPlainMenu(bool on) { m_hasPlainMenu = on; }

    // The table's settings, as the node keeps them

    void setTableSettings(const LUM_EditInterface::LTableProperties &settings);
    [[nodiscard]] LUM_EditInterface::LTableProperties tableSettings() const { return m_table; }

public slots:
    // Pictures go into the document itself, at the cursor and in place of the selection; what is
    // none, or does not fit in, changes nothing and is announced by insertionRefused().

    void insertImage(const QImage &image);
    void insertImageFile(const QString &path);
    /** Asks for a file and inserts it. */
    void chooseImage();

signals:
    void PageChange(uint curPage, uint numPage);
    void TextFontNameChanged(const QString &family);
    void TextColorChanged(uint color);
    void TextBackgroundColorChanged(uint color);
    void TextHAlignmentChanged(uint align);
    void TextVAlignmentChanged(uint align);
    void TextBoldFlagChanged(bool flag);
    void TextItalicFlagChanged(bool flag);
    void TextUnderlineFlagChanged(bool flag);
    /** Ends in "Change", unlike the slot that it feeds: kept on purpose because views send it so.
     */
    void TextWordSpacingChange(int value);
    void TextLineSpacingChange(int value);
    void TableSplitCell(bool vertical);
    /** The table was made or changed. */
    void TableTypeChangeSignal(LUM_EditInterface::LTableProperties properties);
    /** Text was pasted or dropped at the cursor. */
    void InsertCopyText(QString text);
    /** Text that was copied with fields in it was pasted or dropped at the cursor. */
    void fieldsPasted(const lctrlsex::TextWithFields &pasted);
    /** A field was picked or dropped at the cursor. */
    void InsertFieldNameSignal(QString field);
    /** Why a picture was not inserted, for the user. */
    void insertionRefused(const QString &reason);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    [[nodiscard]] QSize roomForPictures() const;
    void insertPictures(const QVector<lctrlsex::InsertedPicture> &pictures);
    void paintChequers();
    void paintTableGrounds(const QRect &region);
    void paintPageEdges(const QRect &region);
    [[nodiscard]] const QVector<qreal> &pageEdges(qreal until);

    Q_DISABLE_COPY(LRichViewEdit)

    lctrlsex::ItemDocument *m_document;
    lctrlsex::ViewMenu *m_menu;
    lctrlsex::ImageResize *m_imageResize;
    QSize m_itemSize;
    LUM_EditInterface::LTableProperties m_table;
    bool m_singleLine = false;
    bool m_hasPlainMenu = false;
    bool m_isTransparent = false;
    QVector<qreal> m_pageEdges; ///< From the top, in pixels of the document.
    qreal m_edgesUntil = -1;    ///< How far down they are known.
};
