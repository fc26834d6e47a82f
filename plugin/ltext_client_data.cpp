#include "datasourceconfigmanager.h"
#include "fieldchooser.h"
#include "ltext_client_p.h"
#include "textedit.h"

#include <QHash>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace Lum {
namespace LTextPlugin {

namespace {

/** Where the bind key of one table type is kept. */
struct TableKey
{
    QString (LTextEffectNode::*get)() const;
    void (LTextEffectNode::*set)(const QString &value);
};

/** The key of a table type; null for a number that is none. */
const TableKey *tableKey(int tableType)
{
    static const TableKey keys[] = {
        {&LTextEffectNode::GetTableFixedBindKey, &LTextEffectNode::SetTableFixedBindKey},
        {&LTextEffectNode::GetTableRowBindKey, &LTextEffectNode::SetTableRowBindKey},
        {&LTextEffectNode::GetTableColBindKey, &LTextEffectNode::SetTableColBindKey},
        {&LTextEffectNode::GetTableAdaptRowsColsBindKey,
         &LTextEffectNode::SetTableAdaptRowsColsBindKey},
    };
    const bool known = tableType >= 0 && tableType < static_cast<int>(std::size(keys));
    return known ? &keys[tableType] : nullptr;
}

/** The entries of the field chooser: unbound, then what can be bound, @p stored in any case. */
QStringList chooserEntries(QStringList fields, const QString &stored)
{
    const auto place = std::lower_bound(fields.begin(), fields.end(), stored);
    if (!stored.isEmpty() && (place == fields.end() || *place != stored)) {
        fields.insert(place, stored);
    }
    // A null text would not be drawn at all, not even in words.
    fields.prepend(QStringLiteral(""));
    return fields;
}

} // namespace

void LTextClient::ConnectData()
{
    connect(m_form->FieldCbx, SIGNAL(currentIndexChanged(QString)), this,
            SLOT(OnTableBindFieldChanged(QString)), Qt::UniqueConnection);
    connect(m_form->ConditionalStylesBtn, SIGNAL(clicked(bool)), this,
            SLOT(OnConditionalStylesClicked()), Qt::UniqueConnection);
    connect(m_form->setOperation, SIGNAL(clicked(bool)), this, SLOT(OnSetOperationClicked()),
            Qt::UniqueConnection);
}

void LTextClient::HandleConfigChanged()
{
    const Bound bound(this);
    if (!bound) {
        return;
    }
    if (m_handlingConfig) {
        m_configStale = true;
        return;
    }
    const QPointer<LTextClient> self(this);
    m_handlingConfig = true;
    // Another round follows what came back meanwhile; the limit is for a host that never rests.
    constexpr int mostRounds = 3;
    for (int round = 0; self && (round == 0 || m_configStale) && round < mostRounds; ++round) {
        m_configStale = false;
        const bool changed = RegisterFields();
        if (self && (changed || round == 0)) {
            emit DataSourceConfigManager::instance()->SourceChanged();
        }
        if (self && changed) {
            FillFieldChooser();
        }
        if (self) {
            LoadRecords();
        }
        if (self) {
            ShowBoundField();
        }
        if (self) {
            ApplyBoundField();
        }
    }
    if (self) {
        m_handlingConfig = false;
    }
}

QMap<QString, QString> LTextClient::FieldsOnOffer(const DataSourceConfig &config,
                                                  const QVector<DynamicDataSource> &sources)
{
    QHash<QString, int> sourceTypes;
    for (const DataSourceEntry &source : config.sources) {
        sourceTypes.insert(source.name, source.type);
    }
    QMap<QString, QString> fields;
    for (const DynamicDataSource &source : sources) {
        const bool system = sourceTypes.value(source.name) == DataSourceEntry::System;
        for (const DynamicDataField &field : source.fields) {
            if (field.selected || system) {
                fields.insert(source.name + QLatin1Char(':') + field.name, field.value);
            }
        }
    }
    return fields;
}

// A push of a document without a table announces the configuration at every key: what is known
// already must cost nothing. Comparing values that share their data does.
bool LTextClient::RegisterFields()
{
    const Bound bound(this);
    const DataSourceConfigManager *const manager = DataSourceConfigManager::instance();
    const DataSourceConfig config = manager->GetConfig();
    const QVector<DynamicDataSource> sources = manager->GetDynamicData();
    if (!bound || (m_registeredNode == m_node && m_config == config && m_sources == sources)) {
        return false;
    }
    m_registeredNode = m_node;
    m_config = config;
    m_sources = sources;
    const QMap<QString, QString> fields = FieldsOnOffer(config, sources);
    if (bound.value(&LTextEffectNode::FieldNameValues) == fields || !bound) {
        return true;
    }
    m_node->ClearFieldNameValue();
    for (auto field = fields.cbegin(); field != fields.cend() && bound; ++field) {
        m_node->AddFieldNameValue(field.key(), field.value());
    }
    return true;
}

QString LTextClient::BoundField()
{
    const Bound bound(this);
    const TableKey *const key = tableKey(bound.value(&LTextEffectNode::GetTableType, -1));
    return key ? bound.value(key->get) : QString();
}

void LTextClient::FillFieldChooser()
{
    const Bound bound(this);
    const QString stored = BoundField();
    const QMap<QString, QString> fields = bound.value(&LTextEffectNode::FieldNameValues);
    if (!bound) {
        return;
    }
    QComboBox *const chooser = m_form->FieldCbx;
    const QSignalBlocker blocker(chooser);
    const QStringList entries = chooserEntries(fields.keys(), stored);
    if (entries != m_fieldEntries) {
        m_fieldEntries = entries;
        chooser->clear();
        chooser->addItems(entries);
    }
    chooser->setCurrentIndex(entries.indexOf(stored));
}

void LTextClient::ShowBoundField()
{
    const QPointer<LTextClient> self(this);
    const QString stored = BoundField();
    if (self && m_form->FieldCbx->currentText() != stored) {
        FillFieldChooser();
    }
}

void LTextClient::ApplyBoundField()
{
    const Bound bound(this);
    const QString field = BoundField();
    if (bound) { // what was read of one item is none of another's
        OnTableBindFieldChanged(field);
    }
}

void LTextClient::OnTableBindFieldChanged(const QString &bindField)
{
    const Bound bound(this);
    // The combo box that owns the text may be filled anew meanwhile.
    const QString field = bindField;
    const TableKey *const key = tableKey(bound.value(&LTextEffectNode::GetTableType, -1));
    if (!key || bound.value(key->get) == field || !bound) {
        return;
    }
    m_node->SetTableBindKey(field);
    if (bound) {
        (m_node->*key->set)(field);
    }
    if (bound) {
        m_form->wgtTextEditor->OnFieldChanged();
    }
}

void LTextClient::DocumentHasTable(bool value)
{
    m_hasTable = value;
    m_form->FieldLab->setVisible(value);
    m_form->FieldCbx->setVisible(value);
    if (value) {
        ShowBoundField();
    }
}

} // namespace LTextPlugin
} // namespace Lum
