#pragma once

#include "ltexteffectnode.h"
#include "pluginloader.h"

#include <QPointer>
#include <QScrollArea>
#include <QTextEdit>
#include <QWidget>

class QLabel;
class QPushButton;
class QStackedLayout;

namespace workbench {

class ItemPages;
class ProgrammeDocument;

/**
 * The centre of the window: the plug-in's editor bound to one text item, or in its place a page
 * that says why there is none.
 *
 * The plug-in owns its widgets; they are only lent to this window, are never deleted here, and are
 * given back before this is destroyed.
 */
class EditorPane : public QWidget
{
    Q_OBJECT

public:
    EditorPane(ProgrammeDocument *document, ItemPages *pages, const LoadedPlugin &plugin,
               QWidget *parent = nullptr);
    ~EditorPane() override;

    /** Binds the plug-in to an item; null lets go of the one before. */
    void bind(LTextEffectNode *node);
    /** Binds the plug-in to the bound item anew, after what its node stores was changed. */
    void rebind();
    [[nodiscard]] LTextEffectNode *node() const { return m_node; }
    /** Whether there is an editor at all. */
    [[nodiscard]] bool hasPlugin() const { return m_plugin.client != nullptr; }

    /** Where the plug-in's attributes are shown; null once it was destroyed elsewhere. */
    [[nodiscard]] QScrollArea *attributesArea() const { return m_attributesArea; }
    /** The view of the text, null without a plug-in. */
    [[nodiscard]] QTextEdit *textView() const;
    void focusText();

    /** What the plug-in can do with a whole text, as it counts it. */
    enum Conversion { InvertColors, SwapBlackAndWhite, ToggleAntialiasing };
    /** Whether there is a text that convertText() would work on now. */
    [[nodiscard]] bool canConvertText() const;
    /** Begins a conversion of the bound item's text; nothing happens where it is not possible. */
    void convertText(Conversion conversion);

    /** Whether the plug-in's view takes a picture from a file now. */
    [[nodiscard]] bool canInsertImage() const;
    /** Lets the user choose one. */
    void insertImage();

    /** Whether a data field can be put into the text now. */
    [[nodiscard]] bool canInsertField() const;
    /** Puts the field of a qualified key at the cursor. */
    void insertField(const QString &key);
    /** Whether the text has a table. */
    [[nodiscard]] bool hasTable() const;
    /** Binds the text's table to a qualified key, an empty one to nothing. */
    void bindTable(const QString &key);

signals:
    /** The user asked for an item where there is none. */
    void addItemWanted();
    /** The user wants to leave the editor. */
    void leaveWanted();
    /** A table was to be bound where there is none. */
    void bindRefused();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showPlayType();
    QWidget *buildEmptyPage();
    QWidget *buildFaultPage();
    void letGo();
    void showAttributes();
    void giveBack();
    [[nodiscard]] QObject *converter() const;
    bool takeTableDrop(QEvent *event);
    void retranslate();

    ProgrammeDocument *m_document;
    ItemPages *m_pages;
    LoadedPlugin m_plugin;
    QPointer<QWidget> m_client;
    QPointer<QWidget> m_attributes;
    QPointer<QTextEdit> m_filtered;
    QPointer<LTextEffectNode> m_node;
    bool m_isBound = false; ///< Outlives the node: the plug-in is to be told even then.

    QStackedLayout *m_stack;
    QWidget *m_empty;
    QLabel *m_emptyText;
    QPushButton *m_addItem;
    QWidget *m_fault;
    QLabel *m_faultText;
    QPointer<QScrollArea> m_attributesArea;
    QLabel *m_noAttributes;
};

} // namespace workbench
