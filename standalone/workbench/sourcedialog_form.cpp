#include "livedata.h"
#include "sourcedialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace workbench {

using sources::SourceSettings;

namespace {

constexpr int PreferredWidth = 520;
constexpr int LinesOfText = 4;

QPlainTextEdit *makeText(const QString &name, const QString &text, QWidget *parent)
{
    auto *edit = new QPlainTextEdit(text, parent);
    edit->setObjectName(name);
    edit->setTabChangesFocus(true);
    edit->setFixedHeight(edit->fontMetrics().lineSpacing() * LinesOfText + 12);
    return edit;
}

void choose(QComboBox *box, const QString &value)
{
    const int index = box->findData(value);
    if (index < 0) {
        box->addItem(value, value);
    }
    box->setCurrentIndex(index < 0 ? box->count() - 1 : index);
}

QString textOf(const QVector<sources::NamedText> &headers)
{
    QStringList lines;
    for (const sources::NamedText &header : headers) {
        lines.append(QStringLiteral("%1: %2").arg(header.name, header.text));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

QString sourceKindName(int type)
{
    switch (type) {
    case DataSourceEntry::CsvFile:
        return SourceDialog::tr("CSV or text file");
    case DataSourceEntry::JsonFile:
        return SourceDialog::tr("JSON file");
    case DataSourceEntry::Http:
        return SourceDialog::tr("Web address");
    case DataSourceEntry::Sql:
        return SourceDialog::tr("Database");
    case DataSourceEntry::System:
        return SourceDialog::tr("System");
    default:
        return SourceDialog::tr("Kind %1").arg(type);
    }
}

SourceDialog::SourceDialog(LiveData *live, const SourceSettings &settings, bool isNew,
                           QWidget *parent)
    : QDialog(parent)
    , m_data(live)
    , m_original(settings)
    , m_isNew(isNew)
    , m_grid(new QGridLayout)
    , m_enabled(new QCheckBox(tr("&In use"), this))
{
    setObjectName(QStringLiteral("SourceDialog"));
    setWindowTitle(tr("Data Source – %1").arg(sourceKindName(settings.type)));
    m_grid->setColumnStretch(1, 1);
    m_grid->setHorizontalSpacing(10);
    m_grid->setVerticalSpacing(8);
    m_name = addLine(QStringLiteral("SourceName"), tr("&Name:"), settings.name);
    m_enabled->setObjectName(QStringLiteral("SourceEnabled"));
    m_enabled->setChecked(settings.enabled);
    const bool isFile =
        settings.type == DataSourceEntry::CsvFile || settings.type == DataSourceEntry::JsonFile;
    if (isFile) {
        buildFile();
    } else if (settings.type == DataSourceEntry::Http) {
        buildHttp();
    } else if (settings.type == DataSourceEntry::Sql) {
        buildSql();
    }
    if (settings.type == DataSourceEntry::CsvFile || settings.type == DataSourceEntry::Http) {
        buildFormat();
    }
    buildEnd();
    check();
    resize(PreferredWidth, sizeHint().height());
}

SourceDialog::~SourceDialog() = default;

void SourceDialog::addRow(const QString &label, QWidget *field)
{
    const int row = m_grid->rowCount();
    auto *text = new QLabel(label, this);
    text->setBuddy(field);
    const bool isTall = qobject_cast<QPlainTextEdit *>(field) != nullptr;
    m_grid->addWidget(text, row, 0, isTall ? Qt::AlignTop : Qt::AlignVCenter);
    m_grid->addWidget(field, row, 1);
}

QLineEdit *SourceDialog::addLine(const QString &name, const QString &label, const QString &text,
                                 const QString &hint)
{
    auto *line = new QLineEdit(text, this);
    line->setObjectName(name);
    line->setPlaceholderText(hint);
    addRow(label, line);
    connect(line, &QLineEdit::textChanged, this, &SourceDialog::check);
    return line;
}

QDoubleSpinBox *SourceDialog::addSeconds(const QString &name, const QString &label, double value)
{
    auto *box = new QDoubleSpinBox(this);
    box->setObjectName(name);
    box->setRange(0, 86400);
    box->setDecimals(1);
    box->setSuffix(tr(" s"));
    box->setSpecialValueText(tr("automatic"));
    box->setValue(value);
    addRow(label, box);
    return box;
}

void SourceDialog::buildFile()
{
    m_file = addLine(QStringLiteral("SourceFile"), tr("&File:"), m_original.file,
                     tr("relative to the programme, or a full path"));
    auto *browse = new QPushButton(tr("&Browse..."), this);
    browse->setObjectName(QStringLiteral("BrowseFile"));
    m_grid->addWidget(browse, m_grid->rowCount() - 1, 2);
    connect(browse, &QPushButton::clicked, this, &SourceDialog::chooseFile);
}

void SourceDialog::buildHttp()
{
    m_url = addLine(QStringLiteral("SourceUrl"), tr("&Address:"), m_original.url,
                    QStringLiteral("https://"));
    m_headers = makeText(QStringLiteral("SourceHeaders"), textOf(m_original.headers), this);
    m_headers->setPlaceholderText(tr("One a line, secrets by reference:") +
                                  QStringLiteral("\nAuthorization: Bearer ${env:TOKEN}"));
    addRow(tr("&Headers:"), m_headers);
    connect(m_headers, &QPlainTextEdit::textChanged, this, &SourceDialog::check);
    m_interval =
        addSeconds(QStringLiteral("SourceInterval"), tr("&Read every:"), m_original.interval);
    m_timeout =
        addSeconds(QStringLiteral("SourceTimeout"), tr("&Give up after:"), m_original.timeout);
}

void SourceDialog::buildSql()
{
    const sources::SqlConnection &connection = m_original.connection;
    m_driver = new QComboBox(this);
    m_driver->setObjectName(QStringLiteral("SourceDriver"));
    for (const char *driver : {"QSQLITE", "QPSQL", "QMYSQL", "QODBC"}) {
        m_driver->addItem(QLatin1String(driver), QLatin1String(driver));
    }
    choose(m_driver, connection.driver.isEmpty() ? m_driver->itemText(0) : connection.driver);
    addRow(tr("Dri&ver:"), m_driver);
    m_database = addLine(QStringLiteral("SourceDatabase"), tr("&Database:"), connection.database,
                         tr("its name, or its file with QSQLITE"));
    m_host = addLine(QStringLiteral("SourceHost"), tr("&Host:"), connection.host);
    m_port = new QSpinBox(this);
    m_port->setObjectName(QStringLiteral("SourcePort"));
    m_port->setRange(0, 65535);
    m_port->setSpecialValueText(tr("automatic"));
    m_port->setValue(connection.port);
    addRow(tr("&Port:"), m_port);
    m_user = addLine(QStringLiteral("SourceUser"), tr("&User:"), connection.user);
    m_password = addLine(QStringLiteral("SourcePassword"), tr("Pass&word:"), connection.password,
                         QStringLiteral("${env:NAME}"));
    m_query = makeText(QStringLiteral("SourceQuery"), m_original.query, this);
    m_query->setPlaceholderText(QStringLiteral("SELECT name, price FROM goods ORDER BY name"));
    addRow(tr("&Query:"), m_query);
    connect(m_query, &QPlainTextEdit::textChanged, this, &SourceDialog::check);
    const auto showServer = [this] {
        const bool hasServer = m_driver->currentText() != QLatin1String("QSQLITE");
        for (QWidget *field : QVector<QWidget *>{m_host, m_port, m_user, m_password}) {
            field->setEnabled(hasServer);
        }
        check();
    };
    m_interval =
        addSeconds(QStringLiteral("SourceInterval"), tr("&Read every:"), m_original.interval);
    m_timeout =
        addSeconds(QStringLiteral("SourceTimeout"), tr("&Give up after:"), m_original.timeout);
    connect(m_driver, &QComboBox::currentTextChanged, this, showServer);
    const bool hasServer = m_driver->currentText() != QLatin1String("QSQLITE");
    for (QWidget *field : QVector<QWidget *>{m_host, m_port, m_user, m_password}) {
        field->setEnabled(hasServer);
    }
}

void SourceDialog::buildFormat()
{
    m_format = new QComboBox(this);
    m_format->setObjectName(QStringLiteral("SourceFormat"));
    m_format->addItem(tr("automatic"), QString());
    m_format->addItem(QStringLiteral("CSV"), QStringLiteral("csv"));
    m_format->addItem(tr("plain text"), QStringLiteral("text"));
    if (m_original.type == DataSourceEntry::Http) {
        m_format->addItem(QStringLiteral("JSON"), QStringLiteral("json"));
    }
    choose(m_format, m_original.format);
    addRow(tr("For&mat:"), m_format);
    m_delimiter = new QComboBox(this);
    m_delimiter->setObjectName(QStringLiteral("SourceDelimiter"));
    m_delimiter->addItem(tr("automatic"), QString());
    for (const char *delimiter : {",", ";", "|"}) {
        m_delimiter->addItem(QLatin1String(delimiter), QLatin1String(delimiter));
    }
    m_delimiter->addItem(tr("tab"), QStringLiteral("\t"));
    choose(m_delimiter, m_original.delimiter);
    addRow(tr("&Separator:"), m_delimiter);
    m_encoding = new QComboBox(this);
    m_encoding->setObjectName(QStringLiteral("SourceEncoding"));
    m_encoding->addItem(tr("automatic"), QString());
    for (const char *encoding : {"UTF-8", "UTF-16", "GB18030", "ISO-8859-1"}) {
        m_encoding->addItem(QLatin1String(encoding), QLatin1String(encoding));
    }
    choose(m_encoding, m_original.encoding);
    addRow(tr("&Encoding:"), m_encoding);
}

void SourceDialog::buildEnd()
{
    m_grid->addWidget(m_enabled, m_grid->rowCount(), 1);
    m_notice = new QLabel(this);
    m_notice->setObjectName(QStringLiteral("SourceNotice"));
    m_result = new QLabel(this);
    m_result->setObjectName(QStringLiteral("SourceResult"));
    for (QLabel *label : {m_notice, m_result}) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    m_result->setMinimumHeight(fontMetrics().lineSpacing() * 8);
    m_result->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_test = new QPushButton(tr("&Test"), this);
    m_test->setObjectName(QStringLiteral("TestSource"));
    m_test->setToolTip(tr("Read the source once and show what it delivers"));
    connect(m_test, &QPushButton::clicked, this, &SourceDialog::test);
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_buttons->setObjectName(QStringLiteral("SourceButtons"));
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *last = new QHBoxLayout;
    last->addWidget(m_test);
    last->addStretch(1);
    last->addWidget(m_buttons);
    auto *column = new QVBoxLayout(this);
    column->addLayout(m_grid);
    column->addWidget(m_notice);
    column->addWidget(m_result, 1);
    column->addLayout(last);
}

void SourceDialog::chooseFile()
{
    const QDir folder(m_data->context().folder);
    const QPointer<QFileDialog> dialog(new QFileDialog(this, tr("Choose a File"), folder.path()));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({m_original.type == DataSourceEntry::JsonFile
                                ? tr("JSON files (*.json)")
                                : tr("CSV and text files (*.csv *.tsv *.txt)"),
                            tr("All files (*)")});
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    const QString chosen = dialog && isAccepted ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    if (!chosen.isEmpty()) {
        // Inside the programme's folder a relative name goes along when the folder is moved.
        const QString relative = folder.relativeFilePath(chosen);
        m_file->setText(relative.startsWith(QLatin1String("..")) ? chosen : relative);
    }
}

} // namespace workbench
