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

/** What a kind of source is called, in the current language. */
[[nodiscard]] QString sourceKindName(int type);

/**
 * Asks how a data source is set up, and tries it out on demand. What keeps it from being used is
 * said below the fields, and nothing is accepted before it is mended.
 */
class SourceDialog : public QDialog
{
    Q_OBJECT

public:
    /** The settings that the user accepted; null when none were. */
    [[nodiscard]] static std::unique_ptr<sources::SourceSettings>
    ask(LiveData *live, const sources::SourceSettings &settings, bool isNew, QWidget *parent);

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
    void chooseFile();
    void check();
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
    QComboBox *m_driver = nullptr;
    QLineEdit *m_host = nullptr;
    QSpinBox *m_port = nullptr;
    QLineEdit *m_database = nullptr;
    QLineEdit *m_user = nullptr;
    QLineEdit *m_password = nullptr;
    QPlainTextEdit *m_query = nullptr;
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
