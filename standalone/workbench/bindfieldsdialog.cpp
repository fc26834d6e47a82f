#include "bindfieldsdialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>

namespace workbench {

BindFieldsDialog::BindFieldsDialog(const QString &key, const QStringList &fields, QWidget *parent)
    : QDialog(parent)
    , m_before(key.left(key.lastIndexOf(QLatin1Char('{')) + 1))
    , m_behind(key.mid(key.lastIndexOf(QLatin1Char('}'))))
    , m_fields(new QListWidget(this))
    , m_key(new QLabel(this))
{
    setObjectName(QStringLiteral("BindFieldsDialog"));
    setWindowTitle(tr("Bind Table"));
    auto *intro = new QLabel(tr("Fields that the table shows, one a cell, in this order:"), this);
    intro->setWordWrap(true);
    m_fields->setObjectName(QStringLiteral("BindFields"));
    m_fields->setDragDropMode(QAbstractItemView::InternalMove);
    for (const QString &field : fields) {
        auto *item = new QListWidgetItem(field, m_fields);
        item->setCheckState(Qt::Checked);
    }
    m_fields->setCurrentRow(0);
    auto *up = new QPushButton(tr("Move &Up"), this);
    auto *down = new QPushButton(tr("Move &Down"), this);
    connect(up, &QPushButton::clicked, this, [this] { move(-1); });
    connect(down, &QPushButton::clicked, this, [this] { move(1); });
    auto *side = new QVBoxLayout;
    side->addWidget(up);
    side->addWidget(down);
    side->addStretch(1);
    auto *row = new QHBoxLayout;
    row->addWidget(m_fields, 1);
    row->addLayout(side);
    m_key->setObjectName(QStringLiteral("BindKey"));
    m_key->setTextFormat(Qt::PlainText);
    m_key->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("BindButtons"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addWidget(intro);
    column->addLayout(row, 1);
    column->addWidget(m_key);
    column->addWidget(buttons);
    connect(m_fields, &QListWidget::itemChanged, this, &BindFieldsDialog::update);
    connect(m_fields->model(), &QAbstractItemModel::rowsMoved, this, &BindFieldsDialog::update);
    resize(380, 360);
    update();
}

void BindFieldsDialog::move(int by)
{
    const int row = m_fields->currentRow();
    if (row < 0 || row + by < 0 || row + by >= m_fields->count()) {
        return;
    }
    m_fields->insertItem(row + by, m_fields->takeItem(row));
    m_fields->setCurrentRow(row + by);
    update();
}

QString BindFieldsDialog::key() const
{
    QStringList chosen;
    for (int row = 0; row < m_fields->count(); ++row) {
        if (m_fields->item(row)->checkState() == Qt::Checked) {
            chosen.append(m_fields->item(row)->text());
        }
    }
    return chosen.isEmpty() ? QString() : m_before + chosen.join(QLatin1Char(',')) + m_behind;
}

void BindFieldsDialog::update()
{
    const QString chosen = key();
    m_key->setText(chosen.isEmpty() ? tr("Choose at least one field.") : chosen);
    findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->setEnabled(!chosen.isEmpty());
}

QString BindFieldsDialog::ask(const QString &key, QWidget *parent)
{
    const int open = key.lastIndexOf(QLatin1Char('{'));
    const int close = key.lastIndexOf(QLatin1Char('}'));
    if (open < 0 || close < open) {
        return key;
    }
    const QStringList fields =
        key.mid(open + 1, close - open - 1).split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (fields.size() < 2) {
        return key;
    }
    const QPointer<BindFieldsDialog> dialog(new BindFieldsDialog(key, fields, parent));
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    const QString chosen = dialog && isAccepted ? dialog->key() : QString();
    delete dialog;
    return chosen;
}

} // namespace workbench
