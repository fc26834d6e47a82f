#pragma once

#include "toolbarformat.h"
#include "typingstyle.h"

#include <QHash>
#include <QObject>
#include <QStringList>

class ComboBoxAction;
class MyWidgetAction;
class QAction;
class QActionGroup;
class QToolBar;

namespace lctrlsex {

/**
 * The actions, combo boxes and spin boxes of the editor's tool bar.
 *
 * It makes them in their order, connects them by name to the slots of the editor, shows what the
 * editor tells it to show, without sending a signal, and answers what is chosen. It knows neither
 * document nor node.
 */
class EditToolBar : public QObject
{
    Q_OBJECT

public:
    /**
     * All stay the caller's; @p receiver has the slots that the actions name. The spin boxes, last
     * in the order, stand on @p secondRow, because one row is too wide for a usual window.
     */
    EditToolBar(QToolBar *toolBar, QToolBar *secondRow, QObject *receiver);
    ~EditToolBar() override;

    /** Spacers, font and size boxes and a separator. */
    void addEditActions(const QStringList &fonts);
    /** Everything behind them. */
    void addTextActions();

    /** Makes rows usable or not. */
    void setEnabled(bool on);

    /** Sets all texts and tool tips in the current language. */
    void translate();

    [[nodiscard]] QToolBar *toolBar() const { return m_toolBar; }
    [[nodiscard]] QActionGroup *alignGroup() const { return m_alignGroup; }
    [[nodiscard]] QActionGroup *vAlignGroup() const { return m_vAlignGroup; }
    /** The action with that object name, such as "actionTextBold"; null for another name. */
    [[nodiscard]] QAction *action(const QString &name) const { return m_actions.value(name); }

    // What is chosen

    /** The look for typed text; @p color is what the tool bar itself does not keep. */
    [[nodiscard]] TypingStyle typingStyle(const QColor &color) const;
    [[nodiscard]] QString family() const;
    [[nodiscard]] bool isChecked(const QString &action) const;
    [[nodiscard]] int wordSpacing() const;
    [[nodiscard]] int lineSpacing() const;
    [[nodiscard]] QColor textBackground() const { return m_textBackground; }
    [[nodiscard]] QColor editorBackground() const { return m_editorBackground; }
    [[nodiscard]] QColor strokeColor() const { return m_stroke; }
    /** The alignment that an action of either group stands for. */
    [[nodiscard]] static int alignOf(const QAction *action);

    // What is shown

    /** Shows the format at the cursor; touches only what differs from what is shown. */
    void showFormat(const ToolbarFormat &format);
    void showFamily(const QString &family);
    void showSize(qreal pointSize);
    void showTextColor(const QColor &color);
    void showTextBackground(const QColor &color);
    void showEditorBackground(const QColor &color);
    void showStrokeColor(const QColor &color);
    void showAlign(Qt::Alignment align);
    void showVAlign(int align);
    void showWordSpacing(int value);
    void showLineSpacing(int value);
    /** Checks or unchecks an action without triggering it. */
    void setChecked(const QString &action, bool on);
    /** Shows the twelve actions that every mode has. */
    void showFormattingActions();

private:
    /** What is known of an action before it is made; texts are those of the sources. */
    struct Entry
    {
        const char *name; ///< Object name.
        const char *text;
        const char *tip;
        const char *themeIcon; ///< Null: none.
        const char *image;     ///< Null: painted.
        bool checkable;
        int key;          ///< With Ctrl; 0: no shortcut.
        const char *slot; ///< Null: the group or menu has one.
        int align;        ///< What an alignment action stands for.
    };
    static const QVector<Entry> &entries();
    void addEntries(int first, int last);
    void addGroup(QActionGroup *group, int first, int last);
    void addStroke();
    MyWidgetAction *addSpinBox(const QString &name, const QString &icon, int least, int most,
                               int step, const char *slot);
    QAction *make(const Entry &entry);

    static void addSpacer(QToolBar *toolBar, int width);
    Q_DISABLE_COPY(EditToolBar)

    QToolBar *m_toolBar;
    QToolBar *m_secondRow;
    QObject *m_receiver;
    ComboBoxAction *m_comboFontAction = nullptr;
    ComboBoxAction *m_comboSizeAction = nullptr;
    MyWidgetAction *m_spxWord = nullptr;
    MyWidgetAction *m_spxLine = nullptr;
    QActionGroup *m_alignGroup = nullptr;
    QActionGroup *m_vAlignGroup = nullptr;
    QAction *m_strokeAction = nullptr;
    QHash<QString, QAction *> m_actions;
    QColor m_textColor;
    QColor m_textBackground;
    QColor m_editorBackground;
    QColor m_stroke;
};

} // namespace lctrlsex
