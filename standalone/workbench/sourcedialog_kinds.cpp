// The fields of SourceDialog that each kind of source has.

#include "livedata.h"
#include "queryedits.h"
#include "sourcedialog.h"

#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>

namespace workbench {

using sources::SourceSettings;

namespace {

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

/** All queries, that of the member "query" by the name that its table has; a new source has one. */
QVector<sources::NamedText> queriesOf(const SourceSettings &settings, bool isNew)
{
    QVector<sources::NamedText> queries = settings.queries;
    if (!settings.query.isEmpty() || isNew) {
        queries.prepend({QStringLiteral("rows"), settings.query});
    }
    return queries;
}

} // namespace

void SourceDialog::buildFile()
{
    m_file = addLine(QStringLiteral("SourceFile"), tr("&File:"), m_original.file,
                     tr("relative to the programme, or a full path"));
    addBrowse(m_file, QStringLiteral("BrowseFile"),
              {m_original.type == DataSourceEntry::JsonFile
                   ? tr("JSON files (*.json)")
                   : tr("CSV and text files (*.csv *.tsv *.txt)")});
}

QPushButton *SourceDialog::addBrowse(QLineEdit *line, const QString &name,
                                     const QStringList &filters)
{
    auto *browse = new QPushButton(tr("&Browse..."), this);
    browse->setObjectName(name);
    const int row = m_grid->rowCount() - 1;
    m_grid->removeWidget(line);
    m_grid->addWidget(line, row, 1);
    m_grid->addWidget(browse, row, 2);
    connect(browse, &QPushButton::clicked, this,
            [this, line, filters] { chooseFile(line, filters); });
    return browse;
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
    m_certificate =
        addLine(QStringLiteral("SourceCertificate"), tr("Certi&ficate:"), m_original.certificate,
                tr("file of one that the system does not trust"));
    addBrowse(m_certificate, QStringLiteral("BrowseCertificate"),
              {tr("Certificates (*.pem *.crt *.cer)")});
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
    m_browseDatabase = addBrowse(m_database, QStringLiteral("BrowseDatabase"),
                                 {tr("SQLite databases (*.sqlite *.sqlite3 *.db)")});
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
    m_queries = new QueryEdits(queriesOf(m_original, m_isNew), this);
    addRow(tr("&Queries:"), m_queries);
    connect(m_queries, &QueryEdits::changed, this, &SourceDialog::check);
    m_interval =
        addSeconds(QStringLiteral("SourceInterval"), tr("&Read every:"), m_original.interval);
    m_timeout =
        addSeconds(QStringLiteral("SourceTimeout"), tr("&Give up after:"), m_original.timeout);
    connect(m_driver, &QComboBox::currentTextChanged, this, &SourceDialog::showServer);
    connect(m_driver, &QComboBox::currentTextChanged, this, &SourceDialog::check);
    showServer();
}

void SourceDialog::showServer()
{
    const bool hasServer = m_driver->currentText() != QLatin1String("QSQLITE");
    for (QWidget *field : QVector<QWidget *>{m_host, m_port, m_user, m_password}) {
        field->setEnabled(hasServer);
    }
    m_browseDatabase->setEnabled(!hasServer);
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

void SourceDialog::chooseFile(QLineEdit *line, const QStringList &filters)
{
    const QDir folder(m_data->context().folder);
    const QPointer<QFileDialog> dialog(new QFileDialog(this, tr("Choose a File"), folder.path()));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters(filters + QStringList{tr("All files (*)")});
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    const QString chosen = dialog && isAccepted ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    if (!chosen.isEmpty()) {
        // Inside the programme's folder a relative name goes along when the folder is moved.
        const QString relative = folder.relativeFilePath(chosen);
        line->setText(relative.startsWith(QLatin1String("..")) ? chosen : relative);
    }
}

} // namespace workbench
