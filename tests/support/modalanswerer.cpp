#include "modalanswerer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QtTest>

namespace {

constexpr int Interval = 20;
constexpr int MostLooks = 100;

} // namespace

ModalAnswerer::ModalAnswerer(const QString &button, const QString &dialog)
    : m_button(button)
    , m_dialog(dialog)
{
    connect(&m_timer, &QTimer::timeout, this, &ModalAnswerer::look);
    m_timer.start(Interval);
}

ModalAnswerer::~ModalAnswerer()
{
    if (!m_wasAnswered) {
        QTest::qFail("no modal dialog with that button came", __FILE__, __LINE__);
    }
}

void ModalAnswerer::look()
{
    QWidget *modal = QApplication::activeModalWidget();
    const bool isWanted =
        modal != nullptr && (m_dialog.isEmpty() || modal->objectName() == m_dialog);
    auto *button = isWanted ? modal->findChild<QAbstractButton *>(m_button) : nullptr;
    if (button != nullptr) {
        if (const auto *box = qobject_cast<QMessageBox *>(modal)) {
            m_text = box->text() + QLatin1Char('\n') + box->informativeText();
        }
        m_wasAnswered = true;
        m_timer.stop();
        button->click();
    } else if (++m_looks >= MostLooks) {
        m_timer.stop();
        // A dialog that nobody answers would block the test for ever.
        if (auto *dialog = qobject_cast<QDialog *>(modal)) {
            dialog->reject();
        }
    }
}
