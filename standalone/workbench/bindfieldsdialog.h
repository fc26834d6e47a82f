#pragma once

#include <QDialog>

class QLabel;
class QListWidget;

namespace workbench {

/**
 * Asks which fields of a list of records, or of a record, a table shows, and in which order. Names
 * of fields are kept as they are, even when their characters would end a key.
 */
class BindFieldsDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * The key to bind a table to: @p key itself when it has no fields to choose from, empty when
     * the user does not want to.
     */
    [[nodiscard]] static QString ask(const QString &key, QWidget *parent);

private:
    BindFieldsDialog(const QString &key, const QStringList &fields, QWidget *parent);

    void update();
    void move(int by);
    [[nodiscard]] QString key() const;

    QString m_before; ///< The key up to the opening brace, with it.
    QString m_behind; ///< The closing brace and what follows.
    QListWidget *m_fields;
    QLabel *m_key;
};

} // namespace workbench
