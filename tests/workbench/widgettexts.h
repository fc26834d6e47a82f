#pragma once

#include <QMap>
#include <QString>

class QWidget;

/**
 * Every text with which a window and all in it speak to a user, by the place of it: labels,
 * buttons, menus opened or not, boxes, tabs, heads and entries of lists, tool tips, accessible
 * names, titles. Text that is edited is not among them. Places stay the same when texts change.
 */
QMap<QString, QString> textsOf(const QWidget *window);

/** The current entry of every combo box in the window, by its place. */
QMap<QString, int> choicesOf(const QWidget *window);

/**
 * What is cut off or lies upon something else among the visible labels and controls of a window, a
 * sentence each; empty when all is well.
 */
QStringList crampedIn(const QWidget *window);
