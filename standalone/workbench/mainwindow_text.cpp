#include "datapanel.h"
#include "editorpane.h"
#include "ltexteffectnode.h"
#include "mainwindow.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace workbench {

void MainWindow::buildTextMenu()
{
    auto *menu = nameMenu(menuBar()->addMenu(QString()), QStringLiteral("TextMenu"),
                          [] { return tr("&Text"); });
    const auto add = [this, menu](const QString &name, std::function<QString()> text,
                                  EditorPane::Conversion conversion) {
        QAction *action = addAction(menu, name, std::move(text), [this, conversion] {
            m_editor->convertText(conversion);
            updateTextActions();
        });
        m_conversions.append(action);
        return action;
    };
    m_insertImage = addAction(
        menu, QStringLiteral("InsertImage"), [] { return tr("Insert I&mage..."); },
        [this] { m_editor->insertImage(); });
    menu->addSeparator();
    add(
        QStringLiteral("InvertColours"), [] { return tr("&Invert Colours"); },
        EditorPane::InvertColors);
    add(
        QStringLiteral("SwapBlackAndWhite"), [] { return tr("&Swap Black and White"); },
        EditorPane::SwapBlackAndWhite);
    menu->addSeparator();
    m_antialiasingOff = add(
        QStringLiteral("AntialiasingOff"), [] { return tr("&Antialiasing Off"); },
        EditorPane::ToggleAntialiasing);
    m_antialiasingOff->setCheckable(true);
    connect(menu, &QMenu::aboutToShow, this, &MainWindow::updateTextActions);
}

void MainWindow::updateTextActions()
{
    const bool isPossible = m_editor->canConvertText();
    for (QAction *action : qAsConst(m_conversions)) {
        action->setEnabled(isPossible);
    }
    m_insertImage->setEnabled(m_editor->canInsertImage());
    m_data->setTargets(m_editor->canInsertField(), m_editor->hasTable());
    const LTextEffectNode *item = m_editor->node();
    m_antialiasingOff->setChecked(item != nullptr && !item->GetTextAntialias());
}

} // namespace workbench
