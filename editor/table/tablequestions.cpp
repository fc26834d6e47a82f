#include "tablequestions.h"

#include "tableproperties.h"

#include <QCoreApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPointer>

namespace lctrlsex {

struct TableQuestions
{
    Q_DECLARE_TR_FUNCTIONS(TableQuestions)
};

// Every dialog is on the heap and guarded: it goes with its parent.

bool askTableProperties(QWidget *parent, const QString &title, const QSize &itemSize,
                        LUM_EditInterface::LTableProperties *record, bool isNew)
{
    QPointer<TableProperties> dialog = new TableProperties(parent);
    dialog->setWindowTitle(title);
    dialog->setItemSize(itemSize);
    dialog->setProperties(isNew ? nullptr : record, isNew);
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog != nullptr;
    if (isAccepted) {
        *record = dialog->value();
    }
    delete dialog;
    return isAccepted;
}

int askSplitCount(QWidget *parent, bool vertical)
{
    constexpr int least = 2;
    constexpr int most = 100;
    QPointer<QInputDialog> dialog = new QInputDialog(parent);
    dialog->setInputMode(QInputDialog::IntInput);
    dialog->setWindowTitle(vertical ? TableQuestions::tr("Split Vertically")
                                    : TableQuestions::tr("Split Horizontally"));
    dialog->setLabelText(vertical ? TableQuestions::tr("Please enter the number of rows: ")
                                  : TableQuestions::tr("Please enter the number of columns: "));
    dialog->setIntRange(least, most);
    dialog->setIntValue(least);
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog != nullptr;
    const int number = isAccepted ? dialog->intValue() : 0;
    delete dialog;
    return number;
}

void warnOfTable(QWidget *parent, const QString &text)
{
    QPointer<QMessageBox> box = new QMessageBox(
        QMessageBox::Warning, TableQuestions::tr("Insert Table"), text, QMessageBox::Ok, parent);
    box->exec();
    delete box;
}

} // namespace lctrlsex
