#include "conditioncells.h"

#include "celllabel.h"
#include "colorbutton.h"
#include "configurationform.h"
#include "expressioneditor.h"
#include "lappconfig.h"
#include "treecells.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QSpinBox>
#include <QToolButton>
#include <QTreeWidget>
#include <QWheelEvent>

namespace lctrlsex {

namespace {

constexpr int leastFontSize = 6;
constexpr int mostFontSize = 72;

/** A combo box that a turn of the wheel over the tree does not change by the way. */
template <typename Box>
Box *makeQuietBox()
{
    class QuietBox : public Box
    {
    protected:
        void wheelEvent(QWheelEvent *event) override
        {
            if (Box::hasFocus()) {
                Box::wheelEvent(event);
            } else {
                event->ignore();
            }
        }
    };
    auto *box = new QuietBox;
    box->setFocusPolicy(Qt::StrongFocus);
    return box;
}

} // namespace

ConditionCells::ConditionCells(QTreeWidget *tree, QObject *dialog, const Slots &names)
    : QObject(tree)
    , m_tree(tree)
    , m_dialog(dialog)
    , m_slots(names)
{}

void ConditionCells::make(ConditionItem *item)
{
    if (m_tree->itemWidget(item, ButtonColumn) != nullptr) {
        return;
    }
    if (item->parent() == nullptr) {
        makeSource(item);
    }
    makeType(item);
    makeExpression(item);
    makeFont(item);
    makeColor(item, ColorColumn, &FontStyle::color);
    makeColor(item, BackgroundColumn, &FontStyle::bgColor);
    makeFlag(item, BoldColumn, &FontStyle::bold);
    makeFlag(item, ItalicColumn, &FontStyle::italic);
    makeFlag(item, UnderlineColumn, &FontStyle::underline);
    makeButtons(item);
}

void ConditionCells::remake(ConditionItem *item)
{
    if (m_tree->itemWidget(item, ButtonColumn) != nullptr) {
        for (int column = SourceColumn; column < ConditionColumnCount; ++column) {
            m_tree->removeItemWidget(item, column);
        }
        make(item);
    }
}

void ConditionCells::place(ConditionItem *item, ConditionColumn column, QWidget *widget)
{
    if (widget->accessibleName().isEmpty()) {
        widget->setAccessibleName(m_tree->headerItem()->text(column));
    }
    lightenOnDark(widget);
    setCell(item, column, widget);
}

void ConditionCells::makeSource(ConditionItem *item)
{
    auto *box = makeQuietBox<QComboBox>();
    fillSource(box, item->row->key);
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, box, row = item->row](int index) {
                if (index >= 0) {
                    row->key = box->itemText(index);
                    box->setToolTip(plainToolTip(row->key));
                    emit changed();
                }
            });
    place(item, SourceColumn, box);
}

void ConditionCells::fillSource(QComboBox *box, const QString &key) const
{
    const QSignalBlocker blocker(box);
    box->clear();
    box->addItems(m_fields);
    // What is bound to a source that is away stays bound to it.
    box->setPlaceholderText(key.isEmpty()
                                ? m_fields.isEmpty() ? tr("No data source") : tr("Choose a field")
                                : tr("%1 (not available)").arg(key));
    box->setCurrentIndex(m_fields.indexOf(key));
    box->setToolTip(plainToolTip(key));
}

void ConditionCells::setFields(const QStringList &fields)
{
    if (fields == m_fields) {
        return;
    }
    m_fields = fields;
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        auto *item = static_cast<ConditionItem *>(m_tree->topLevelItem(i));
        if (auto *box = qobject_cast<QComboBox *>(m_tree->itemWidget(item, SourceColumn))) {
            fillSource(box, item->row->key);
        }
    }
}

void ConditionCells::makeType(ConditionItem *item)
{
    auto *box = makeQuietBox<QComboBox>();
    box->addItems(expressionKindNames());
    box->setCurrentIndex(item->row->expression.kind);
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this, box](int kind) {
        auto *const row = static_cast<ConditionItem *>(rowOfCell(m_tree, box));
        if (row != nullptr && kind >= 0) {
            setKind(row, kind);
        }
    });
    place(item, TypeColumn, box);
}

void ConditionCells::setKind(ConditionItem *item, int kind)
{
    item->row->expression = {};
    item->row->expression.kind = ConditionExpression::Kind(kind);
    makeExpression(item);
    emit changed();
}

void ConditionCells::makeExpression(ConditionItem *item)
{
    auto *editor = new ExpressionEditor(item->row->expression);
    connect(editor, &ExpressionEditor::changed, this, [this, editor, row = item->row] {
        row->expression = editor->expression();
        emit changed();
    });
    place(item, ExpressionColumn, editor);
}

void ConditionCells::makeFont(ConditionItem *item)
{
    auto *font = makeQuietBox<QFontComboBox>();
    const QString family = item->row->style.fontName;
    font->setCurrentFont(QFont(family));
    if (font->currentText() != family) {
        font->setEditText(family); // a font that is not installed here
    }
    connect(font, &QFontComboBox::currentFontChanged, this,
            [this, row = item->row](const QFont &chosen) {
                row->style.fontName = chosen.family();
                emit changed();
            });
    place(item, FontColumn, font);

    auto *size = makeQuietBox<QSpinBox>();
    size->setRange(leastFontSize, mostFontSize);
    size->setValue(item->row->style.fontSize);
    connect(size, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this, row = item->row](int value) {
                row->style.fontSize = value;
                emit changed();
            });
    place(item, FontSizeColumn, size);
}

void ConditionCells::makeColor(ConditionItem *item, ConditionColumn column, int FontStyle::*member)
{
    const FontStyle fallback = newConditionStyle({});
    auto *button = new ColorButton(LAppConfig::IntToColor(item->row->style.*member));
    connect(button, &ColorButton::colorChanged, this,
            [this, button, member, fallback, row = item->row] {
                const QColor color = button->color();
                row->style.*member =
                    color.isValid() ? LAppConfig::ColorToInt(color) : fallback.*member;
                emit changed();
            });
    connect(button, SIGNAL(clicked()), m_dialog, m_slots.color);
    place(item, column, button);
}

void ConditionCells::makeFlag(ConditionItem *item, ConditionColumn column, bool FontStyle::*member)
{
    auto *box = new QCheckBox;
    box->setStyleSheet(QStringLiteral("QCheckBox { margin-left: 8px; }"));
    box->setChecked(item->row->style.*member);
    connect(box, &QCheckBox::toggled, this, [this, member, row = item->row](bool isChecked) {
        row->style.*member = isChecked;
        emit changed();
    });
    place(item, column, box);
}

void ConditionCells::makeButtons(ConditionItem *item)
{
    auto *cell = new QWidget;
    auto *layout = new QHBoxLayout(cell);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    if (item->parent() == nullptr) {
        QToolButton *add = makeAddButton(item);
        connect(add, SIGNAL(clicked()), m_dialog, m_slots.add);
        layout->addWidget(add);
    }
    QToolButton *remove = makeDeleteButton(item);
    connect(remove, SIGNAL(clicked()), m_dialog, m_slots.remove);
    layout->addWidget(remove);
    layout->addStretch();
    place(item, ButtonColumn, cell);
}

} // namespace lctrlsex
