#pragma once

#include <QPointer>
#include <QWidget>

class LButton;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFrame;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QToolButton;
class QVBoxLayout;
class TextEdit;

namespace lctrlsex {

class FieldChooser;

/**
 * The widgets of the client: editor area, side bar and attributes panel.
 *
 * Every widget has its member's name as object name. Texts are not set here but by the client,
 * because they change with the language; neither is anything connected. The attributes panel may
 * be laid into a window of the host and go with it: buildAttributes() then makes another one.
 */
class ClientForm
{
public:
    /** Builds everything inside @p client, which must outlive the form. */
    explicit ClientForm(QFrame *client);
    /** Deletes the widgets, the attributes panel wherever it lies. */
    ~ClientForm();

    /** Builds a hidden attributes panel; call it only when there is none. */
    void buildAttributes();
    /** Puts the attributes panel into the client where it is not there yet, and shows it. */
    void showAttributes();
    /** Gives the labels of both groups one width; call it when their texts were set. */
    void alignLabels();
    /** Enables what acts on a node, or disables it when there is none. */
    void setBound(bool bound);

    QHBoxLayout *MainLayout = nullptr;

    // Editor area

    QWidget *EditBg = nullptr;
    QWidget *widget = nullptr;
    QRadioButton *rbByTime = nullptr;
    QSpinBox *sbByTime = nullptr;
    QRadioButton *rbByCount = nullptr;
    QSpinBox *sbByCount = nullptr;
    QCheckBox *ContinuousMove = nullptr;
    QFrame *frame_2 = nullptr;
    QLabel *lblDisplay_4 = nullptr;
    QToolButton *PrePage = nullptr;
    QLabel *PageTip = nullptr;
    QToolButton *NextPage = nullptr;
    TextEdit *wgtTextEditor = nullptr;

    // Side bar

    QWidget *BtnBg = nullptr;
    QToolButton *Return = nullptr;

    // Attributes panel

    QPointer<QWidget> TextAttributesBg;
    QWidget *TextAttributesBgHeader = nullptr;
    QLabel *attributesTitle = nullptr;
    QWidget *TextAttributesContentBg = nullptr;
    QWidget *EffectBg = nullptr;
    QWidget *widget_2 = nullptr;
    LButton *NoEffect = nullptr;
    LButton *Random = nullptr;
    QLabel *lblDisplay_2 = nullptr;
    QComboBox *DisplayEffects = nullptr;
    QLabel *displaySpeedLabel = nullptr;
    QComboBox *DisplayInterval = nullptr;
    QLabel *lblClear_2 = nullptr;
    QComboBox *ClearSreenEffects = nullptr;
    QLabel *clearSpeedLabel = nullptr;
    QComboBox *ClearInterval = nullptr;
    QLabel *lblHold_2 = nullptr;
    QDoubleSpinBox *RemainInterval = nullptr;
    QPushButton *ConditionalStylesBtn = nullptr;
    QPushButton *setOperation = nullptr;
    QLabel *FieldLab = nullptr;
    FieldChooser *FieldCbx = nullptr;
    QLabel *WarningLabel = nullptr;
    QLabel *identifierLabel = nullptr;
    QLineEdit *GUID = nullptr;

private:
    void buildEditorArea();
    void buildPlayType();
    void buildPageBar();
    void buildSideBar();
    void buildHeader();
    void buildEffects();
    void buildDataControls(QVBoxLayout *content);

    Q_DISABLE_COPY(ClientForm)

    QFrame *m_client;
    QGridLayout *m_effectGrid = nullptr;
    QGridLayout *m_dataGrid = nullptr;
};

} // namespace lctrlsex
