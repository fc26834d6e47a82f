#pragma once

#include "sourcesettings.h"

#include <QWidget>

class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

namespace workbench {

/**
 * The queries of a database source: a list of their names, and name and text of the one chosen.
 * Insert, Delete and F2 in the list add, remove and rename.
 */
class QueryEdits : public QWidget
{
    Q_OBJECT

public:
    explicit QueryEdits(const QVector<sources::NamedText> &queries, QWidget *parent = nullptr);

    /** As they are now, fit for use or not. */
    [[nodiscard]] const QVector<sources::NamedText> &queries() const { return m_queries; }
    /** What keeps them from being used, for a user; empty when nothing does. */
    [[nodiscard]] QString fault() const;
    /** Puts the keyboard focus where fault() is to be mended. */
    void focusFault();

signals:
    /** queries() are others. */
    void changed();

private:
    struct Fault
    {
        int row = -1; ///< Below 0: there is no query at all.
        bool isOfName = false;
        QString text;
    };

    [[nodiscard]] Fault firstFault() const;
    [[nodiscard]] Fault nameFault(int row) const;
    void buildList();
    void buildFields();
    void add();
    void remove();
    void rename();
    void showCurrent();
    void take();
    void label(int row);

    QVector<sources::NamedText> m_queries;
    QStringList m_names; ///< That were there: they need not be mended.
    QListWidget *m_list;
    QPushButton *m_add;
    QPushButton *m_remove;
    QLineEdit *m_name;
    QPlainTextEdit *m_text;
};

} // namespace workbench
