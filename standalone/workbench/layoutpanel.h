#pragma once

#include "lnode.h"

#include <QPointer>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace workbench {

class ProgrammeDocument;

/**
 * Name, place and size of the selected node, and the kind of display of a controller.
 *
 * Each change goes through the document as one undo step. What does not fit is said below the
 * fields, where it was entered.
 */
class LayoutPanel : public QWidget
{
    Q_OBJECT

public:
    explicit LayoutPanel(ProgrammeDocument *document, QWidget *parent = nullptr);

    /** The node whose values are shown; null shows none. */
    void setNode(LNode *node);
    [[nodiscard]] LNode *node() const { return m_node; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void build();
    void connectFields();
    void watchNode();
    /** Shows what the node holds, without writing anything. */
    void refresh();
    /** refresh() when the attribute is one that is shown. */
    void refreshFor(const QString &key);
    void showRows();
    void showAdvice();
    void retranslate();
    void renameNode();
    void applyGeometry();
    void applyDeviceKind();
    [[nodiscard]] bool hasPlace() const;
    [[nodiscard]] bool canInherit() const;

    ProgrammeDocument *m_document;
    QPointer<LNode> m_node;
    bool m_filling = false;

    QLabel *m_kind;
    QLabel *m_nameLabel;
    QLineEdit *m_name;
    QLabel *m_deviceLabel;
    QComboBox *m_device;
    QLabel *m_placeLabel;
    QWidget *m_place;
    QLabel *m_xLabel;
    QSpinBox *m_x;
    QLabel *m_yLabel;
    QSpinBox *m_y;
    QCheckBox *m_inherits;
    QLabel *m_sizeLabel;
    QWidget *m_size;
    QSpinBox *m_width;
    QSpinBox *m_height;
    QLabel *m_advice;
};

} // namespace workbench
