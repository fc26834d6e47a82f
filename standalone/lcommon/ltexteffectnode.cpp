#include "ltexteffectnode.h"

#include "attributestore.h"
#include "lappconfig.h"

#include <utility>

using LUM_EditInterface::LTableProperties;

static const QString s_recordKey = QStringLiteral("TableProperties");
static const QString s_rows = QStringLiteral("rows");
static const QString s_columns = QStringLiteral("columns");
static const QString s_backgroundColor = QStringLiteral("backgroundColor");
static const QString s_width = QStringLiteral("width");
static const QString s_borderWidth = QStringLiteral("borderWidth");
static const QString s_borderColor = QStringLiteral("borderColor");
static const QString s_cellPadding = QStringLiteral("cellPadding");

class LTextEffectNodePrivate
{
public:
    QMap<QString, QString> fieldValues;
    QImage preview;
    int pageCount = 1;
    int currentPage = 1;
};

LTextEffectNode::LTextEffectNode(LNode *parent)
    : LEffectNode(parent)
    , d(new LTextEffectNodePrivate)
{}

LTextEffectNode::~LTextEffectNode() = default;

QString LTextEffectNode::TypeText() const
{
    return QStringLiteral("Text");
}

LTableProperties LTextEffectNode::GetTableProperties() const
{
    const QVariantMap record = Attribute(s_recordKey).toMap();
    const auto read = [&record](const QString &key, auto fallback) {
        return readAttribute(record.value(key), fallback);
    };
    LTableProperties properties;
    properties.rows = read(s_rows, properties.rows);
    properties.columns = read(s_columns, properties.columns);
    properties.backgroundColor = read(s_backgroundColor, properties.backgroundColor);
    properties.width = read(s_width, properties.width);
    properties.borderWidth = read(s_borderWidth, properties.borderWidth);
    properties.borderColor = read(s_borderColor, properties.borderColor);
    properties.cellPadding = read(s_cellPadding, properties.cellPadding);
    properties.type = GetTableType();
    properties.pageTurnDirection = TextPageTurnDirection();
    properties.header = GetTableHeader();
    properties.fixedHeader = GetTableFixedHeader();
    properties.fillArea = GetTableFillArea();
    return properties;
}

void LTextEffectNode::SetTableProperties(const LTableProperties &properties)
{
    // What a newer version keeps in the record stays in it.
    QVariantMap record = Attribute(s_recordKey).toMap();
    record.insert(s_rows, properties.rows);
    record.insert(s_columns, properties.columns);
    record.insert(s_backgroundColor, properties.backgroundColor);
    record.insert(s_width, properties.width);
    record.insert(s_borderWidth, properties.borderWidth);
    record.insert(s_borderColor, properties.borderColor);
    record.insert(s_cellPadding, properties.cellPadding);
    SetAttributes({{s_recordKey, record},
                   {QStringLiteral("TableType"), properties.type},
                   {QStringLiteral("PageTurnDirection"), properties.pageTurnDirection},
                   {QStringLiteral("TableHeader"), properties.header},
                   {QStringLiteral("TableFixedHeader"), properties.fixedHeader},
                   {QStringLiteral("TableFillArea"), properties.fillArea}});
}

void LTextEffectNode::ClearFieldNameValue()
{
    if (!d->fieldValues.isEmpty()) {
        d->fieldValues.clear();
        emit FieldNameValueChanged();
    }
}

void LTextEffectNode::AddFieldNameValue(const QString &name, const QString &value)
{
    const auto found = d->fieldValues.constFind(name);
    if (found == d->fieldValues.constEnd() || *found != value) {
        d->fieldValues.insert(name, value);
        emit FieldNameValueChanged();
    }
}

QMap<QString, QString> LTextEffectNode::FieldNameValues() const
{
    return d->fieldValues;
}

int LTextEffectNode::GetPageCount() const
{
    return d->pageCount;
}

void LTextEffectNode::SetPageCount(int count)
{
    d->pageCount = qMax(1, count);
}

int LTextEffectNode::GetCurrentPage() const
{
    return d->currentPage;
}

void LTextEffectNode::SetCurrentPage(int page)
{
    d->currentPage = qMax(1, page);
}

void LTextEffectNode::PageChanged()
{
    emit PlayIndexChanged(d->currentPage, d->pageCount);
}

void LTextEffectNode::UpdatePreviewCache(QImage image)
{
    if (image.cacheKey() == d->preview.cacheKey()) {
        return;
    }
    d->preview = std::move(image);
    emit PreviewCacheChanged();
}

QImage LTextEffectNode::PreviewCache() const
{
    return d->preview;
}

QImage LTextEffectNode::NodeImage(const QSize &size) const
{
    if (size.isEmpty()) {
        return QImage();
    }
    QImage image(size, QImage::Format_ARGB32);
    image.fill(GetTransBgColor() ? QColor(Qt::transparent)
                                 : LAppConfig::IntToColor(GetEditBgColor()));
    return image;
}
