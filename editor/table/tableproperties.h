#pragma once

#include "ltableproperties.h"

#include <QDialog>

#include <memory>

class QPushButton;

namespace lctrlsex {
class TablePropertiesForm;
}

/**
 * Edits the properties of a table, with the table that they make beside the form.
 *
 * Type, header and frozen top row are given once, when the table is made. Where the type lets data
 * decide on rows or columns, their number here is that of the template. Accepting is possible only
 * while a table can be made; the form says why it cannot.
 */
class TableProperties : public QDialog
{
    Q_OBJECT

public:
    explicit TableProperties(QWidget *parent = nullptr);
    ~TableProperties() override;

    /**
     * The item's size in pixels, in which the preview shows the table; empty when unknown. Gives a
     * new table columns that share the page's width, so that it is to be called first.
     */
    void setItemSize(const QSize &size);

public slots:
    void accept() override;
    void reject() override;
    /** Shows @p prop, null for what a table has at first; @p newTable for one that is not made. */
    void setProperties(LUM_EditInterface::LTableProperties *prop, bool newTable);
    /** What the form shows. Fields that it does not have are those of the record given. */
    LUM_EditInterface::LTableProperties value();

private slots:
    void Translate();
    /** @p state as a check box has it: 0, 1 partly, 2; partly checked changes nothing. */
    void HeaderStateChanged(int state);
    void TypeChanged(int type);
    void ChooseTableColor();
    void ChooseBorderColor();
    void ShowPreview();
    /** Lets the columns of a new table share the page's width until another one is entered. */
    void SpreadColumns();

private:
    void connectForm();
    void showLimits();
    void chooseColor(QPushButton *button, unsigned int *color);

    Q_DISABLE_COPY(TableProperties)

    std::unique_ptr<lctrlsex::TablePropertiesForm> m_form;
    LUM_EditInterface::LTableProperties m_record;
    unsigned int m_tableColor;
    unsigned int m_borderColor;
    QSize m_itemSize;
    int m_spreadWidth = 0; ///< What SpreadColumns() set last.
    bool m_isNew = true;
};
