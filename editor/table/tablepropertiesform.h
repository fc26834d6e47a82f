#pragma once

#include <QString>

class QCheckBox;
class QComboBox;
class QDialog;
class QDialogButtonBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace lctrlsex {

class TablePreview;

/**
 * The widgets of the dialog that edits a table's properties.
 *
 * Every widget has its member's name as object name. Texts are set by translate(); what the widgets
 * do is the dialog's.
 */
class TablePropertiesForm
{
public:
    /** Builds everything inside @p dialog, which must outlive the form. */
    explicit TablePropertiesForm(QDialog *dialog);

    /** Sets every text in the current language. */
    void translate();

    // "Configuration"

    QGroupBox *configuration = nullptr;
    QCheckBox *HeaderCheckBox = nullptr;
    QCheckBox *FixedCheckBox = nullptr;
    QLabel *label_8 = nullptr;
    QComboBox *TypeCbx = nullptr;
    QLabel *label_11 = nullptr;
    QComboBox *comboBox = nullptr;

    // "Size"

    QGroupBox *size = nullptr;
    QLabel *rowsLabel = nullptr;
    QSpinBox *SBRows = nullptr;
    QLabel *columnsLabel = nullptr;
    QSpinBox *SBColumns = nullptr;
    QLabel *widthLabel = nullptr;
    QSpinBox *SBWidth = nullptr;
    QLabel *heightLabel = nullptr;
    /** Shows how high the table gets; it cannot be set. */
    QSpinBox *SBHeight = nullptr;
    QCheckBox *CBHeight = nullptr;
    /** Shows how much of the item's height the table takes; it cannot be set. */
    QSpinBox *SBFillArea = nullptr;

    // "Alignment and Color"

    QGroupBox *colors = nullptr;
    QLabel *tableColorLabel = nullptr;
    QPushButton *PBTableColor = nullptr;

    // "Border and Margins"

    QGroupBox *border = nullptr;
    QLabel *paddingLabel = nullptr;
    QSpinBox *SBCellPadding = nullptr;
    QLabel *paddingHint = nullptr;
    QLabel *borderLabel = nullptr;
    QSpinBox *SBBorder = nullptr;
    QLabel *borderColorLabel = nullptr;
    QPushButton *PBBorderColor = nullptr;

    QGroupBox *previewBox = nullptr;
    TablePreview *preview = nullptr;
    /** Says why the table cannot be made; hidden while it can. */
    QLabel *notice = nullptr;
    QDialogButtonBox *buttonBox = nullptr;

private:
    void buildConfiguration();
    void buildSize();
    void buildColors();
    void buildBorder();
    void arrange();
    /** Gives the labels of all groups one width. */
    void alignLabels();
    void explain();

    QDialog *m_dialog;
};

} // namespace lctrlsex
