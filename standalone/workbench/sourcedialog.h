#pragma once

#include "sourcesettings.h"

#include <QDialog>
#include <QVector>

#include <memory>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QDoubleSpinBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;

namespace sources {
class DataSource;
}

namespace workbench {

class LiveData;
class QueryEdits;

/** What a kind of source is called, in the current language. */
[[nodiscard]] QString sourceKindName(int type);

/**
 * Asks how a data source is set up, and tries it out on demand. What keeps it from being used is
 * said below the fields; who accepts or tries it then is led to the field that is to be mended.
 */
class SourceDialog : public QDialog
{
    Q_OBJECT

public:
    /** The settings that the user accepted; null when none were. */
    [[nodiscard]] static std::unique_ptr<sources::SourceSettings>
    ask(LiveData *live, const sources::SourceSettings &settings, bool isNew, QWidget *parent);

    void accept() override;

private:
    SourceDialog(LiveData *live, const sources::SourceSettings &settings, bool isNew,
                 QWidget *parent);
    ~SourceDialog() override;

    void addRow(const QString &label, QWidget *field);
    QLineEdit *addLine(const QString &name, const QString &label, const QString &text,
                       const QString &hint = QString());
    QDoubleSpinBox *addSeconds(const QString &name, const QString &label, double value);
    void buildFile();
    void buildHttp();
    void buildSql();
    void buildFormat();
    void buildEnd();

    [[nodiscard]] sources::SourceSettings settings() const;
    /** A button that chooses a file for @p line, which is in the last row. */
    QPushButton *addBrowse(QLineEdit *line, const QString &name, const QStringList &filters);
    void chooseFile(QLineEdit *line, const QStringList &filters);
    void showServer();
    void check();
    /** The text says what is wrong and where; the field is null when it has none for it. */
    struct Fault
    {
        QString text;
        QWidget *field = nullptr;
    };
    [[nodiscard]] Fault firstFault() const;
    [[nodiscard]] QWidget *fieldOf(const QString &path) const;
    [[nodiscard]] QString labelOf(const QWidget *field) const;
    /** Moves to the field that is to be mended; false when none is. */
    bool showFault();
    void test();
    void showTest();

    LiveData *const m_data;
    const sources::SourceSettings m_original;
    const bool m_isNew;
    QGridLayout *m_grid;
    QLineEdit *m_name;
    QCheckBox *m_enabled;
    QLineEdit *m_file = nullptr;
    QLineEdit *m_url = nullptr;
    QPlainTextEdit *m_headers = nullptr;
    QLineEdit *m_certificate = nullptr;
    QComboBox *m_driver = nullptr;
    QLineEdit *m_host = nullptr;
    QSpinBox *m_port = nullptr;
    QLineEdit *m_database = nullptr;
    QPushButton *m_browseDatabase = nullptr;
    QLineEdit *m_user = nullptr;
    QLineEdit *m_password = nullptr;
    QueryEdits *m_queries = nullptr;
    QComboBox *m_format = nullptr;
    QComboBox *m_delimiter = nullptr;
    QComboBox *m_encoding = nullptr;
    QDoubleSpinBox *m_interval = nullptr;
    QDoubleSpinBox *m_timeout = nullptr;
    QPushButton *m_test = nullptr;
    QLabel *m_notice = nullptr;
    QLabel *m_result = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
    std::unique_ptr<sources::DataSource> m_tried;
};

} // namespace workbench
