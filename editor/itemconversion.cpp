#include "itemconversion.h"

#include "textprogresswidget.h"

#include <QTextDocument>
#include <QTextEdit>

#include <utility>

namespace lctrlsex {

namespace {

constexpr int ShowDelay = 300; // milliseconds; what is done by then needs no window

} // namespace

ItemConversion::ItemConversion(QTextEdit *view)
    : m_view(view)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(ShowDelay);
    connect(&m_delay, &QTimer::timeout, this, &ItemConversion::showProgress);
}

ItemConversion::~ItemConversion()
{
    const QPointer<TextProgressWidget> progress = m_progress;
    stop();
    delete progress.data(); // its code may be unloaded before the event loop comes to it
}

void ItemConversion::start(TextOperatType type)
{
    if (isRunning() || m_view.isNull()) {
        return;
    }
    m_type = type;
    m_wasReadOnly = m_view->isReadOnly();
    m_view->setReadOnly(true);
    m_revision = m_view->document()->revision();
    m_thread = new TextEditThread(this);
    m_thread->SetTpye(type);
    QTextDocument *const copy = detachedCopy(*m_view->document()).release();
    copy->setParent(m_thread); // which may outlive the conversion
    m_thread->SetDocument(copy);
    const int run = ++m_run;
    connect(m_thread, &QThread::finished, this, [this, run] {
        if (isRunning() && run == m_run) {
            finish();
        }
    });
    m_delay.start();
    m_thread->ThreadStart();
}

void ItemConversion::showProgress()
{
    m_progress = new TextProgressWidget(m_view.isNull() ? nullptr : m_view->window());
    m_progress->SetAllowClose(true);
    m_progress->SetCloseSymbol(true);
    m_progress->SetBusy(true); // until it says how far it is
    connect(m_thread, &TextEditThread::emitProcessValue, m_progress.data(),
            &TextProgressWidget::SetProgressVaule, Qt::QueuedConnection);
    connect(m_progress.data(), &TextProgressWidget::CancleOperat, this, &ItemConversion::cancel);
    m_progress->show();
}

void ItemConversion::stop()
{
    if (isRunning()) {
        m_thread->ThreadQuit();
        letGo();
    }
}

void ItemConversion::cancel()
{
    if (isRunning()) {
        stop();
        emit ended(m_type, Cancelled);
    }
}

void ItemConversion::finish()
{
    const QPointer<ItemConversion> self(this);
    const int run = m_run;
    const Outcome outcome = apply();
    if (self != nullptr && isRunning() && run == m_run) { // who hears of a change may do anything
        letGo();
        emit ended(m_type, outcome);
    }
}

ItemConversion::Outcome ItemConversion::apply()
{
    if (m_view.isNull() || m_view->document()->revision() != m_revision) {
        return Edited;
    }
    if (m_type == DocAntialias) {
        return Done;
    }
    const auto converted = m_thread->converted();
    if (!converted) {
        return Refused;
    }
    return applyColors(m_view->document(), *converted) ? Done : Edited;
}

/** The view is the user's again, the thread is left to its end. */
void ItemConversion::letGo()
{
    TextEditThread *const thread = std::exchange(m_thread, nullptr);
    m_delay.stop();
    if (m_progress != nullptr) {
        m_progress->disconnect(this);
        m_progress->SetCloseSymbol(false);
        m_progress->hide();
        m_progress->deleteLater();
    }
    m_progress = nullptr;
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    if (thread->isFinished()) {
        thread->deleteLater();
    }
    if (!m_view.isNull()) {
        m_view->setReadOnly(m_wasReadOnly);
    }
}

} // namespace lctrlsex
