#include "textprogresswidget.h"

#include "lappconfig.h"
#include "ltranslation.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QProgressBar>

namespace {

constexpr int BarWidth = 300;
constexpr int Spacing = 6;
constexpr int Margin = 7;

} // namespace

TextProgressWidget::TextProgressWidget(QWidget *parent)
    : QDialog(parent)
    , m_bar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("TextProgressWidget"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setModal(true);

    m_bar->setObjectName(QStringLiteral("ProgressBar"));
    m_bar->setValue(0);
    m_bar->setMinimumWidth(BarWidth);
    m_bar->setInvertedAppearance(false);
    m_bar->setTextDirection(QProgressBar::TopToBottom);

    auto *layout = new QGridLayout(this);
    layout->setSpacing(Spacing);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_bar, 0, 0);

    connect(LTranslation::instance(), SIGNAL(LanguageChanged()), this, SLOT(Translate()));
    Translate();
}

void TextProgressWidget::SetAllowClose(bool allow)
{
    m_allowClose = allow;
}

void TextProgressWidget::SetCloseSymbol(bool ask)
{
    m_closeSymbol = ask;
    if (!ask && m_question != nullptr) {
        m_question->reject(); // closes, as it would have without the question
    }
}

void TextProgressWidget::SetBusy(bool busy)
{
    m_bar->setRange(0, busy ? 0 : 100);
}

void TextProgressWidget::SetProgressVaule(int value)
{
    SetBusy(false);
    m_bar->setValue(value);
}

void TextProgressWidget::Translate()
{
    setWindowTitle(tr("Converting the Text"));
    m_bar->setAccessibleName(tr("Progress of the conversion"));
}

void TextProgressWidget::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    const QWidget *window = LAppConfig::instance()->GetMainWindow();
    if (window != nullptr) {
        move(window->x() + (window->width() - width()) / 2,
             window->y() + (window->height() - height()) / 2);
    }
}

void TextProgressWidget::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (!event->spontaneous() && m_question != nullptr) {
        m_question->reject(); // there is nothing left to quit
    }
}

void TextProgressWidget::closeEvent(QCloseEvent *event)
{
    if (!m_allowClose) {
        event->ignore();
        return;
    }
    if (!m_closeSymbol) {
        event->accept();
        return;
    }
    const QPointer<TextProgressWidget> self(this);
    const int answer = askToQuit();
    if (self == nullptr) {
        return;
    }
    if (answer == QMessageBox::Yes) {
        event->accept();
        emit CancleOperat();
    } else if (answer == QMessageBox::No) {
        event->ignore();
        emit IgnoreOperat();
    }
}

void TextProgressWidget::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

/** The button that was pressed; none when the question went away unanswered. */
int TextProgressWidget::askToQuit()
{
    QPointer<QMessageBox> question =
        new QMessageBox(QMessageBox::Question, tr("Exit the program"),
                        tr("File is the conversion, whether to quit the conversion?"),
                        QMessageBox::Yes | QMessageBox::No, this);
    question->setObjectName(QStringLiteral("QuitQuestion"));
    question->setDefaultButton(QMessageBox::No);
    m_question = question;
    const int answer = question->exec();
    if (question == nullptr) { // and this window with it
        return QMessageBox::NoButton;
    }
    delete question;
    return answer;
}
