#include "textedit.h"

#include "edittoolbar.h"
#include "fieldvalues.h"
#include "fontnames.h"
#include "formatcommands.h"
#include "fragmentmerge.h"
#include "itemconversion.h"
#include "keyedit.h"
#include "lappconfig.h"
#include "lrichviewedit.h"
#include "ltexteffectnode.h"
#include "ltranslation.h"
#include "nodepublisher.h"
#include "noticestrip.h"
#include "pastedtext.h"
#include "table/bindingmenus.h"
#include "table/tablecommands.h"
#include "table/tablemenu.h"

#include <QEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr int MergeDelay = 50;    // milliseconds
constexpr int GrowthDelay = 1000; // the check takes longer than a key should

bool isTab(const QKeyEvent &key)
{
    const bool isPlain = key.modifiers() == Qt::NoModifier || key.modifiers() == Qt::ShiftModifier;
    return isPlain && (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab);
}

} // namespace

TextEdit::TextEdit(QWidget *parent)
    : QWidget(parent)
    , m_view(new LRichViewEdit(this))
    , m_format(new lctrlsex::FormatCommands(m_view))
    , m_publisher(new lctrlsex::NodePublisher(m_view))
    , m_merger(new lctrlsex::FragmentMerger(m_view->document()))
    , m_table(new lctrlsex::TableCommands(m_view))
    , m_binding(new lctrlsex::BindingMenus)
    , m_fields(new lctrlsex::FieldValues)
    , m_mergeTimer(this)
    , m_conversion(new lctrlsex::ItemConversion(m_view))
{
    m_view->setObjectName(QStringLiteral("RichView"));
    m_view->installEventFilter(this);
    auto *toolBar = new QToolBar(this);
    toolBar->setObjectName(QStringLiteral("FormatToolBar"));
    m_dataToolBar = new QToolBar(this);
    m_dataToolBar->setObjectName(QStringLiteral("DataToolBar"));
    m_toolBar = std::make_unique<lctrlsex::EditToolBar>(toolBar, m_dataToolBar, this);
    m_mergeTimer.setObjectName(QStringLiteral("MergeTimer"));
    m_mergeTimer.setSingleShot(true);
    m_mergeTimer.setInterval(MergeDelay);
    connect(&m_mergeTimer, SIGNAL(timeout()), this, SLOT(performSmartMerge()));
    m_growthTimer.setSingleShot(true);
    m_growthTimer.setInterval(GrowthDelay);
    connect(&m_growthTimer, &QTimer::timeout, this, &TextEdit::checkGrowth);

    setupEditActions(toolBar);
    setupTextActions();
    m_dataToolBar->addSeparator();
    tableAction(m_dataToolBar);
    m_dataToolBar->addSeparator();
    const auto buttons = m_binding->buttons();
    for (QWidget *button : buttons) {
        m_dataToolBar->addWidget(button);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(toolBar);
    layout->addWidget(m_dataToolBar);
    layout->addWidget(noticeStrip());
    layout->addWidget(m_view, 1);
    CreateConnect();
    Translate();
    setUsable(false);
}

TextEdit::~TextEdit()
{
    m_view->removeEventFilter(this);
}

void TextEdit::setupEditActions(QToolBar *toolBar)
{
    Q_UNUSED(toolBar)
    m_toolBar->addEditActions(
        lctrlsex::offeredFonts(LAppConfig::AppDataDir() + QStringLiteral("/outputpath/Font")));
}

void TextEdit::setupTextActions()
{
    m_toolBar->addTextActions();
    const auto actions = m_toolBar->toolBar()->actions();
    for (QAction *action : actions) {
        if (!action->shortcut().isEmpty()) {
            addAction(action); // its shortcut works wherever the focus is in the editor
        }
    }
    // Kept on purpose because users know the key: the justify action is hidden and still has one.
    QAction *justify = m_toolBar->action(QStringLiteral("actionAlignJustify"));
    auto *key = new QShortcut(justify->shortcut(), this);
    key->setContext(Qt::WidgetWithChildrenShortcut);
    connect(key, &QShortcut::activated, this, [this, justify] {
        if (!m_view->isReadOnly()) { // a hidden action is never enabled
            justify->setChecked(true);
            textAlign(justify);
        }
    });
}

QWidget *TextEdit::noticeStrip()
{
    m_notice = new lctrlsex::NoticeStrip(this);
    connect(m_notice, &lctrlsex::NoticeStrip::plainTextWanted, this, [this] {
        m_publisher->replaceStored();
        showNotice(QString());
        setUsable(true);
        TextDrawImage();
    });
    return m_notice;
}

void TextEdit::showNotice(const QString &text)
{
    m_notice->show(lctrlsex::NoticeStrip::Kept, text);
}

/** Shows why something was not done, until the next change of the text. */
void TextEdit::showRefusal(const QString &text)
{
    m_refusedRevision = m_view->document()->revision();
    m_notice->show(lctrlsex::NoticeStrip::Refusal, text);
}

void TextEdit::followGrowth()
{
    const QTextDocument *const document = m_view->document();
    if (document->revision() != m_refusedRevision) { // the end of a refused drop announces one too
        m_notice->clear(lctrlsex::NoticeStrip::Refusal);
    }
    if (!m_publisher->keepsStored()) {
        m_growthTimer.start();
    }
}

/** Warns while what was typed is stored but could not be opened again. */
void TextEdit::checkGrowth()
{
    const bool isAsLoaded = !m_view->document()->isModified();
    const QString problem =
        isAsLoaded ? QString() : lctrlsex::reopeningProblem(*m_view->document());
    m_notice->clear(lctrlsex::NoticeStrip::Warning);
    if (!problem.isEmpty()) {
        m_notice->show(lctrlsex::NoticeStrip::Warning,
                       tr("This text could not be opened again as it is now: %1").arg(problem));
    }
}

void TextEdit::setUsable(bool on)
{
    m_view->setReadOnly(!on);
    m_view->setEnabled(on || m_publisher->keepsStored());
    m_toolBar->setEnabled(on);
}

void TextEdit::CreateConnect()
{
    connect(LTranslation::instance(), SIGNAL(LanguageChanged()), this, SLOT(Translate()));
    connect(m_view, SIGNAL(PageChange(uint, uint)), this, SLOT(PageChanged(uint, uint)));
    connect(m_view, SIGNAL(TextFontNameChanged(const QString &)), this,
            SLOT(TextFontNameChanged(const QString &)));
    connect(m_view, SIGNAL(TextColorChanged(uint)), this, SLOT(TextColorChanged(uint)));
    connect(m_view, SIGNAL(TextBackgroundColorChanged(uint)), this,
            SLOT(TextBackgroundColorChanged(uint)));
    connect(m_view, SIGNAL(TextHAlignmentChanged(uint)), this, SLOT(TextHAlignmentChanged(uint)));
    connect(m_view, SIGNAL(TextVAlignmentChanged(uint)), this, SLOT(TextVAlignmentChanged(uint)));
    connect(m_view, SIGNAL(TextBoldFlagChanged(bool)), this, SLOT(TextBoldFlagChanged(bool)));
    connect(m_view, SIGNAL(TextItalicFlagChanged(bool)), this, SLOT(TextItalicFlagChanged(bool)));
    connect(m_view, SIGNAL(TextUnderlineFlagChanged(bool)), this,
            SLOT(TextUnderlineFlagChanged(bool)));
    connect(m_view, SIGNAL(TextWordSpacingChange(int)), this, SLOT(TextWordSpacingChanged(int)));
    connect(m_view, SIGNAL(TextLineSpacingChange(int)), this, SLOT(TextLineSpacingChanged(int)));
    connect(m_view, SIGNAL(TableSplitCell(bool)), this, SLOT(TableSplitCell(bool)));
    connect(m_view, SIGNAL(cursorPositionChanged()), this, SLOT(CursorPositionFontStatusMarked()));
    // Queued, so that the edit that caused it has ended.
    connect(m_view, SIGNAL(textChanged()), this, SLOT(TextChanged()), Qt::QueuedConnection);
    connect(m_view, &QTextEdit::textChanged, this, &TextEdit::followGrowth);
    connect(m_view, SIGNAL(InsertCopyText(QString)), this, SLOT(InsertCopyText(QString)));
    connect(m_view, &LRichViewEdit::fieldsPasted, this, &TextEdit::pasteFields);
    connect(m_view, &LRichViewEdit::insertionRefused, this, &TextEdit::showRefusal);
    connect(m_view, SIGNAL(InsertFieldNameSignal(QString)), this,
            SLOT(ONInsertFieldNameChanged(QString)));
    connect(m_view, SIGNAL(TableTypeChangeSignal(LUM_EditInterface::LTableProperties)), this,
            SLOT(OnTableInfoChange(LUM_EditInterface::LTableProperties)));
    connect(m_binding.get(), SIGNAL(sourcePicked(QAction *)), this,
            SLOT(ONDataSourceNameChanged(QAction *)));
    connect(m_binding.get(), SIGNAL(fieldPicked(QAction *)), this,
            SLOT(ONFieldNameChanged(QAction *)));
    connect(m_binding.get(), SIGNAL(stylePicked(QAction *)), this,
            SLOT(ONConditionStyleChanged(QAction *)));
    connect(m_conversion.get(), &lctrlsex::ItemConversion::ended, this, &TextEdit::conversionEnded);
}

void TextEdit::Translate()
{
    m_toolBar->translate();
    translateTable();
    m_binding->retranslate();
    m_notice->translate();
    showNotice(m_publisher->notice());
    m_growthTimer.start();
    m_view->setAccessibleName(tr("Text"));
}

bool TextEdit::Contain(int value)
{
    Q_UNUSED(value)
    return false;
}

bool TextEdit::NotContain(int value)
{
    Q_UNUSED(value)
    return true;
}

void TextEdit::UpdateBottonMode(int mode, bool apply)
{
    if (apply) {
        m_singleLine = mode == LTextEffectNode::SingleLine;
    }
    m_toolBar->showFormattingActions();
}

bool TextEdit::isAttached(int attachment) const
{
    return attachment == m_attachment && !m_node.isNull();
}

bool TextEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_view || event->type() != QEvent::KeyPress || m_view->isReadOnly()) {
        return QWidget::eventFilter(watched, event);
    }
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (m_singleLine && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) {
        return true;
    }
    if (isTab(key) && moveInTable(key.key() == Qt::Key_Tab)) {
        return true;
    }
    const QTextCursor cursor = m_view->textCursor();
    if (cursor.hasSelection()) {
        return QWidget::eventFilter(watched, event);
    }
    const bool isInvisible = lctrlsex::isInvisible(cursor.charFormat());
    if (isInvisible) {
        rebuildTypingFormat();
    }
    return editByKey(key, isInvisible) || QWidget::eventFilter(watched, event);
}

/** Makes the edit of @p key where more than that edit belongs to its undo step; else false. */
bool TextEdit::editByKey(const QKeyEvent &key, bool isLookNew)
{
    const lctrlsex::KeyEdit edit = lctrlsex::keyEditOf(key, m_view->textCursor());
    if (edit.isNone()) {
        return false;
    }
    m_merger->merge(); // what a selection held up belongs to a step before this one
    const bool setsHeight = isLookNew && !m_singleLine && !edit.text.isEmpty();
    return m_format->editByKey(edit, setsHeight ? m_toolBar->lineSpacing() : 0);
}

void TextEdit::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_firstShow = false;
}
