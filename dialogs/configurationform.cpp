#include "configurationform.h"

#include "lappconfig.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace lctrlsex {

namespace {

constexpr char rowItemProperty[] = "rowItem";
/** What the frame of a window and a task bar may take of a screen. */
constexpr QSize screenMargin(16, 48);

struct ConfigurationTexts
{
    Q_DECLARE_TR_FUNCTIONS(ConfigurationForm)
};

QTreeWidgetItem *rowAround(const QTreeWidget *tree, const QWidget *cell)
{
    const QPoint centre = cell->mapTo(tree->viewport(), cell->rect().center());
    return tree->itemAt(centre);
}

/** Makes the row of the widget with the focus current and brings all of the widget into view. */
void followFocus(QTreeWidget *tree, const QWidget *focused)
{
    if (focused == nullptr || focused == tree->viewport() ||
        !tree->viewport()->isAncestorOf(focused)) {
        return;
    }
    QTreeWidgetItem *row = rowAround(tree, focused);
    if (row != nullptr) {
        const int column =
            tree->columnAt(focused->mapTo(tree->viewport(), focused->rect().center()).x());
        tree->setCurrentItem(row, qMax(0, column));
        tree->scrollTo(tree->currentIndex());
    }
}

QString settingsFile()
{
    return LAppConfig::AppDataDir() + QStringLiteral("/dialogs.ini");
}

QString widthsKey(const QString &name)
{
    return name + QStringLiteral("/columnWidths");
}

} // namespace

ConfigurationForm::ConfigurationForm(QDialog *dialog, const QStringList &headers)
    : layout(new QVBoxLayout(dialog))
    , addButton(new QPushButton(QIcon(QStringLiteral(":/images/Add.png")),
                                ConfigurationTexts::tr("Add configuration item"), dialog))
    , tree(new QTreeWidget(dialog))
    , buttonBox(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog))
{
    dialog->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    addButton->setAutoDefault(false);
    tree->setHeaderLabels(headers);
    tree->setSelectionBehavior(QAbstractItemView::SelectRows);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->setIndentation(0);
    tree->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    tree->setContextMenuPolicy(Qt::CustomContextMenu);
    buttonBox->setStyleSheet(QStringLiteral("QDialogButtonBox { background: transparent; }"));
    layout->addWidget(addButton, 0, Qt::AlignLeft);
    layout->addWidget(tree, 1);
    layout->addWidget(buttonBox);
    QObject::connect(buttonBox, SIGNAL(accepted()), dialog, SLOT(accept()));
    QObject::connect(buttonBox, SIGNAL(rejected()), dialog, SLOT(reject()));
    QTreeWidget *const view = tree;
    QObject::connect(qApp, &QApplication::focusChanged, view,
                     [view](QWidget *, QWidget *focused) { followFocus(view, focused); });
}

QToolButton *makeRowButton(QTreeWidgetItem *row, const QString &icon, const QString &toolTip)
{
    auto *button = new QToolButton;
    button->setIcon(QIcon(icon));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setProperty(rowItemProperty, QVariant::fromValue(row));
    return button;
}

QToolButton *makeAddButton(QTreeWidgetItem *row)
{
    return makeRowButton(row, QStringLiteral(":/images/Add.png"),
                         ConfigurationTexts::tr("Add conditions for this configuration item"));
}

QToolButton *makeDeleteButton(QTreeWidgetItem *row)
{
    return makeRowButton(row, QStringLiteral(":/images/Del.png"),
                         ConfigurationTexts::tr("Delete this row"));
}

// A widget of a removed row lives until the event loop comes by, and may be clicked again.
QTreeWidgetItem *rowOf(const QObject *sender, const QTreeWidget *tree)
{
    if (sender == nullptr) {
        return nullptr;
    }
    auto *const row = sender->property(rowItemProperty).value<QTreeWidgetItem *>();
    for (QTreeWidgetItemIterator each(const_cast<QTreeWidget *>(tree)); *each != nullptr; ++each) {
        if (*each == row) {
            return row;
        }
    }
    return nullptr;
}

void setEmptyHint(QTreeWidget *tree, const QString &hint)
{
    auto *label = new QLabel(hint, tree->viewport());
    label->setObjectName(QStringLiteral("EmptyHint"));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setEnabled(false);
    auto *layout = new QVBoxLayout(tree->viewport());
    layout->addWidget(label);
    const auto show = [tree, label] {
        label->setVisible(tree->topLevelItemCount() == 0);
    };
    for (auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        QObject::connect(tree->model(), signal, label, show);
    }
    QObject::connect(tree->model(), &QAbstractItemModel::modelReset, label, show);
}

void lightenOnDark(QWidget *widget)
{
    if (QApplication::palette().color(QPalette::Window).lightness() >= 128) {
        return;
    }
    const QPalette light(QColor(239, 239, 239), Qt::white);
    widget->setPalette(light);
    const QList<QWidget *> children = widget->findChildren<QWidget *>();
    for (QWidget *child : children) {
        child->setPalette(light);
    }
}

void fitToScreen(QDialog *dialog, const QSize &preferred)
{
    const QScreen *screen =
        dialog->screen() != nullptr ? dialog->screen() : QGuiApplication::primaryScreen();
    const QSize room = screen != nullptr ? screen->availableSize() - screenMargin : preferred;
    dialog->resize(preferred.boundedTo(room));
}

bool isEnterInCell(const QKeyEvent *event, const QTreeWidget *tree)
{
    const QWidget *focused = tree->window()->focusWidget(); // whether or not the window is active
    return (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
           focused != nullptr && (focused == tree || tree->isAncestorOf(focused));
}

void saveColumnWidths(const QTreeWidget *tree, const QString &name)
{
    QStringList widths;
    for (int column = 0; column < tree->columnCount(); ++column) {
        widths.append(QString::number(tree->columnWidth(column)));
    }
    QSettings(settingsFile(), QSettings::IniFormat).setValue(widthsKey(name), widths);
}

void restoreColumnWidths(QTreeWidget *tree, const QString &name)
{
    constexpr int widest = 2000;
    const QStringList widths =
        QSettings(settingsFile(), QSettings::IniFormat).value(widthsKey(name)).toStringList();
    if (widths.size() != tree->columnCount()) {
        return;
    }
    for (int column = 0; column < widths.size(); ++column) {
        const int width = widths.at(column).toInt();
        if (width > 0 && width <= widest &&
            tree->header()->sectionResizeMode(column) == QHeaderView::Interactive) {
            tree->setColumnWidth(column, width);
        }
    }
}

} // namespace lctrlsex
