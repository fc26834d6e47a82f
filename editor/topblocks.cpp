#include "topblocks.h"

#include "documentsetup.h"
#include "toprows.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextTable>
#include <QUrl>

namespace lctrlsex {

namespace {

/** The smallest text that is worth a guess at how much of it a page holds. */
constexpr int LeastLineHeight = 14;
constexpr int AreaOfCharacter = 120;

/** Asks another document for its images, so that nothing loads that this one would not. */
class BorrowingDocument : public QTextDocument
{
public:
    using QTextDocument::QTextDocument;
    QPointer<const QTextDocument> lender;

protected:
    QVariant loadResource(int type, const QUrl &name) override
    {
        QVariant value = lender != nullptr ? lender->resource(type, name) : QVariant();
        if (value.isValid()) {
            return value;
        }
        // An invalid value would make Qt open the path itself.
        QImage nothing(1, 1, QImage::Format_ARGB32);
        nothing.fill(Qt::transparent);
        return type == ImageResource ? QVariant(nothing) : QVariant(QByteArray());
    }
};

} // namespace

TopBlocks::TopBlocks(QObject *parent)
    : QObject(parent)
{}

TopBlocks::~TopBlocks() = default;

void TopBlocks::invalidate()
{
    m_isCurrent = false;
}

void TopBlocks::onContentsChange(int position, int removed, int added)
{
    if (position > m_end) {
        m_blockCount = m_source->blockCount();
        return;
    }
    const QTextBlock block = m_source->findBlock(position);
    const bool isWithin = m_blockCount == m_source->blockCount() &&
                          block == m_source->findBlock(position + added) &&
                          (m_editedBlock == -1 || m_editedBlock == block.blockNumber());
    m_isCurrent = m_isCurrent && isWithin;
    m_editedBlock = block.blockNumber();
    m_end += added - removed;
}

void TopBlocks::attach(const QTextDocument *source)
{
    if (m_source != nullptr) {
        disconnect(m_source, nullptr, this, nullptr);
    }
    m_source = source;
    m_isCurrent = false;
    connect(source, &QTextDocument::contentsChange, this,
            [this](int position, int removed, int added) {
                onContentsChange(position, removed, added);
            });
}

QTextDocument *TopBlocks::documentFor(const QTextDocument *source, const QSize &size)
{
    if (source != m_source) {
        attach(source);
    }
    const bool isCurrent = m_isCurrent && size == m_size;
    m_size = size;
    if (!isCurrent || (m_editedBlock != -1 && !takeEditedBlock()) ||
        (m_cut != nullptr && !hasSameColumns(*m_cut, *m_cutCopy))) {
        rebuild();
    }
    m_editedBlock = -1;
    return m_copy;
}

void TopBlocks::copySettings(QTextDocument *target) const
{
    const QFont font = m_source->defaultFont();
    TextSettings settings;
    settings.fontSize = font.pointSize() > 0 ? font.pointSize() : font.pixelSize();
    settings.antialias = isAntialiased(font);
    target->setUndoRedoEnabled(false);
    target->setDefaultFont(font);
    target->setDefaultTextOption(m_source->defaultTextOption());
    target->setIndentWidth(m_source->indentWidth());
    target->setUseDesignMetrics(m_source->useDesignMetrics());
    preparePage(target, settings);
    target->rootFrame()->setFrameFormat(m_source->rootFrame()->frameFormat());
}

/** The position behind the first blocks that hold that many characters or are that many. */
int TopBlocks::endOfTop(int characters, int blocks) const
{
    const QTextFrame *root = m_source->rootFrame();
    int end = 0;
    int seen = 0;
    for (auto it = root->begin(); !it.atEnd(); ++it) {
        ++seen;
        if (it.currentFrame() != nullptr) {
            continue; // a table is copied whole, with the block that always follows it
        }
        end = it.currentBlock().position() + it.currentBlock().length() - 1;
        if (seen >= blocks || end >= characters) {
            break;
        }
    }
    return end;
}

/** Writes the edited block into the copy; false when that would not do. */
bool TopBlocks::takeEditedBlock()
{
    const QTextBlock block = m_source->findBlockByNumber(m_editedBlock);
    const QTextBlock copy = m_copy->findBlockByNumber(m_editedBlock);
    if (!block.isValid() || !copy.isValid() || block.blockFormat().objectIndex() != -1) {
        return false;
    }
    QTextCursor cursor(copy);
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    const bool isWhole = copyBlock(block, &cursor);
    cursor.endEditBlock();
    // A shorter paragraph may let in text that was not copied.
    return isWhole && reachesBelowPage();
}

/** Whether nothing of the source that is not in the copy can show on the page. */
bool TopBlocks::reachesBelowPage() const
{
    if (m_cut != nullptr) {
        // The copied table ends with a border, and a blank line follows it, where rows should.
        const QTextTableFormat format = m_cutCopy->format();
        const QRectF shown = m_copy->documentLayout()->frameBoundingRect(m_cutCopy);
        const qreal edge = format.bottomMargin() + 3 * format.border() + format.cellSpacing();
        return shown.bottom() - edge > m_size.height();
    }
    return m_end >= m_source->characterCount() - 1 || m_copy->size().height() > m_size.height();
}

/** The table in which the first @p characters of the source end; null when they end elsewhere. */
QTextTable *TopBlocks::tableToCut(int characters) const
{
    const QList<QTextFrame *> frames = m_source->rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        if (frame->lastPosition() >= characters) {
            return frame->firstPosition() <= characters ? qobject_cast<QTextTable *>(frame)
                                                        : nullptr;
        }
    }
    return nullptr;
}

/** Copies what is before a table and its first rows; false when it has to be copied whole. */
bool TopBlocks::copyUpToRow(QTextTable *table, int wanted)
{
    const int rows = rowsWithoutCut(*table, wanted);
    if (rows == table->rows()) {
        return false;
    }
    makeCopy(table->firstPosition() - 1);
    QTextCursor to(m_copy);
    to.movePosition(QTextCursor::End);
    to.beginEditBlock();
    const bool isCopied = copyTopRows(*table, rows, &to);
    to.endEditBlock();
    if (!isCopied) {
        return false;
    }
    m_cut = table;
    m_cutCopy = qobject_cast<QTextTable *>(m_copy->rootFrame()->childFrames().last());
    m_end = table->cellAt(rows, 0).firstPosition() - 1;
    layOutCopy();
    return hasSameColumns(*m_cut, *m_cutCopy);
}

/** A fresh copy of the source up to @p end. */
void TopBlocks::makeCopy(int end)
{
    m_cut = nullptr;
    m_end = end;
    delete m_copy;
    auto *copy = new BorrowingDocument(this);
    copy->lender = m_source;
    m_copy = copy;
    copySettings(copy);
    QTextCursor from(const_cast<QTextDocument *>(m_source.data()));
    from.setPosition(m_end, QTextCursor::KeepAnchor);
    QTextCursor to(copy);
    to.insertFragment(QTextDocumentFragment(from));
    // What is inserted into an empty first block leaves that block its own format.
    to.setPosition(0);
    to.setBlockFormat(m_source->firstBlock().blockFormat());
}

void TopBlocks::layOutCopy()
{
    pointsToPixels(m_copy);
    m_copy->setTextWidth(m_size.width());
}

void TopBlocks::rebuild()
{
    const int last = m_source->characterCount() - 1;
    int characters = m_size.width() * m_size.height() / AreaOfCharacter + 64;
    int blocks = m_size.height() / LeastLineHeight + 2;
    bool mayCut = true;
    do {
        QTextTable *table = mayCut ? tableToCut(characters) : nullptr;
        mayCut = table != nullptr && copyUpToRow(table, blocks);
        if (!mayCut) {
            makeCopy(qMin(endOfTop(characters, blocks), last));
            layOutCopy();
        }
        characters *= 2;
        blocks *= 2;
    } while (!reachesBelowPage());
    m_blockCount = m_source->blockCount();
    m_isCurrent = true;
}

} // namespace lctrlsex
