#include "widgettexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTextDocument>
#include <QToolButton>

namespace {

QString nameOf(const QObject *object)
{
    return object->objectName().isEmpty() ? object->metaObject()->className()
                                          : object->objectName();
}

/** The way from the window to an object, with a number where names are alike. */
QString placeOf(const QObject *object, const QObject *window)
{
    if (object == window || object->parent() == nullptr) {
        return nameOf(object);
    }
    int before = 0;
    for (const QObject *sibling : object->parent()->children()) {
        if (sibling == object) {
            break;
        }
        before += nameOf(sibling) == nameOf(object) ? 1 : 0;
    }
    const QString number = before > 0 ? QString("#%1").arg(before) : QString();
    return placeOf(object->parent(), window) + "/" + nameOf(object) + number;
}

class Collector
{
public:
    explicit Collector(const QWidget *window)
        : m_window(window)
    {}

    void collect()
    {
        addWidget(m_window);
        const auto widgets = m_window->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            addWidget(widget);
        }
        const auto actions = m_window->findChildren<QAction *>();
        for (const QAction *action : actions) {
            addAction(action);
        }
    }

    QMap<QString, QString> texts;

private:
    void add(const QObject *object, const QString &kind, const QString &text)
    {
        if (!text.isEmpty()) {
            texts.insert(placeOf(object, m_window) + " " + kind, text);
        }
    }

    void addAction(const QAction *action)
    {
        if (!action->isSeparator()) {
            add(action, "text", action->text());
            add(action, "tool tip", action->toolTip());
            add(action, "status tip", action->statusTip());
        }
    }

    void addWidget(const QWidget *widget)
    {
        add(widget, "tool tip", widget->toolTip());
        add(widget, "status tip", widget->statusTip());
        add(widget, "accessible name", widget->accessibleName());
        add(widget, "accessible description", widget->accessibleDescription());
        add(widget, "title", widget->windowTitle());
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            add(label, "text", label->text());
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            add(button, "text", button->text());
        } else if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
            add(group, "heading", group->title());
        } else if (const auto *menu = qobject_cast<const QMenu *>(widget)) {
            add(menu, "menu", menu->title());
        } else if (const auto *line = qobject_cast<const QLineEdit *>(widget)) {
            add(line, "placeholder", line->placeholderText());
        } else if (const auto *status = qobject_cast<const QStatusBar *>(widget)) {
            add(status, "message", status->currentMessage());
        } else if (const auto *spin = qobject_cast<const QSpinBox *>(widget)) {
            addSpinBox(spin);
        } else if (const auto *precise = qobject_cast<const QDoubleSpinBox *>(widget)) {
            addSpinBox(precise);
        } else {
            addLists(widget);
        }
    }

    template <typename SpinBox>
    void addSpinBox(const SpinBox *spin)
    {
        add(spin, "unit", spin->prefix() + spin->suffix());
        add(spin, "special value", spin->specialValueText());
    }

    void addLists(const QWidget *widget)
    {
        if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
            for (int i = 0; i < combo->count(); ++i) {
                add(combo, QString("entry %1").arg(i), combo->itemText(i));
            }
        } else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                add(tabs, QString("tab %1").arg(i), tabs->tabText(i));
                add(tabs, QString("tip of tab %1").arg(i), tabs->tabToolTip(i));
            }
        } else if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
            const auto *model = header->model();
            for (int i = 0; !header->isHidden() && model != nullptr && i < header->count(); ++i) {
                add(header, QString("head %1").arg(i),
                    model->headerData(i, header->orientation()).toString());
            }
        } else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
            // The list of a combo box shows what the box was asked for.
            if (view->model() != nullptr &&
                !view->parent()->inherits("QComboBoxPrivateContainer")) {
                addRows(view, view->rootIndex(), "row");
            }
        }
    }

    void addRows(const QAbstractItemView *view, const QModelIndex &parent, const QString &path)
    {
        for (int row = 0; row < view->model()->rowCount(parent); ++row) {
            for (int column = 0; column < view->model()->columnCount(parent); ++column) {
                const QModelIndex index = view->model()->index(row, column, parent);
                const QString place = QString("%1 %2.%3").arg(path).arg(row).arg(column);
                for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole}) {
                    add(view, QString("%1 role %2").arg(place).arg(role),
                        index.data(role).toString());
                }
                addRows(view, index, place);
            }
        }
    }

    const QWidget *m_window;
};

/** Room for a text that the widget cannot do without; null for widgets that elide or scroll. */
QSize needOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        if (label->text().isEmpty()) {
            return {};
        }
        return label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                                 : label->sizeHint();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        const auto *tool = qobject_cast<const QToolButton *>(widget);
        const bool showsText = tool == nullptr || tool->toolButtonStyle() != Qt::ToolButtonIconOnly;
        // A tool button of a tool bar or a dock may be lower than it would like to be.
        return showsText && !button->text().isEmpty() ? QSize(button->sizeHint().width(), 0)
                                                      : QSize();
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        const QRect field = combo->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                           QStyle::SC_ComboBoxEditField, combo);
        const int text = combo->fontMetrics().horizontalAdvance(combo->currentText());
        return {combo->width() + text - field.width(), 0};
    }
    if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
        return {group->minimumSizeHint().width(), 0};
    }
    return {};
}

bool isControl(const QWidget *widget)
{
    return qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget) ||
           qobject_cast<const QComboBox *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget) ||
           (qobject_cast<const QLineEdit *>(widget) &&
            !qobject_cast<const QAbstractSpinBox *>(widget->parentWidget()) &&
            !qobject_cast<const QComboBox *>(widget->parentWidget()));
}

/** The part of a widget that its ancestors let through, in the window's pixels. */
QRect shownRect(const QWidget *widget, const QWidget *window)
{
    QRect rect(widget->mapTo(const_cast<QWidget *>(window), QPoint()), widget->size());
    for (const QWidget *up = widget->parentWidget(); up != nullptr; up = up->parentWidget()) {
        rect &= QRect(up->mapTo(const_cast<QWidget *>(window), QPoint()), up->size());
        if (up == window) {
            break;
        }
    }
    return rect;
}

} // namespace

QMap<QString, QString> textsOf(const QWidget *window)
{
    Collector collector(window);
    collector.collect();
    return collector.texts;
}

QMap<QString, int> choicesOf(const QWidget *window)
{
    QMap<QString, int> choices;
    for (const QComboBox *combo : window->findChildren<QComboBox *>()) {
        choices.insert(placeOf(combo, window), combo->currentIndex());
    }
    return choices;
}

QStringList crampedIn(const QWidget *window)
{
    QStringList faults;
    QVector<const QWidget *> controls;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->window() != window) {
            continue;
        }
        // A dock behind another one's tab waits outside of the window, in a size of no meaning.
        if (widget->mapTo(const_cast<QWidget *>(window), widget->rect().bottomRight()).x() < 0) {
            continue;
        }
        const QSize need = needOf(widget);
        if (need.width() > widget->width() || need.height() > widget->height()) {
            faults.append(QString("%1 needs %2 x %3 and has %4 x %5")
                              .arg(placeOf(widget, window))
                              .arg(need.width())
                              .arg(need.height())
                              .arg(widget->width())
                              .arg(widget->height()));
        }
        if (isControl(widget)) {
            controls.append(widget);
        }
    }
    for (int i = 0; i < controls.size(); ++i) {
        for (int j = i + 1; j < controls.size(); ++j) {
            if (!controls.at(i)->isAncestorOf(controls.at(j)) &&
                !controls.at(j)->isAncestorOf(controls.at(i)) &&
                shownRect(controls.at(i), window).intersects(shownRect(controls.at(j), window))) {
                faults.append(
                    QString("%1 lies upon %2")
                        .arg(placeOf(controls.at(i), window), placeOf(controls.at(j), window)));
            }
        }
    }
    return faults;
}
