#include "lrichviewedit.h"

#include "behindtable.h"
#include "documentsetup.h"
#include "fielddrag.h"
#include "fragmentmerge.h"
#include "imageinsertion.h"
#include "imageresize.h"
#include "itemdocument.h"
#include "pagelines.h"
#include "pastedtext.h"
#include "table/fieldclipboard.h"
#include "table/fieldformat.h"
#include "table/tableground.h"
#include "viewmenu.h"

#include <QAbstractTextDocumentLayout>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>

namespace {

constexpr int ChequerSide = 8;
constexpr int LongestKey = 4096;

/** Keys of the tool bar that a text view of the platform would take for cursor movements. */
bool isToolBarShortcut(const QKeyEvent &event)
{
    if (event.modifiers() != Qt::ControlModifier) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_B:
    case Qt::Key_I:
    case Qt::Key_U:
    case Qt::Key_L:
    case Qt::Key_E:
    case Qt::Key_R:
    case Qt::Key_J:
        return true;
    default:
        return false;
    }
}

} // namespace

LRichViewEdit::LRichViewEdit(QWidget *parent)
    : QTextEdit(parent)
    , m_document(new lctrlsex::ItemDocument(this))
    , m_menu(new lctrlsex::ViewMenu(this))
{
    m_document->setUndoRedoEnabled(true);
    setDocument(m_document);
    m_imageResize = new lctrlsex::ImageResize(this);
    setFrameShape(QFrame::NoFrame);
    connect(m_document->documentLayout(), &QAbstractTextDocumentLayout::update, this,
            [this] { m_edgesUntil = -1; });
    // The screen draws text without a colour of its own in black, in every palette.
    QPalette colors = palette();
    colors.setColor(QPalette::Text, Qt::black);
    setPalette(colors);
}

void LRichViewEdit::load(const QString &html, const lctrlsex::TextSettings &settings)
{
    m_document->clearForView(settings);
    // Only the view's own way in leaves the cursor at the start without laying out everything.
    setHtml(html);
    lctrlsex::removeUnwrittenBlank(m_document, html);
    lctrlsex::pixelsToPoints(m_document);
    if (html.contains(QLatin1String("data://bindKey/"))) {
        lctrlsex::alignFields(m_document);
    }
    setTextCursor(QTextCursor(m_document)); // one that has the format of the text
    lctrlsex::applyLetterSpacing(m_document, settings);
    lctrlsex::smartMerge(m_document); // here it is no step of the user's
    m_document->clearUndoRedoStacks();
}

void LRichViewEdit::setItemSize(const QSize &size)
{
    m_itemSize = size;
    m_imageResize->setLimit(size);
    m_edgesUntil = -1;
    // A page size of the document would be undone by the next resize; this is not.
    if (size.width() > 0) {
        setLineWrapColumnOrWidth(size.width());
        setLineWrapMode(QTextEdit::FixedPixelWidth);
    } else {
        setLineWrapMode(QTextEdit::WidgetWidth);
    }
    viewport()->update();
}

void LRichViewEdit::setGround(const QColor &color, bool isTransparent)
{
    m_isTransparent = isTransparent;
    setStyleSheet(isTransparent ? QStringLiteral("QTextEdit { background-color: transparent }")
                                : QStringLiteral("QTextEdit { background-color: rgb(%1, %2, %3) }")
                                      .arg(color.red())
                                      .arg(color.green())
                                      .arg(color.blue()));
    // An opaque viewport keeps what lies behind it from being painted for each blink of the cursor.
    QPalette ground = viewport()->palette();
    ground.setColor(QPalette::Base, color);
    viewport()->setPalette(ground);
    viewport()->setAutoFillBackground(!isTransparent);
    viewport()->update();
}

void LRichViewEdit::setTableSettings(const LUM_EditInterface::LTableProperties &settings)
{
    m_table = settings;
}

bool LRichViewEdit::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        isToolBarShortcut(*static_cast<QKeyEvent *>(event))) {
        event->ignore();
        return true;
    }
    return QTextEdit::event(event);
}

void LRichViewEdit::changeEvent(QEvent *event)
{
    // The text's default font is the item's, whatever font the widget gets.
    const QFont font = document()->defaultFont();
    QTextEdit::changeEvent(event);
    if (document()->defaultFont() != font) {
        document()->setDefaultFont(font);
    }
}

void LRichViewEdit::paintEvent(QPaintEvent *event)
{
    if (m_isTransparent) {
        paintChequers();
    }
    paintTableGrounds(event->rect());
    QTextEdit::paintEvent(event);
    paintPageEdges(event->rect());
}

void LRichViewEdit::paintChequers()
{
    static const QPixmap tile = [] {
        QPixmap pixmap(2 * ChequerSide, 2 * ChequerSide);
        pixmap.fill(QColor(88, 88, 88));
        QPainter painter(&pixmap);
        painter.fillRect(0, 0, ChequerSide, ChequerSide, QColor(102, 102, 102));
        painter.fillRect(ChequerSide, ChequerSide, ChequerSide, ChequerSide, QColor(102, 102, 102));
        return pixmap;
    }();
    QPainter(viewport()).drawTiledPixmap(viewport()->rect(), tile);
}

void LRichViewEdit::paintTableGrounds(const QRect &region)
{
    const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
    QPainter painter(viewport());
    painter.translate(-scrolled);
    lctrlsex::drawTableGrounds(&painter, *m_document, region.translated(scrolled));
}

void LRichViewEdit::paintPageEdges(const QRect &region)
{
    if (m_itemSize.isEmpty()) {
        return;
    }
    const int left = -horizontalScrollBar()->value();
    const int top = -verticalScrollBar()->value();
    const int right = left + m_itemSize.width();
    QPainter painter(viewport());
    painter.fillRect(QRect(QPoint(right, region.top()), region.bottomRight()),
                     parentWidget()->palette().color(QPalette::Window));
    painter.setPen(QPen(QColor(160, 160, 160), 0, Qt::DashLine));
    painter.drawLine(right, 0, right, viewport()->height());
    for (const qreal edge : pageEdges(region.bottom() - top)) {
        painter.drawLine(QPointF(left, top + edge), QPointF(right, top + edge));
    }
}

/** Where pages end, at least down to @p until: a page ends where a line would be cut. */
const QVector<qreal> &LRichViewEdit::pageEdges(qreal until)
{
    if (m_edgesUntil >= until) {
        return m_pageEdges;
    }
    const auto pages = lctrlsex::paginate(*m_document, m_itemSize.height(), until);
    m_pageEdges.clear();
    for (int i = 1; i < pages.size(); ++i) {
        m_pageEdges.append(pages.at(i).top);
    }
    const lctrlsex::PageSlice &last = pages.last();
    m_pageEdges.append(last.top - last.drawnAt + m_itemSize.height());
    m_edgesUntil = until;
    return m_pageEdges;
}

void LRichViewEdit::keyPressEvent(QKeyEvent *event)
{
    // Of all that keys can type, only the placeholder of an object cannot be stored.
    if (!event->text().contains(QChar::ObjectReplacementCharacter)) {
        QTextEdit::keyPressEvent(event);
    }
}

void LRichViewEdit::inputMethodEvent(QInputMethodEvent *event)
{
    event->setCommitString(lctrlsex::storableText(event->commitString(), m_singleLine),
                           event->replacementStart(), event->replacementLength());
    QTextEdit::inputMethodEvent(event);
}

void LRichViewEdit::wheelEvent(QWheelEvent *event)
{
    if (!m_hasPlainMenu) {
        m_imageResize->dismiss();
    }
    QTextEdit::wheelEvent(event);
}

void LRichViewEdit::dropEvent(QDropEvent *event)
{
    QTextCursor moved = textCursor();
    const bool isMove = event->source() != nullptr && event->dropAction() == Qt::MoveAction &&
                        (event->source() == this || event->source() == viewport());
    const int target = cursorForPosition(event->pos()).position();
    if (isMove && target >= moved.selectionStart() && target <= moved.selectionEnd()) {
        QDragLeaveEvent leave; // it is there already
        dragLeaveEvent(&leave);
        event->ignore();
        return;
    }
    // What is moved leaves its place only when it has been taken at the new one.
    const int length = document()->characterCount();
    if (isMove) {
        event->setDropAction(Qt::CopyAction);
    }
    QTextEdit::dropEvent(event);
    if (isMove && document()->characterCount() != length) {
        moved.joinPreviousEditBlock();
        moved.removeSelectedText();
        moved.endEditBlock();
    }
    if (event->source() == nullptr) {
        event->setDropAction(Qt::CopyAction); // a file that was dropped stays where it was
    }
}

void LRichViewEdit::contextMenuEvent(QContextMenuEvent *event)
{
    // A click beside the selection is about the place that it hits.
    const QTextCursor hit = cursorForPosition(event->pos());
    const QTextCursor cursor = textCursor();
    const bool isInside = cursor.hasSelection() && hit.position() >= cursor.selectionStart() &&
                          hit.position() <= cursor.selectionEnd();
    if (event->reason() == QContextMenuEvent::Mouse && !isInside) {
        setTextCursor(hit);
    }
    // Guarded: the host may delete the view while the menu is open.
    const QPointer<QMenu> menu = createStandardContextMenu(event->pos());
    if (!m_hasPlainMenu) {
        m_menu->addTo(menu);
    }
    menu->exec(event->globalPos());
    delete menu;
}

bool LRichViewEdit::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasText() || source->hasFormat(FieldDrag::FieldFormat) ||
           lctrlsex::hasFields(*source) || lctrlsex::offersPictures(*source);
}

void LRichViewEdit::insertFromMimeData(const QMimeData *source)
{
    if (isReadOnly()) {
        return;
    }
    if (source->hasFormat(FieldDrag::FieldFormat)) {
        emit InsertFieldNameSignal(
            QString::fromUtf8(source->data(FieldDrag::FieldFormat)).left(LongestKey));
    } else if (lctrlsex::hasFields(*source)) {
        emit fieldsPasted(lctrlsex::fieldsOf(*source));
    } else if (lctrlsex::offersPictures(*source)) {
        insertPictures(lctrlsex::picturesOf(*source, roomForPictures()));
    } else if (source->hasText()) {
        emit InsertCopyText(source->text());
    }
}
