#include "nodedelegate.h"

#include "drawnicons.h"
#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "programmetreemodel.h"

#include <QApplication>
#include <QPainter>

namespace workbench {

namespace {

constexpr QSize ThumbnailSize(64, 36);
constexpr int SignSide = 16;
constexpr int Gap = 8;
constexpr int Inset = 4;

LNode *nodeOf(const QModelIndex &index)
{
    const auto *model = qobject_cast<const ProgrammeTreeModel *>(index.model());
    return model != nullptr ? model->nodeAt(index) : nullptr;
}

bool isItem(const LNode *node)
{
    return qobject_cast<const LTextEffectNode *>(node) != nullptr;
}

Drawing drawingOf(const LNode *node)
{
    if (qobject_cast<const LControllerNode *>(node) != nullptr) {
        return Drawing::Controller;
    }
    return qobject_cast<const LScreenNode *>(node) != nullptr ? Drawing::Screen : Drawing::Frame;
}

/** Where the picture is, at the left edge of the row. */
QRect pictureRect(const QRect &row, const LNode *node)
{
    const QSize size = isItem(node) ? ThumbnailSize : QSize(SignSide, SignSide);
    return {QPoint(row.left() + Inset, row.top() + (row.height() - size.height()) / 2), size};
}

QRect textRect(const QRect &row, const LNode *node)
{
    return row.adjusted(pictureRect(row, node).right() - row.left() + Gap, 2, -Inset, -2);
}

void paintThumbnail(QPainter *painter, const QRect &place, const QImage &image,
                    const QPalette &palette)
{
    painter->fillRect(place, Qt::black);
    if (!image.isNull()) {
        const QSize size = image.size().scaled(place.size(), Qt::KeepAspectRatio);
        QRect target(QPoint(0, 0), size);
        target.moveCenter(place.center());
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(target, image);
    }
    painter->setPen(palette.color(QPalette::Mid));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(place.adjusted(-1, -1, 0, 0));
}

QString sizeText(const LNode *node)
{
    const QSize size = node->Size();
    const QString text = size.isValid()
                             ? NodeDelegate::tr("%1 × %2").arg(size.width()).arg(size.height())
                             : NodeDelegate::tr("no size");
    const auto *controller = qobject_cast<const LControllerNode *>(node);
    if (controller == nullptr) {
        return text;
    }
    // Screens may all have sizes of their own.
    const QString kind = controller->GetDeviceKind();
    return size.isValid() ? NodeDelegate::tr("%1, %2").arg(kind, text) : kind;
}

QImage imageOf(const QVariant &decoration)
{
    if (decoration.canConvert<QPixmap>() && decoration.userType() == QMetaType::QPixmap) {
        return decoration.value<QPixmap>().toImage();
    }
    return decoration.value<QImage>();
}

} // namespace

void NodeDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const LNode *node = nodeOf(index);
    if (node == nullptr) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStyle *style = row.widget != nullptr ? row.widget->style() : QApplication::style();
    painter->save();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, row.widget);
    const bool isSelected = row.state & QStyle::State_Selected;
    const QPalette::ColorGroup group =
        row.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    const QPalette::ColorRole role = isSelected ? QPalette::HighlightedText : QPalette::Text;
    QColor text = row.palette.color(group, role);
    const QRect picture = pictureRect(row.rect, node);
    if (isItem(node)) {
        paintThumbnail(painter, picture, imageOf(index.data(Qt::DecorationRole)), row.palette);
    } else {
        QPalette signs = row.palette;
        signs.setColor(QPalette::ButtonText, text);
        drawnIcon(drawingOf(node), signs).paint(painter, picture);
    }
    const QRect lines = textRect(row.rect, node);
    const int middle = lines.top() + lines.height() / 2;
    painter->setPen(text);
    painter->drawText(QRect(lines.left(), lines.top(), lines.width(), middle - lines.top()),
                      Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
                      row.fontMetrics.elidedText(index.data(Qt::DisplayRole).toString(),
                                                 Qt::ElideRight, lines.width()));
    text.setAlphaF(isSelected ? 0.8 : 0.6);
    painter->setPen(text);
    QFont small = row.font;
    small.setPixelSize(std::max(10, QFontInfo(row.font).pixelSize() - 2));
    painter->setFont(small);
    painter->drawText(QRect(lines.left(), middle, lines.width(), lines.bottom() + 1 - middle),
                      Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, sizeText(node));
    painter->restore();
}

QSize NodeDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const LNode *node = nodeOf(index);
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const int lines = 2 * row.fontMetrics.height() + 2;
    const int height = isItem(node) ? std::max(lines, ThumbnailSize.height() + 8) : lines + 2;
    const int picture = isItem(node) ? ThumbnailSize.width() : SignSide;
    const int width = row.fontMetrics.horizontalAdvance(row.text);
    return {Inset + picture + Gap + width + Inset, height};
}

void NodeDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    const QRect lines = textRect(option.rect, nodeOf(index));
    const int height = std::min(lines.height(), editor->sizeHint().height());
    editor->setGeometry(lines.left() - 3, lines.top() + (lines.height() - height) / 2,
                        lines.width() + 3, height);
}

} // namespace workbench
