#include "ltext_client.h"

#include "conditionalstyles.h"
#include "datasourceconfigmanager.h"
#include "lappconfig.h"
#include "lbutton.h"
#include "lframenode.h"
#include "ltext_client_p.h"
#include "ltranslation.h"
#include "textedit.h"

#include <QApplication>
#include <QDateTime>
#include <QDebug>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QToolButton>
#include <QVector>

namespace Lum {
namespace LTextPlugin {

LTextClient *LTextClient::instance_ = nullptr;

/**
 * A host may leave by exit() and keep its application: nodes that go after that must not be
 * answered, since the toolkit that would lay out and draw is half gone.
 */
class LTextClient::AtExit
{
public:
    AtExit() = default;
    ~AtExit()
    {
        if (instance_) {
            instance_->CutOff();
        }
    }

private:
    Q_DISABLE_COPY(AtExit)
};

LTextClient *LTextClient::instance()
{
    if (!instance_ && qobject_cast<QApplication *>(QCoreApplication::instance())) {
        instance_ = new LTextClient;
        // Widgets must not outlive the application. The host's windows may have gone before and
        // the client with them; the pointer is null then.
        qAddPostRoutine(&LTextClient::deleteInstance);
        static const AtExit atExit;
    }
    return instance_;
}

void LTextClient::deleteInstance()
{
    delete instance_;
}

LTextClient::LTextClient()
    : m_form(std::make_unique<lctrlsex::ClientForm>(this))
    , m_filer(std::make_unique<lctrlsex::StyleFiler>(&m_conditionalStyles))
{
    m_form->BtnBg->hide();
    PreparePanel();
    m_form->widget->hide();
    InitUI();
}

void LTextClient::CutOff()
{
    for (QObject *listener :
         {static_cast<QObject *>(this), static_cast<QObject *>(m_form->wgtTextEditor)}) {
        if (m_node) {
            disconnect(m_node, nullptr, listener, nullptr);
        }
        if (m_frameNode) {
            disconnect(m_frameNode, nullptr, listener, nullptr);
        }
    }
}

LTextClient::~LTextClient()
{
    instance_ = nullptr;
    // What the widgets still say while they go must not come back in here.
    m_node.clear();
    disconnect(m_form->wgtTextEditor, nullptr, this, nullptr);
    disconnect(m_form->TextAttributesBg, nullptr, this, nullptr);
}

void LTextClient::PreparePanel()
{
    constexpr int margin = 10;
    m_form->Random->SetBtnImage(QStringLiteral(":/images/random"),
                                QStringLiteral(":/images/random.png"), margin);
    m_form->NoEffect->SetBtnImage(QStringLiteral(":/images/empty.png"),
                                  QStringLiteral(":/images/empty.png"), margin);
    m_form->identifierLabel->setVisible(LAppConfig::IsSDKVersion());
    m_form->GUID->setVisible(LAppConfig::IsSDKVersion());
}

void LTextClient::InitUI()
{
    ConnectPanel();
    ConnectPlayType();
    connect(m_form->PrePage, SIGNAL(released()), this, SLOT(on_PrePage_released()));
    connect(m_form->NextPage, SIGNAL(released()), this, SLOT(on_NextPage_released()));
    connect(m_form->Return, SIGNAL(clicked()), this, SIGNAL(editFinish()));
    connect(LTranslation::instance(), SIGNAL(LanguageChanged()), this, SLOT(Translate()));
    Translate();
    DataSourceConfigManager *const manager = DataSourceConfigManager::instance();
    connect(manager, SIGNAL(ConfigChanged()), this, SLOT(HandleConfigChanged()));
    connect(manager, SIGNAL(SourceChanged()), m_form->wgtTextEditor, SLOT(OnSourceChanged()),
            Qt::UniqueConnection);
    connect(m_form->wgtTextEditor, SIGNAL(TableBindFieldChanged()), this, SLOT(ShowBoundField()));
    DocumentHasTable(false);
    ShowUnbound();
    m_initialising = false;
}

QWidget *LTextClient::GetClient()
{
    return instance();
}

QWidget *LTextClient::GetAttributesWidget(LNode *node)
{
    m_form->BtnBg->hide();
    BindForWidget(node);
    // Without a parent it would open as a window of its own.
    if (m_form->TextAttributesBg->parentWidget()) {
        m_form->TextAttributesBg->show();
    }
    return m_form->TextAttributesBg;
}

QWidget *LTextClient::GetEditeWidget(LNode *node)
{
    BindForWidget(node);
    m_form->showAttributes();
    m_form->BtnBg->show();
    return this;
}

// Unlike Init it reads a node anew that is bound already.
void LTextClient::BindForWidget(LNode *node)
{
    const QPointer<LTextEffectNode> textNode = qobject_cast<LTextEffectNode *>(node);
    LFrameNode *const frameNode = textNode ? textNode->GetFrameNode() : nullptr;
    const bool changed = BindNode(textNode, textNode ? frameNode : nullptr);
    if (!m_node) {
        m_form->wgtTextEditor->Init(nullptr);
        return;
    }
    ConnectData();
    if (changed) {
        HandleConfigChanged();
    }
    InitAttribues();
}

void LTextClient::Init(LNode *node)
{
    QPointer<LFrameNode> frameNode = qobject_cast<LFrameNode *>(node);
    const QPointer<LTextEffectNode> textNode =
        frameNode ? TextNodeOf(frameNode) : qobject_cast<LTextEffectNode *>(node);
    if (!textNode || textNode == m_node) {
        return;
    }
    if (!frameNode) {
        frameNode = textNode->GetFrameNode();
    }
    if (!textNode) {
        return;
    }
    BindNode(textNode, frameNode);
    const Bound bound(this);
    if (!bound) {
        return;
    }
    m_form->showAttributes();
    m_form->BtnBg->hide();
    ConnectData();
    emit DataSourceConfigManager::instance()->ConfigChanged();
    if (bound) {
        InitAttribues();
    }
}

static void logFrame(const QString &typeText, const QString &name)
{
    // Kept on purpose because those who read the host's logs look for this very place.
    constexpr int line = 43;
    const QString file = QStringLiteral(".\\ltext_client.cpp");
    const QString function = QStringLiteral("Lum::LTextPlugin::LTextClient::Init");
    const QString time =
        QLocale(QLocale::English)
            .toString(QDateTime::currentDateTime(), QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
    const QString place = QStringLiteral("[%1::%2::%3]").arg(file, function, QString::number(line));
    qDebug().noquote() << time << place << typeText << name;
}

LTextEffectNode *LTextClient::TextNodeOf(LFrameNode *frame)
{
    const QPointer<LFrameNode> frameNode(frame);
    const QString typeText = frameNode->TypeText();
    const QString name = frameNode ? frameNode->name() : QString();
    logFrame(typeText, name);
    const QString wanted = frameNode ? frameNode->ChildType() : QString();
    if (!frameNode) {
        return nullptr;
    }
    const QList<LNode *> nodes = frameNode->ChildNodes();
    const QVector<QPointer<LNode>> children(nodes.cbegin(), nodes.cend());
    for (const QPointer<LNode> &child : children) {
        if (child && child->TypeText() == wanted) {
            return qobject_cast<LTextEffectNode *>(child);
        }
    }
    return nullptr;
}

bool LTextClient::BindNode(LTextEffectNode *node, LFrameNode *frameNode)
{
    if (m_frameNode && m_frameNode != frameNode) {
        disconnect(m_frameNode, SIGNAL(FrameChanged()), this, SLOT(OnFrameChanged()));
    }
    m_frameNode = frameNode;
    if (frameNode) {
        connect(frameNode, SIGNAL(FrameChanged()), this, SLOT(OnFrameChanged()),
                Qt::UniqueConnection);
    }
    if (m_node == node) {
        return false;
    }
    if (m_node) {
        disconnect(m_node, SIGNAL(PlayIndexChanged(int, int)), this, SLOT(PageChanged(int, int)));
        disconnect(m_node, SIGNAL(destroyed()), this, SLOT(ShowUnbound()));
    }
    m_node = node;
    AbandonDialogs();
    if (!node) {
        ShowUnbound();
        return true;
    }
    connect(node, SIGNAL(PlayIndexChanged(int, int)), this, SLOT(PageChanged(int, int)));
    connect(node, SIGNAL(destroyed()), this, SLOT(ShowUnbound()));
    m_form->setBound(true);
    const Bound bound(this);
    const int current = bound.value(&LTextEffectNode::GetCurrentPage, 1);
    const int total = bound.value(&LTextEffectNode::GetPageCount, 1);
    if (bound) {
        PageChanged(current, total);
    }
    return true;
}

void LTextClient::ShowUnbound()
{
    m_form->setBound(false);
    PageChanged(1, 1);
}

void LTextClient::Finish()
{
    const QPointer<LTextClient> self(this);
    m_form->wgtTextEditor->Init(nullptr);
    if (self) {
        BindNode(nullptr, nullptr);
    }
}

void LTextClient::InitAttribues()
{
    const Bound bound(this);
    m_textMode = static_cast<LTextEffectNode::LTextPluginType>(
        bound.value(&LTextEffectNode::GetSingleMode, static_cast<int>(m_textMode)));
    m_sourceMode = bound.value(&LTextEffectNode::GetSourceMode, m_sourceMode);
    if (!bound) {
        return;
    }
    const Filling filling(this);
    InitEffectParam();
    if (!bound) {
        return;
    }
    TextEdit *const editor = m_form->wgtTextEditor;
    connect(editor, SIGNAL(DocumentHasTable(bool)), this, SLOT(DocumentHasTable(bool)),
            Qt::UniqueConnection);
    editor->Init(m_node);
    const bool colourful = bound.value(&LTextEffectNode::GetColorfulTextEnable);
    const int mode =
        colourful ? LTextEffectNode::Colorful : bound.value(&LTextEffectNode::GetSingleMode);
    if (bound) {
        editor->UpdateBottonMode(mode, false);
    }
}

QImage LTextClient::getCurImage()
{
    return m_form->wgtTextEditor->getCurrentImage();
}

QImage LTextClient::getIndexImage(int index)
{
    return m_form->wgtTextEditor->getIndexImage(index);
}

void LTextClient::PageChanged(int current, int total)
{
    m_pageCount = qMax(1, total);
    m_currentPage = qMin(m_pageCount, qMax(1, current));
    m_form->PageTip->setText(QStringLiteral("%1 / %2").arg(m_currentPage).arg(m_pageCount));
    m_form->PrePage->setEnabled(m_currentPage >= 2);
    m_form->NextPage->setEnabled(m_currentPage < m_pageCount);
}

void LTextClient::on_PrePage_released()
{
    ShowPage(m_currentPage - 1);
}

void LTextClient::on_NextPage_released()
{
    ShowPage(m_currentPage + 1);
}

void LTextClient::ShowPage(int page)
{
    const Bound bound(this);
    const int count = bound.value(&LTextEffectNode::GetPageCount);
    if (bound) {
        m_form->wgtTextEditor->PageChanged(static_cast<uint>(page), static_cast<uint>(count));
    }
}

void LTextClient::on_GUID_editingFinished()
{
    if (m_node) {
        m_node->SetIdentifier(m_form->GUID->text());
    }
}

void LTextClient::AttributesDestroyed()
{
    // While the panel says that it goes the pointer to it still stands.
    if (sender() != m_form->TextAttributesBg) {
        return;
    }
    m_form->buildAttributes();
    PreparePanel();
    ConnectPanel();
    m_form->setBound(m_node);
    const Filling filling(this);
    Translate();
    InitEffectParam();
    ConnectData();
    m_fieldEntries.clear();
    FillFieldChooser();
    DocumentHasTable(m_hasTable);
}

} // namespace LTextPlugin
} // namespace Lum
