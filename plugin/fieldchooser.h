#pragma once

#include <QComboBox>

namespace lctrlsex {

/** A combo box of field names; says in words that its empty entry stands for no field. */
class FieldChooser : public QComboBox
{
public:
    explicit FieldChooser(QWidget *parent = nullptr);

    /** Sets what is shown in place of an empty text; the text itself stays empty. */
    void setEmptyText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(FieldChooser)

    QString m_emptyText;
};

} // namespace lctrlsex
