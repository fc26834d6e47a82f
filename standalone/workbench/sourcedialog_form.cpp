#include "livedata.h"
#include "sourcedialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace workbench {

using sources::SourceSettings;

namespace {

constexpr int PreferredWidth = 520;

/** A label without its colon and without what shows the key to press with Alt. */
QString labelText(const QLabel &label)
{
    static const QRegularExpression extras(QStringLiteral("\\(&.\\)|&|[:：]\\s*$"));
    return label.text().remove(extras);
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
    if (!showFault()) {
        m_name->setFocus();
    }
    resize(qMax(PreferredWidth, sizeHint().width()), sizeHint().height());
}

SourceDialog::~SourceDialog() = default;

void SourceDialog::addRow(const QString &label, QWidget *field)
{
    const int row = m_grid->rowCount();
    auto *text = new QLabel(label, this);
    text->setBuddy(field);
    const bool isTall = field->sizeHint().height() > 2 * fontMetrics().lineSpacing() + 16;
    m_grid->addWidget(text, row, 0, isTall ? Qt::AlignTop : Qt::AlignVCenter);
    m_grid->addWidget(field, row, 1, 1, 2);
}

QString SourceDialog::labelOf(const QWidget *field) const
{
    const auto labels = findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QLabel *label : labels) {
        if (label->buddy() == field) {
            return labelText(*label);
        }
    }
    return {};
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

} // namespace workbench
