#include "clientform.h"

#include "namedwidget.h"
#include "textedit.h"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace lctrlsex {

// The style sheets paint both bars light whatever the palette, so that what stands on them must be
// dark whatever the palette. Below a style sheet nothing inherits a palette.
static void setLightPalette(QWidget *widget)
{
    const QColor ground(0xe8, 0xe8, 0xe8);
    const QColor text(0x20, 0x20, 0x20);
    QPalette palette(ground, ground);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
    widget->setPalette(palette);
}

static QToolButton *makeIconButton(const QString &name, const QString &icon, QWidget *parent)
{
    auto *const button = make<QToolButton>(name, parent);
    button->setIcon(QIcon(icon));
    button->setAutoRaise(true);
    return button;
}

ClientForm::ClientForm(QFrame *client)
    : m_client(client)
{
    client->setObjectName(QStringLiteral("LTextClient"));
    MainLayout = new QHBoxLayout(client);
    MainLayout->setObjectName(QStringLiteral("MainLayout"));
    MainLayout->setContentsMargins(0, 0, 0, 0);
    MainLayout->setSpacing(0);
    buildEditorArea();
    buildSideBar();
    MainLayout->addWidget(BtnBg);
    MainLayout->addWidget(EditBg, 1);
    buildAttributes();
}

ClientForm::~ClientForm()
{
    delete TextAttributesBg;
    delete BtnBg;
    delete EditBg;
}

void ClientForm::buildEditorArea()
{
    EditBg = make<QWidget>(QStringLiteral("EditBg"), m_client);
    EditBg->setStyleSheet(QStringLiteral("#EditBg{\n"
                                         "border-left-width: 1px;\n"
                                         "border-style: solid;\n"
                                         "border-color: #aaaaaa;\n"
                                         "}"));
    buildPlayType();
    buildPageBar();
    constexpr int points = 16;
    wgtTextEditor = make<TextEdit>(QStringLiteral("wgtTextEditor"), EditBg);
    wgtTextEditor->setFont(QFont(QStringLiteral("华文宋体"), points));

    auto *const layout = new QVBoxLayout(EditBg);
    layout->setContentsMargins(1, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(widget);
    layout->addWidget(wgtTextEditor, 1);
    layout->addWidget(frame_2);
}

void ClientForm::buildPlayType()
{
    constexpr int longest = 86400;
    constexpr int mostRounds = 9999;
    widget = make<QWidget>(QStringLiteral("widget"), EditBg);
    rbByTime = make<QRadioButton>(QStringLiteral("rbByTime"), widget);
    sbByTime = make<QSpinBox>(QStringLiteral("sbByTime"), widget);
    sbByTime->setRange(1, longest);
    rbByCount = make<QRadioButton>(QStringLiteral("rbByCount"), widget);
    sbByCount = make<QSpinBox>(QStringLiteral("sbByCount"), widget);
    sbByCount->setRange(1, mostRounds);
    ContinuousMove = make<QCheckBox>(QStringLiteral("ContinuousMove"), widget);

    auto *const layout = new QHBoxLayout(widget);
    layout->addWidget(rbByTime);
    layout->addWidget(sbByTime);
    layout->addWidget(rbByCount);
    layout->addWidget(sbByCount);
    layout->addWidget(ContinuousMove);
    layout->addStretch();
}

void ClientForm::buildPageBar()
{
    frame_2 = make<QFrame>(QStringLiteral("frame_2"), EditBg);
    frame_2->setStyleSheet(
        QStringLiteral("#frame_2{background-color: qlineargradient(x1: 0, y1: 1, x2: 0, y2: 0,\n"
                       "stop: 0 #e8e8e8, stop: 1 #c8c8c8);\n"
                       "border-top: 1px solid #aaaaaa;\n"
                       "border-bottom: 1px solid #aaaaaa;}"));
    lblDisplay_4 = make<QLabel>(QStringLiteral("lblDisplay_4"), frame_2);
    PrePage = makeIconButton(QStringLiteral("PrePage"), QStringLiteral(":/images/arrow_left.png"),
                             frame_2);
    PageTip = make<QLabel>(QStringLiteral("PageTip"), frame_2);
    PageTip->setAlignment(Qt::AlignCenter);
    // Wide enough for two digits each, so that the buttons stay in place while paging.
    PageTip->setMinimumWidth(PageTip->fontMetrics().horizontalAdvance(QStringLiteral(" 00 / 00 ")));
    NextPage = makeIconButton(QStringLiteral("NextPage"),
                              QStringLiteral(":/images/arrow_right.png"), frame_2);

    for (QWidget *child : {static_cast<QWidget *>(lblDisplay_4), static_cast<QWidget *>(PrePage),
                           static_cast<QWidget *>(PageTip), static_cast<QWidget *>(NextPage)}) {
        setLightPalette(child);
    }

    constexpr int margin = 3;
    auto *const layout = new QHBoxLayout(frame_2);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addStretch();
    layout->addWidget(lblDisplay_4);
    layout->addWidget(PrePage);
    layout->addWidget(PageTip);
    layout->addWidget(NextPage);
    layout->addStretch();
}

void ClientForm::buildSideBar()
{
    BtnBg = make<QWidget>(QStringLiteral("BtnBg"), m_client);
    BtnBg->setStyleSheet(QStringLiteral("#BtnBg{\n"
                                        "background-color: rgb(242, 242, 242);\n"
                                        "border-right-width: 1px;\n"
                                        "border-style: solid;\n"
                                        "border-color: #cccccc;}"));
    constexpr int iconSide = 24;
    constexpr int margin = 6;
    Return =
        makeIconButton(QStringLiteral("Return"), QStringLiteral(":/images/edit-back.png"), BtnBg);
    setLightPalette(Return);
    Return->setIconSize(QSize(iconSide, iconSide));
    Return->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);

    auto *const layout = new QVBoxLayout(BtnBg);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(Return);
    layout->addStretch();
}

void ClientForm::setBound(bool bound)
{
    widget->setEnabled(bound);
    TextAttributesContentBg->setEnabled(bound);
}

} // namespace lctrlsex
