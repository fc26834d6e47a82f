#include "sourcedialog.h"

#include "datamodel.h"
#include "datasourceconfigmanager.h"
#include "livedata.h"
#include "queryedits.h"
#include "secrets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>

namespace workbench {

using sources::SourceHealth;
using sources::SourceSettings;

namespace {

constexpr int KeysShown = 6;

QVector<sources::NamedText> headersOf(const QString &text)
{
    QVector<sources::NamedText> headers;
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QString name = line.section(QLatin1Char(':'), 0, 0).trimmed();
        if (!name.isEmpty()) {
            headers.append({name, line.section(QLatin1Char(':'), 1).trimmed()});
        }
    }
    return headers;
}

/** What was tried, in a few lines: how it went and what it offers. */
QString resultText(const sources::DataSource &source)
{
    const SourceHealth &health = source.health();
    QString text = DataModel::stateText(health, true);
    if (health.state == SourceHealth::Good) {
        const QVector<DataSourceKey> &keys = source.keys();
        for (const DataSourceKey &key : keys.mid(0, KeysShown)) {
            text += QStringLiteral("\n%1 = %2").arg(key.name, key.value.left(60).simplified());
        }
        if (keys.size() > KeysShown) {
            text += QLatin1Char('\n') +
                    SourceDialog::tr("… and %n more key(s)", nullptr, keys.size() - KeysShown);
        }
    }
    return text;
}

/** The table "rows" comes from the member "query", unless the file has it another way. */
void takeQuery(SourceSettings *settings, const SourceSettings &original)
{
    const auto isRows = [](const sources::NamedText &query) {
        return query.name == QLatin1String("rows");
    };
    QVector<sources::NamedText> &queries = settings->queries;
    const bool wasNamed = original.query.isEmpty() &&
                          std::any_of(original.queries.begin(), original.queries.end(), isRows);
    const auto rows = std::find_if(queries.begin(), queries.end(), isRows);
    if (rows != queries.end() && !wasNamed) {
        settings->query = rows->text;
        queries.erase(rows);
    }
}

} // namespace

/** Fills the form again with what was there, and adds what is new. */
SourceSettings SourceDialog::settings() const
{
    SourceSettings settings = m_original;
    settings.name = m_name->text().trimmed();
    settings.enabled = m_enabled->isChecked();
    if (m_file != nullptr) {
        settings.file = m_file->text().trimmed();
    }
    if (m_url != nullptr) {
        settings.url = m_url->text().trimmed();
        settings.headers = headersOf(m_headers->toPlainText());
        settings.certificate = m_certificate->text().trimmed();
    }
    if (m_driver != nullptr) {
        settings.connection.driver = m_driver->currentText();
        settings.connection.host = m_host->text().trimmed();
        settings.connection.port = m_port->value();
        settings.connection.database = m_database->text().trimmed();
        settings.connection.user = m_user->text().trimmed();
        settings.connection.password = m_password->text();
        settings.query.clear();
        settings.queries = m_queries->queries();
        takeQuery(&settings, m_original);
    }
    if (m_format != nullptr) {
        settings.format = m_format->currentData().toString();
        settings.delimiter = m_delimiter->currentData().toString();
        settings.encoding = m_encoding->currentData().toString();
    }
    if (m_interval != nullptr) {
        settings.interval = m_interval->value();
    }
    if (m_timeout != nullptr) {
        settings.timeout = m_timeout->value();
    }
    return settings;
}

/** The field of a member of the settings. */
QWidget *SourceDialog::fieldOf(const QString &path) const
{
    const QVector<QPair<QLatin1String, QWidget *>> fields{
        {QLatin1String("name"), m_name},
        {QLatin1String("file"), m_file},
        {QLatin1String("url"), m_url},
        {QLatin1String("headers"), m_headers},
        {QLatin1String("certificate"), m_certificate},
        {QLatin1String("connection.driver"), m_driver},
        {QLatin1String("connection.host"), m_host},
        {QLatin1String("connection.database"), m_database},
        {QLatin1String("connection.user"), m_user},
        {QLatin1String("connection.password"), m_password},
        {QLatin1String("quer"), m_queries}, // "query" and "queries"
        {QLatin1String("format"), m_format},
        {QLatin1String("delimiter"), m_delimiter},
        {QLatin1String("encoding"), m_encoding},
    };
    for (const auto &[member, field] : fields) {
        if (path.startsWith(member)) {
            return field;
        }
    }
    return nullptr;
}

SourceDialog::Fault SourceDialog::firstFault() const
{
    const SourceSettings now = settings();
    const bool isRenamed = m_isNew || now.name != m_original.name;
    if (isRenamed && m_data->freeName(now.name) != now.name) {
        return {tr("There is another source of that name."), m_name};
    }
    const bool hasQueries = m_queries != nullptr && now.replay.isEmpty();
    if (hasQueries && !m_queries->fault().isEmpty()) {
        return {tr("%1: %2").arg(labelOf(m_queries), m_queries->fault()), m_queries};
    }
    const auto faults = sources::settingsFaults(now, JsonPath());
    if (faults.isEmpty()) {
        return {};
    }
    const QString path = faults.constFirst().path.text();
    QWidget *const field = fieldOf(path);
    return {tr("%1: %2").arg(field != nullptr ? labelOf(field) : path, faults.constFirst().reason),
            field};
}

void SourceDialog::check()
{
    m_notice->setText(firstFault().text);
}

bool SourceDialog::showFault()
{
    const Fault fault = firstFault();
    if (fault.field != nullptr && fault.field == m_queries) {
        m_queries->focusFault();
    } else if (fault.field != nullptr) {
        fault.field->setFocus();
    }
    return !fault.text.isEmpty();
}

void SourceDialog::accept()
{
    if (!showFault()) {
        QDialog::accept();
    }
}

void SourceDialog::test()
{
    if (showFault()) {
        return;
    }
    SourceSettings tried = settings();
    tried.enabled = true;
    sources::SourceContext context = m_data->context();
    context.cacheFolder.clear(); // what is shown is to come from the source
    m_tried = std::make_unique<sources::DataSource>(tried, context);
    connect(m_tried.get(), &sources::DataSource::healthChanged, this, &SourceDialog::showTest);
    m_result->setText(tr("Reading …"));
    m_tried->start();
}

void SourceDialog::showTest()
{
    const SourceHealth::State state = m_tried->health().state;
    if (state == SourceHealth::Starting || state == SourceHealth::Off) {
        if (!m_tried->health().error.isEmpty()) {
            m_result->setText(m_tried->health().error);
        }
        return;
    }
    m_result->setText(resultText(*m_tried));
}

std::unique_ptr<SourceSettings> SourceDialog::ask(LiveData *live, const SourceSettings &settings,
                                                  bool isNew, QWidget *parent)
{
    const QPointer<SourceDialog> dialog(new SourceDialog(live, settings, isNew, parent));
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    std::unique_ptr<SourceSettings> result;
    if (dialog && isAccepted) {
        result = std::make_unique<SourceSettings>(dialog->settings());
    }
    delete dialog;
    return result;
}

} // namespace workbench
