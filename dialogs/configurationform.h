#pragma once

#include <QMetaType>
#include <QSize>
#include <QTreeWidgetItem>

class QDialog;
class QDialogButtonBox;
class QKeyEvent;
class QPushButton;
class QToolButton;
class QTreeWidget;
class QVBoxLayout;

namespace lctrlsex {

/**
 * What both settings dialogs are made of: the button that adds an item, the tree of the items, and
 * OK and Cancel. Everything belongs to the dialog.
 */
struct ConfigurationForm
{
    /**
     * Lays the widgets into @p dialog and takes the help button off its title bar. The tree selects
     * whole rows, has no indentation, and what gets the focus in it is scrolled to.
     */
    ConfigurationForm(QDialog *dialog, const QStringList &headers);

    QVBoxLayout *layout;
    QPushButton *addButton;
    QTreeWidget *tree;
    QDialogButtonBox *buttonBox;
};

/** How the headers of both trees look, as a rule of a style sheet. */
constexpr char headerStyle[] = "QHeaderView::section { background: white; color: #555; "
                               "border: 1px solid #e0e0e0; padding: 1px; font-weight: bold; }";

/** A tool button for a cell of @p row, with the dynamic property "rowItem"; without a parent. */
[[nodiscard]] QToolButton *makeRowButton(QTreeWidgetItem *row, const QString &icon,
                                         const QString &toolTip);
[[nodiscard]] QToolButton *makeAddButton(QTreeWidgetItem *row);
[[nodiscard]] QToolButton *makeDeleteButton(QTreeWidgetItem *row);

/** The row of @p sender's property "rowItem"; null when it is no row of @p tree any more. */
[[nodiscard]] QTreeWidgetItem *rowOf(const QObject *sender, const QTreeWidget *tree);

/** Says @p hint in the middle of @p tree while it has no rows. */
void setEmptyHint(QTreeWidget *tree, const QString &hint);

/**
 * Where the application has dark colours, gives @p widget and everything in it light ones, for a
 * place with a white ground. One by one, because a palette does not reach what has a style sheet.
 */
void lightenOnDark(QWidget *widget);

/** Gives @p dialog its @p preferred size, or that of its screen when that is smaller. */
void fitToScreen(QDialog *dialog, const QSize &preferred);

/**
 * Whether @p event is Enter pressed in a cell of @p tree: it ends the work on that cell and must
 * not reach the dialog's default button.
 */
[[nodiscard]] bool isEnterInCell(const QKeyEvent *event, const QTreeWidget *tree);

/** Keeps the widths of the columns that a user can change, under @p name in the user's data. */
void saveColumnWidths(const QTreeWidget *tree, const QString &name);
/** Sets them again; leaves what it is when there are none of the same columns. */
void restoreColumnWidths(QTreeWidget *tree, const QString &name);

} // namespace lctrlsex

Q_DECLARE_METATYPE(QTreeWidgetItem *)
