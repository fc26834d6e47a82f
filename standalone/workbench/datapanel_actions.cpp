#include "bindfieldsdialog.h"
#include "datamodel.h"
#include "datapanel.h"
#include "livedata.h"
#include "programmefile.h"
#include "sourcedialog.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QSortFilterProxyModel>

#include <algorithm>
#include <memory>

namespace workbench {

using sources::SourceSettings;

void DataPanel::addSource(int kind)
{
    SourceSettings settings;
    settings.type = kind;
    settings.name = m_data->freeName(sourceKindName(kind).section(QLatin1Char(' '), 0, 0));
    const std::unique_ptr<SourceSettings> edited = SourceDialog::ask(m_data, settings, true, this);
    if (edited) {
        QVector<SourceSettings> all = m_data->sources();
        all.append(*edited);
        tell(m_data->setSources(all, tr("Add data source %1").arg(edited->name)));
        showSource(edited->name);
    }
}

void DataPanel::editSource()
{
    const QString name = m_model->sourceOf(current());
    QVector<SourceSettings> all = m_data->sources();
    for (SourceSettings &source : all) {
        if (source.name == name) {
            const auto edited = SourceDialog::ask(m_data, source, false, this);
            if (edited) {
                source = *edited;
                tell(m_data->setSources(all, tr("Change data source %1").arg(name)));
                showSource(edited->name);
            }
            return;
        }
    }
}

void DataPanel::removeSource()
{
    const QString name = m_model->sourceOf(current());
    QVector<SourceSettings> all = m_data->sources();
    const auto end = std::remove_if(all.begin(), all.end(), [&name](const SourceSettings &source) {
        return source.name == name;
    });
    all.erase(end, all.end());
    tell(m_data->setSources(all, tr("Remove data source %1").arg(name)));
}

void DataPanel::readNow()
{
    m_data->manager()->refresh(m_model->sourceOf(current()));
}

void DataPanel::insertField()
{
    emit insertWanted(currentKey());
}

void DataPanel::bindTable()
{
    const QString key = BindFieldsDialog::ask(currentKey(), this);
    if (!key.isEmpty()) {
        emit bindWanted(key);
    }
}

/** Double click and Return do what is most likely meant. */
void DataPanel::activate(const QModelIndex &index)
{
    if (m_model->keyAt(m_filter->mapToSource(index)).name.isEmpty()) {
        editSource();
    } else if (m_insert->isEnabled()) {
        insertField();
    } else if (m_bind->isEnabled()) {
        bindTable();
    }
}

void DataPanel::copyKey()
{
    QApplication::clipboard()->setText(currentKey());
}

} // namespace workbench
