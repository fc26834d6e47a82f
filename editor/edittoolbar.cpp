#include "edittoolbar.h"

#include "coloricon.h"
#include "fontnames.h"
#include "toolbarwidgets.h"

#include <QActionGroup>
#include <QApplication>
#include <QFontInfo>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

namespace lctrlsex {

namespace {

constexpr int HeadSpace = 5;
constexpr int LeastLineSpacing = 100;
constexpr int MostLineSpacing = 195;
constexpr int MostWordSpacing = 99;

// Places in the list below.
constexpr int FirstAlign = 6;
constexpr int FirstVAlign = 10;
constexpr int AfterVAlign = 13;
constexpr int AfterAll = 16;

} // namespace

const QVector<EditToolBar::Entry> &EditToolBar::entries()
{
    static const QVector<Entry> list = {
        {"actionTextColor", QT_TR_NOOP("&Color..."), QT_TR_NOOP("Text Color"), nullptr,
         ":/images/text_color.png", false, 0, SLOT(textColor()), 0},
        {"actionTextBgcolor", QT_TR_NOOP("Text Background Color"),
         QT_TR_NOOP("Text Background Color..."), nullptr, ":images/TextBgcolor.png", false, 0,
         SLOT(TextBgcolor()), 0},
        {"actionClearTextBgcolor", QT_TR_NOOP("Clear Background Color"),
         QT_TR_NOOP("Clear Text Background Color"), nullptr, ":images/actionClearTextBgcolor.png",
         false, 0, SLOT(ClearTextBgcolor()), 0},
        {"actionTextBold", QT_TR_NOOP("&Bold"), QT_TR_NOOP("Text Bold"), "format-text-bold",
         ":/images/textbold.png", true, Qt::Key_B, SLOT(textBold()), 0},
        {"actionTextItalic", QT_TR_NOOP("&Italic"), QT_TR_NOOP("Text Italic"), "format-text-italic",
         ":/images/textitalic.png", true, Qt::Key_I, SLOT(textItalic()), 0},
        {"actionTextUnderline", QT_TR_NOOP("&Underline"), QT_TR_NOOP("Text Underline"),
         "format-text-underline", ":/images/textunder.png", true, Qt::Key_U, SLOT(textUnderline()),
         0},
        {"actionAlignLeft", QT_TR_NOOP("&Left"), QT_TR_NOOP("Align Left"), "format-justify-left",
         ":/images/textleft.png", true, Qt::Key_L, nullptr, Qt::AlignLeft},
        {"actionAlignCenter", QT_TR_NOOP("C&enter"), QT_TR_NOOP("Align Center"),
         "format-justify-center", ":/images/textcenter.png", true, Qt::Key_E, nullptr,
         Qt::AlignHCenter},
        {"actionAlignRight", QT_TR_NOOP("&Right"), QT_TR_NOOP("Align Right"),
         "format-justify-right", ":/images/textright.png", true, Qt::Key_R, nullptr,
         Qt::AlignRight},
        {"actionAlignJustify", QT_TR_NOOP("&Justify"), QT_TR_NOOP("Align Justify"),
         "format-justify-fill", ":/images/textjustify.png", true, Qt::Key_J, nullptr,
         Qt::AlignJustify},
        {"actionContentAlignBottom", QT_TR_NOOP("Content Align Bottom"),
         QT_TR_NOOP("Content Align Bottom"), nullptr, ":/images/ContentAlignBottom", true, 0,
         nullptr, Qt::AlignBottom},
        {"actionContentAlignCenter", QT_TR_NOOP("Content Align Center"),
         QT_TR_NOOP("Content Align Center"), nullptr, ":/images/ContentAlignCenter", true, 0,
         nullptr, Qt::AlignVCenter},
        {"actionContentAlignTop", QT_TR_NOOP("Content Align Top"), QT_TR_NOOP("Content Align Top"),
         nullptr, ":/images/ContentAlignTop", true, 0, nullptr, Qt::AlignTop},
        {"actionEditorBgColor", QT_TR_NOOP("Editor Background Color"),
         QT_TR_NOOP("Editor Background Color"), nullptr, nullptr, false, 0, SLOT(EditorBgColor()),
         0},
        {"actionTransBgColor", QT_TR_NOOP("Transparent Background"),
         QT_TR_NOOP("Transparent Background"), nullptr, ":images/Transparent.png", true, 0,
         SLOT(TransBgColor()), 0},
        {"actionUseHollow", QT_TR_NOOP("Hollow"), QT_TR_NOOP("Hollow"), nullptr,
         ":/images/hollow.png", true, 0, SLOT(UseHollow()), 0},
        {"actionStroke", QT_TR_NOOP("Stroke"), QT_TR_NOOP("Stroke"), nullptr, ":images/stroke.png",
         false, 0, nullptr, 0},
        {"actionStrokeColor", QT_TR_NOOP("Stroke Color..."), QT_TR_NOOP("Stroke Color..."), nullptr,
         ":/images/stroke_color.png", false, 0, SLOT(StrokeColor()), 0},
        {"actionClearStroke", QT_TR_NOOP("Clear Stroke"), QT_TR_NOOP("Clear Stroke"), nullptr,
         ":/images/null.png", false, 0, SLOT(ClearStrokeColor()), 0},
    };
    return list;
}

EditToolBar::EditToolBar(QToolBar *toolBar, QToolBar *secondRow, QObject *receiver)
    : QObject(toolBar)
    , m_toolBar(toolBar)
    , m_secondRow(secondRow)
    , m_receiver(receiver)
{
    for (QToolBar *row : {m_toolBar, m_secondRow}) {
        row->setStyleSheet(QStringLiteral(
            "QToolBar{border-width: 0px;border-style: solid;border-color: #ff0000;}"));
        // The editor's font is that of its texts; controls look like those of every window.
        row->setFont(QApplication::font());
        row->setIconSize(QSize(16, 16));
    }
}

EditToolBar::~EditToolBar() = default;

void EditToolBar::addSpacer(QToolBar *toolBar, int width)
{
    auto *spacer = new QWidget(toolBar);
    spacer->setFixedWidth(width);
    toolBar->addWidget(spacer);
}

void EditToolBar::setEnabled(bool on)
{
    m_toolBar->setEnabled(on);
    m_secondRow->setEnabled(on);
    for (QAction *action : qAsConst(m_actions)) {
        action->setEnabled(on); // a key reaches an action whose row is disabled
    }
}

void EditToolBar::addEditActions(const QStringList &fonts)
{
    constexpr int Space = 3;
    addSpacer(m_toolBar, HeadSpace);
    m_comboFontAction = new ComboBoxAction(QStringLiteral("comboFont"), this);
    m_comboFontAction->setObjectName(QStringLiteral("comboFontAction"));
    for (const QString &family : fonts) {
        m_comboFontAction->comboBox()->addItem(family, family);
    }
    m_comboFontAction->comboBox()->setSizeAdjustPolicy(
        QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_comboFontAction->comboBox()->setMinimumContentsLength(11);
    m_toolBar->addAction(m_comboFontAction);
    connect(m_comboFontAction->comboBox(), SIGNAL(currentTextChanged(QString)), m_receiver,
            SLOT(textFamily(QString)));
    addSpacer(m_toolBar, Space);
    m_comboSizeAction = new ComboBoxAction(QStringLiteral("comboSize"), this);
    m_comboSizeAction->setObjectName(QStringLiteral("comboSizeAction"));
    const QStringList sizes = offeredSizes();
    for (const QString &size : sizes) {
        m_comboSizeAction->comboBox()->addItem(size, size);
    }
    m_toolBar->addAction(m_comboSizeAction);
    showSize(QFontInfo(QApplication::font()).pointSize());
    connect(m_comboSizeAction->comboBox(), SIGNAL(currentTextChanged(QString)), m_receiver,
            SLOT(textSize(QString)));
    addSpacer(m_toolBar, Space);
    m_toolBar->addSeparator();
    for (ComboBoxAction *box : {m_comboFontAction, m_comboSizeAction}) {
        box->comboBox()->setStyleSheet(
            QStringLiteral("QToolButton{border: 2px inset white;"
                           "border-top: 2px solid #a0a0a0;border-left: 2px solid #a0a0a0;}"));
    }
}

QAction *EditToolBar::make(const Entry &entry)
{
    QIcon icon(QLatin1String(entry.image));
    if (entry.themeIcon != nullptr) {
        icon = QIcon::fromTheme(QLatin1String(entry.themeIcon), icon);
    }
    auto *action = new QAction(icon, QString(), this);
    action->setObjectName(QLatin1String(entry.name));
    if (entry.checkable) {
        action->setCheckable(true);
        action->setPriority(QAction::LowPriority);
    }
    if (entry.key != 0) {
        action->setShortcut(QKeySequence(int(Qt::CTRL) + entry.key));
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    }
    if (entry.align != 0) {
        action->setData(entry.align);
    }
    if (entry.slot != nullptr) {
        connect(action, SIGNAL(triggered()), m_receiver, entry.slot);
    }
    connect(action, SIGNAL(triggered()), m_receiver, SLOT(SetEditFocus()));
    m_actions.insert(action->objectName(), action);
    return action;
}

void EditToolBar::addEntries(int first, int last)
{
    for (int index = first; index < last; ++index) {
        m_toolBar->addAction(make(entries().at(index)));
    }
}

void EditToolBar::addGroup(QActionGroup *group, int first, int last)
{
    group->setExclusive(true);
    for (int index = first; index < last; ++index) {
        group->addAction(make(entries().at(index)));
    }
    m_toolBar->addActions(group->actions());
}

void EditToolBar::addTextActions()
{
    addEntries(0, FirstAlign);
    m_alignGroup = new QActionGroup(this);
    addGroup(m_alignGroup, FirstAlign, FirstVAlign);
    connect(m_alignGroup, SIGNAL(triggered(QAction *)), m_receiver, SLOT(textAlign(QAction *)));
    action(QStringLiteral("actionAlignJustify"))->setVisible(false);
    m_toolBar->addSeparator();
    m_vAlignGroup = new QActionGroup(this);
    addGroup(m_vAlignGroup, FirstVAlign, AfterVAlign);
    connect(m_vAlignGroup, SIGNAL(triggered(QAction *)), m_receiver, SLOT(textVAlign(QAction *)));
    addEntries(AfterVAlign, AfterAll);
    addStroke();
    addSpacer(m_secondRow, HeadSpace);
    m_spxWord =
        addSpinBox(QStringLiteral("spxWord"), QStringLiteral("://images/edit_letter_spacing.png"),
                   0, MostWordSpacing, 1, SLOT(WordSpacingChanged(int)));
    m_spxLine =
        addSpinBox(QStringLiteral("spxLine"), QStringLiteral("://images/edit_line_spacing.png"),
                   LeastLineSpacing, MostLineSpacing, 5, SLOT(LineSpacingChanged(int)));
    showTextColor(Qt::white);
    showEditorBackground(Qt::black);
}

void EditToolBar::addStroke()
{
    m_strokeAction = make(entries().at(AfterAll));
    auto *menu = new QMenu(m_toolBar);
    menu->addAction(make(entries().at(AfterAll + 1)));
    menu->addAction(make(entries().at(AfterAll + 2)));
    m_strokeAction->setMenu(menu);
    m_toolBar->addAction(m_strokeAction);
    if (auto *button = qobject_cast<QToolButton *>(m_toolBar->widgetForAction(m_strokeAction))) {
        button->setPopupMode(QToolButton::InstantPopup);
    }
}

MyWidgetAction *EditToolBar::addSpinBox(const QString &name, const QString &icon, int least,
                                        int most, int step, const char *slot)
{
    auto *action = new MyWidgetAction(name, QIcon(icon), this);
    action->spinBox()->setRange(least, most);
    action->spinBox()->setSingleStep(step);
    m_secondRow->addAction(action);
    connect(action->spinBox(), SIGNAL(valueChanged(int)), m_receiver, slot);
    return action;
}

} // namespace lctrlsex
