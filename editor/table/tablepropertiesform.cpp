#include "tablepropertiesform.h"

#include "tablepreview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

namespace lctrlsex {

namespace {

constexpr int WidestSpace = 999;
constexpr int WidestColumn = 16384;
constexpr int MostLines = 10000;
constexpr int UsualWidth = 60;

struct TableProperty
{
    Q_DECLARE_TR_FUNCTIONS(TableProperty)
};

template <class Widget, class... Arguments>
Widget *make(const QString &name, Arguments... arguments)
{
    auto *widget = new Widget(arguments...);
    widget->setObjectName(name);
    return widget;
}

QSpinBox *makeBox(const QString &name, int least, int most, int value, QWidget *parent)
{
    auto *box = make<QSpinBox>(name, parent);
    box->setRange(least, most);
    box->setValue(value);
    box->setAlignment(Qt::AlignRight);
    box->setAccelerated(true);
    return box;
}

/** A box that tells and cannot be set. */
QSpinBox *makeReading(const QString &name, QWidget *parent)
{
    auto *box = makeBox(name, 0, 1 << 24, 0, parent);
    box->setReadOnly(true);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    box->setFocusPolicy(Qt::NoFocus);
    box->setFrame(false);
    box->setSpecialValueText(QString(QChar(0x2013)));
    QPalette palette = box->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    box->setPalette(palette);
    return box;
}

QPushButton *makeSwatch(const QString &name, const QString &style, QWidget *parent)
{
    auto *button = make<QPushButton>(name, parent);
    button->setStyleSheet(style);
    button->setAutoDefault(false);
    return button;
}

QGridLayout *makeGrid(QGroupBox *group)
{
    auto *grid = new QGridLayout(group);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    return grid;
}

void addRow(QGridLayout *grid, QLabel *label, QWidget *field)
{
    const int row = grid->rowCount();
    label->setBuddy(field);
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
}

} // namespace

TablePropertiesForm::TablePropertiesForm(QDialog *dialog)
    : m_dialog(dialog)
{
    buildConfiguration();
    buildSize();
    buildColors();
    buildBorder();
    arrange();
    translate();
}

void TablePropertiesForm::buildConfiguration()
{
    configuration = make<QGroupBox>(QStringLiteral("configuration"), m_dialog);
    label_8 = make<QLabel>(QStringLiteral("label_8"), configuration);
    TypeCbx = make<QComboBox>(QStringLiteral("TypeCbx"), configuration);
    for (int type = 0; type < 4; ++type) {
        TypeCbx->addItem(QString());
    }
    HeaderCheckBox = make<QCheckBox>(QStringLiteral("HeaderCheckBox"), configuration);
    HeaderCheckBox->setChecked(true);
    FixedCheckBox = make<QCheckBox>(QStringLiteral("FixedCheckBox"), configuration);
    label_11 = make<QLabel>(QStringLiteral("label_11"), configuration);
    comboBox = make<QComboBox>(QStringLiteral("comboBox"), configuration);
    comboBox->addItem(QString());
    comboBox->addItem(QString());
    QGridLayout *grid = makeGrid(configuration);
    addRow(grid, label_8, TypeCbx);
    grid->addWidget(HeaderCheckBox, grid->rowCount(), 1);
    grid->addWidget(FixedCheckBox, grid->rowCount(), 1);
    addRow(grid, label_11, comboBox);
}

void TablePropertiesForm::buildSize()
{
    size = make<QGroupBox>(QStringLiteral("size"), m_dialog);
    rowsLabel = make<QLabel>(QStringLiteral("rowsLabel"), size);
    SBRows = makeBox(QStringLiteral("SBRows"), 1, MostLines, 2, size);
    columnsLabel = make<QLabel>(QStringLiteral("columnsLabel"), size);
    SBColumns = makeBox(QStringLiteral("SBColumns"), 1, MostLines, 2, size);
    widthLabel = make<QLabel>(QStringLiteral("widthLabel"), size);
    SBWidth = makeBox(QStringLiteral("SBWidth"), 1, WidestColumn, UsualWidth, size);
    heightLabel = make<QLabel>(QStringLiteral("heightLabel"), size);
    SBHeight = makeReading(QStringLiteral("SBHeight"), size);
    CBHeight = make<QCheckBox>(QStringLiteral("CBHeight"), size);
    SBFillArea = makeReading(QStringLiteral("SBFillArea"), size);
    QGridLayout *grid = makeGrid(size);
    addRow(grid, rowsLabel, SBRows);
    addRow(grid, columnsLabel, SBColumns);
    addRow(grid, widthLabel, SBWidth);
    addRow(grid, heightLabel, SBHeight);
    const int row = grid->rowCount();
    grid->addWidget(CBHeight, row, 0);
    grid->addWidget(SBFillArea, row, 1);
}

void TablePropertiesForm::buildColors()
{
    colors = make<QGroupBox>(QStringLiteral("colors"), m_dialog);
    tableColorLabel = make<QLabel>(QStringLiteral("tableColorLabel"), colors);
    PBTableColor = makeSwatch(QStringLiteral("PBTableColor"),
                              QStringLiteral("background-color: rgba(255, 255, 255);"), colors);
    addRow(makeGrid(colors), tableColorLabel, PBTableColor);
}

void TablePropertiesForm::buildBorder()
{
    border = make<QGroupBox>(QStringLiteral("border"), m_dialog);
    paddingLabel = make<QLabel>(QStringLiteral("paddingLabel"), border);
    SBCellPadding = makeBox(QStringLiteral("SBCellPadding"), 0, WidestSpace, 1, border);
    paddingHint = make<QLabel>(QStringLiteral("paddingHint"), border);
    borderLabel = make<QLabel>(QStringLiteral("borderLabel"), border);
    SBBorder = makeBox(QStringLiteral("SBBorder"), 0, WidestSpace, 1, border);
    borderColorLabel = make<QLabel>(QStringLiteral("borderColorLabel"), border);
    PBBorderColor = makeSwatch(QStringLiteral("PBBorderColor"),
                               QStringLiteral("background-color: rgb(0, 0, 0);"), border);
    QGridLayout *grid = makeGrid(border);
    addRow(grid, paddingLabel, SBCellPadding);
    grid->addWidget(paddingHint, grid->rowCount(), 0, 1, 2);
    addRow(grid, borderLabel, SBBorder);
    addRow(grid, borderColorLabel, PBBorderColor);
    paddingHint->setEnabled(false);
}

void TablePropertiesForm::arrange()
{
    previewBox = make<QGroupBox>(QStringLiteral("previewBox"), m_dialog);
    auto *previewLayout = new QVBoxLayout(previewBox);
    preview = new TablePreview(previewBox);
    previewLayout->addWidget(preview);
    notice = make<QLabel>(QStringLiteral("notice"), m_dialog);
    notice->setWordWrap(true);
    notice->hide();
    buttonBox = make<QDialogButtonBox>(QStringLiteral("buttonBox"), m_dialog);
    buttonBox->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

    auto *grid = new QGridLayout(m_dialog);
    grid->setSpacing(10);
    grid->addWidget(configuration, 0, 0);
    grid->addWidget(size, 1, 0);
    grid->addWidget(colors, 2, 0);
    grid->addWidget(border, 3, 0);
    grid->addWidget(previewBox, 0, 1, 4, 1);
    grid->addWidget(notice, 4, 0, 1, 2);
    grid->addWidget(buttonBox, 5, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
}

void TablePropertiesForm::translate()
{
    configuration->setTitle(TableProperty::tr("Configuration"));
    label_8->setText(TableProperty::tr("Type"));
    TypeCbx->setItemText(0, TableProperty::tr("Fixed form"));
    TypeCbx->setItemText(1, TableProperty::tr("Dynamic Rows"));
    TypeCbx->setItemText(2, TableProperty::tr("Dynamic Columns"));
    TypeCbx->setItemText(3, TableProperty::tr("Adaptive Rows and Columns"));
    HeaderCheckBox->setText(TableProperty::tr("Table Head"));
    FixedCheckBox->setText(TableProperty::tr("Freeze Top Row"));
    label_11->setText(TableProperty::tr("Turn the page"));
    comboBox->setItemText(0, TableProperty::tr("Vertical"));
    comboBox->setItemText(1, TableProperty::tr("Horizontal"));
    size->setTitle(TableProperty::tr("Size"));
    rowsLabel->setText(TableProperty::tr("Row"));
    columnsLabel->setText(TableProperty::tr("Column"));
    widthLabel->setText(TableProperty::tr("Width"));
    heightLabel->setText(TableProperty::tr("Height"));
    CBHeight->setText(TableProperty::tr("Adaptive Region"));
    colors->setTitle(TableProperty::tr("Alignment and Color"));
    tableColorLabel->setText(TableProperty::tr("Background color"));
    border->setTitle(TableProperty::tr("Border and Margins"));
    paddingLabel->setText(TableProperty::tr("Margins in cell"));
    paddingHint->setText(TableProperty::tr("pixels between cell border and its contets"));
    borderLabel->setText(TableProperty::tr("Border Width"));
    borderColorLabel->setText(TableProperty::tr("Border Color:"));
    previewBox->setTitle(TableProperty::tr("Preview"));
    for (QSpinBox *box : {SBWidth, SBHeight, SBBorder, SBCellPadding}) {
        box->setSuffix(QLatin1Char(' ') + TableProperty::tr("pixels"));
    }
    SBFillArea->setSuffix(QStringLiteral(" %"));
    buttonBox->button(QDialogButtonBox::Ok)->setText(TableProperty::tr("OK"));
    buttonBox->button(QDialogButtonBox::Cancel)->setText(TableProperty::tr("Cancel"));
    alignLabels();
    explain();
}

void TablePropertiesForm::alignLabels()
{
    const QVector<QLabel *> labels{label_8,         label_11,        rowsLabel,    columnsLabel,
                                   widthLabel,      heightLabel,     paddingLabel, borderLabel,
                                   tableColorLabel, borderColorLabel};
    int widest = CBHeight->sizeHint().width();
    for (const QLabel *label : labels) {
        widest = qMax(widest, label->sizeHint().width());
    }
    for (QLabel *label : labels) {
        label->setMinimumWidth(widest);
    }
}

void TablePropertiesForm::explain()
{
    SBHeight->setToolTip(TableProperty::tr("Height of the table while its cells are empty"));
    SBFillArea->setToolTip(TableProperty::tr("How much of the item's height the table takes"));
    CBHeight->setToolTip(TableProperty::tr("Stretch the table to the height of the page"));
    FixedCheckBox->setToolTip(TableProperty::tr("Repeat the first row on every page"));
    PBTableColor->setAccessibleName(TableProperty::tr("Background color"));
    PBBorderColor->setAccessibleName(TableProperty::tr("Border Color:"));
}

} // namespace lctrlsex
