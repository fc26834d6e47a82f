#include "tableproperties.h"

#include "lcolor.h"
#include "ltranslation.h"
#include "table/richtable.h"
#include "table/tablepreview.h"
#include "table/tablepropertiesform.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>

using LUM_EditInterface::LTableProperties;

namespace {

enum Type { FixedForm, DynamicRows, DynamicColumns, Adaptive };

struct TableProperty
{
    Q_DECLARE_TR_FUNCTIONS(TableProperty)
};

/** Lines of a template that data repeats: itself, and the header in front of it. */
int templateLines(bool hasHeader)
{
    return hasHeader ? 2 : 1;
}

void setSwatch(QPushButton *button, unsigned int color)
{
    button->setStyleSheet(QStringLiteral("background-color: %1;").arg(BGR_TO_QColor(color).name()));
}

} // namespace

TableProperties::TableProperties(QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<lctrlsex::TablePropertiesForm>(this))
    , m_tableColor(QColor_TO_BGR(Qt::white))
    , m_borderColor(QColor_TO_BGR(Qt::black))
{
    setObjectName(QStringLiteral("TableProperty"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(TableProperty::tr("Table property"));
    connectForm();
    connect(LTranslation::instance(), SIGNAL(LanguageChanged()), this, SLOT(Translate()));
    ShowPreview();
}

TableProperties::~TableProperties() = default;

void TableProperties::connectForm()
{
    const auto &form = *m_form;
    connect(form.HeaderCheckBox, SIGNAL(stateChanged(int)), this, SLOT(HeaderStateChanged(int)));
    connect(form.TypeCbx, SIGNAL(currentIndexChanged(int)), this, SLOT(TypeChanged(int)));
    connect(form.PBTableColor, SIGNAL(clicked()), this, SLOT(ChooseTableColor()));
    connect(form.PBBorderColor, SIGNAL(clicked()), this, SLOT(ChooseBorderColor()));
    for (QSpinBox *box :
         {form.SBRows, form.SBColumns, form.SBWidth, form.SBCellPadding, form.SBBorder}) {
        connect(box, SIGNAL(valueChanged(int)), this, SLOT(ShowPreview()));
    }
    connect(form.SBColumns, SIGNAL(valueChanged(int)), this, SLOT(SpreadColumns()));
    connect(form.CBHeight, SIGNAL(toggled(bool)), this, SLOT(ShowPreview()));
    connect(form.buttonBox, SIGNAL(accepted()), this, SLOT(accept()));
    connect(form.buttonBox, SIGNAL(rejected()), this, SLOT(reject()));
}

void TableProperties::setItemSize(const QSize &size)
{
    m_itemSize = size;
    m_form->preview->setItemSize(size);
    SpreadColumns();
    ShowPreview();
}

void TableProperties::SpreadColumns()
{
    QSpinBox *const width = m_form->SBWidth;
    if (m_isNew && !m_itemSize.isEmpty() &&
        (m_spreadWidth == 0 || width->value() == m_spreadWidth)) {
        const int room = m_itemSize.width() - 2 * m_form->preview->pageMargin();
        width->setValue(room / m_form->SBColumns->value());
        m_spreadWidth = width->value();
    }
}

void TableProperties::accept()
{
    if (lctrlsex::isUsable(value())) {
        QDialog::accept();
    }
}

void TableProperties::reject()
{
    QDialog::reject();
}

void TableProperties::setProperties(LTableProperties *prop, bool newTable)
{
    m_isNew = newTable;
    const auto &form = *m_form;
    if (prop != nullptr) {
        m_record = *prop;
        form.TypeCbx->setCurrentIndex(qBound(int(FixedForm), prop->type, int(Adaptive)));
        form.HeaderCheckBox->setChecked(prop->header);
        form.FixedCheckBox->setChecked(prop->fixedHeader);
        form.comboBox->setCurrentIndex(qBound(0, prop->pageTurnDirection, 1));
        form.CBHeight->setChecked(prop->fillArea);
        form.SBRows->setValue(prop->rows);
        form.SBColumns->setValue(prop->columns);
        form.SBWidth->setValue(prop->width);
        form.SBCellPadding->setValue(prop->cellPadding);
        form.SBBorder->setValue(prop->borderWidth);
        m_tableColor = prop->backgroundColor;
        m_borderColor = prop->borderColor;
        setSwatch(form.PBTableColor, m_tableColor);
        setSwatch(form.PBBorderColor, m_borderColor);
    }
    showLimits();
    ShowPreview();
}

LTableProperties TableProperties::value()
{
    const auto &form = *m_form;
    m_record.rows = form.SBRows->value();
    m_record.columns = form.SBColumns->value();
    m_record.backgroundColor = m_tableColor;
    m_record.width = form.SBWidth->value();
    m_record.borderWidth = form.SBBorder->value();
    m_record.borderColor = m_borderColor;
    m_record.cellPadding = form.SBCellPadding->value();
    m_record.type = form.TypeCbx->currentIndex();
    m_record.pageTurnDirection = form.comboBox->currentIndex();
    m_record.header = form.HeaderCheckBox->isChecked();
    m_record.fixedHeader = form.FixedCheckBox->isChecked();
    m_record.fillArea = form.CBHeight->isChecked();
    return m_record;
}

void TableProperties::Translate()
{
    // Whoever opened it has given it the title, and gives it again in the new language.
    m_form->translate();
    ShowPreview();
}

void TableProperties::HeaderStateChanged(int state)
{
    if (state == Qt::PartiallyChecked) {
        return;
    }
    const auto &form = *m_form;
    const int lines = templateLines(state == Qt::Checked);
    switch (form.TypeCbx->currentIndex()) {
    case DynamicRows:
        form.SBRows->setValue(lines);
        break;
    case DynamicColumns:
        form.SBColumns->setValue(lines);
        break;
    case Adaptive:
        form.SBRows->setValue(1);
        form.SBColumns->setValue(1);
        break;
    default:
        break;
    }
    showLimits();
    ShowPreview();
}

void TableProperties::TypeChanged(int)
{
    HeaderStateChanged(m_form->HeaderCheckBox->checkState());
}

void TableProperties::showLimits()
{
    const auto &form = *m_form;
    const int type = form.TypeCbx->currentIndex();
    form.SBRows->setEnabled(type == FixedForm || type == DynamicColumns);
    form.SBColumns->setEnabled(type == FixedForm || type == DynamicRows);
    form.TypeCbx->setEnabled(m_isNew);
    form.HeaderCheckBox->setEnabled(m_isNew);
    form.FixedCheckBox->setEnabled(m_isNew);
}

void TableProperties::ChooseTableColor()
{
    chooseColor(m_form->PBTableColor, &m_tableColor);
}

void TableProperties::ChooseBorderColor()
{
    chooseColor(m_form->PBBorderColor, &m_borderColor);
}

void TableProperties::chooseColor(QPushButton *button, unsigned int *color)
{
    // On the heap and guarded: the host may delete the editor while the dialog is open.
    const QPointer<TableProperties> self(this);
    QPointer<QColorDialog> dialog = new QColorDialog(BGR_TO_QColor(*color), this);
    const bool isChosen = dialog->exec() == QDialog::Accepted;
    if (self && dialog && isChosen && dialog->selectedColor().isValid()) {
        *color = QColor_TO_BGR(dialog->selectedColor());
        setSwatch(button, *color);
        ShowPreview();
    }
    delete dialog;
}

void TableProperties::ShowPreview()
{
    const auto &form = *m_form;
    const LTableProperties record = value();
    const bool isUsable = lctrlsex::isUsable(record);
    form.preview->setRecord(record);
    const int height = form.preview->tableHeight();
    const int itemHeight = m_itemSize.height();
    form.SBHeight->setValue(record.fillArea && itemHeight > 0 ? itemHeight : height);
    form.SBFillArea->setVisible(itemHeight > 0);
    form.SBFillArea->setValue(itemHeight > 0 ? qRound(100.0 * form.SBHeight->value() / itemHeight)
                                             : 0);
    form.notice->setText(
        TableProperty::tr("A table has at most 20,000 cells and is at most 16,384 pixels wide. "
                          "Make it smaller."));
    form.notice->setVisible(!isUsable);
    form.buttonBox->button(QDialogButtonBox::Ok)->setEnabled(isUsable);
}
