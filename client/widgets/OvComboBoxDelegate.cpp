#include "widgets/OvComboBoxDelegate.h"

#include <QAbstractItemView>
#include <QPainter>

namespace {

// Sizes in pixels and colours that make the rows look as designed.
namespace Look {
constexpr int rowHeight = 32;
constexpr int textMargin = 8;
constexpr QRgb ground = qRgb(48, 49, 51);
constexpr QRgb groundUnderPointer = qRgb(72, 74, 78);
constexpr QRgb text = qRgb(255, 255, 255);
} // namespace Look

bool hasWidget(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    return view && view->indexWidget(index);
}

} // namespace

OvComboBoxDelegate::OvComboBoxDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{ }

OvComboBoxDelegate::~OvComboBoxDelegate() = default;

void OvComboBoxDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const bool isChosen = option.state & (QStyle::State_Selected | QStyle::State_MouseOver);
    painter->fillRect(option.rect, QColor::fromRgb(isChosen ? Look::groundUnderPointer : Look::ground));
    if (hasWidget(option, index))
        return;
    const QRect textRect = option.rect.adjusted(Look::textMargin, 0, -Look::textMargin, 0);
    painter->setPen(QColor::fromRgb(Look::text));
    painter->setFont(option.font);
    painter->drawText(textRect, static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft),
        option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, textRect.width()));
}

QSize OvComboBoxDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {QStyledItemDelegate::sizeHint(option, index).width() + 2 * Look::textMargin, Look::rowHeight};
}

void OvComboBoxDelegate::updateEditorGeometry(
    QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}
