#include "FlowLayout.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

#include <utility>
#include <vector>

FlowLayout::FlowLayout(QWidget* parent, int spacing)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(spacing);
}

FlowLayout::~FlowLayout()
{
    while (QLayoutItem* item = takeAt(0))
        delete item;
}

void FlowLayout::addItem(QLayoutItem* item)
{
    items.append(item);
}

int FlowLayout::count() const
{
    return static_cast<int>(items.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < items.size() ? items.at(index) : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    return index >= 0 && index < items.size() ? items.takeAt(index) : nullptr;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    if (width != cachedWidth) {
        cachedHeight = doLayout(QRect(0, 0, width, 0), false);
        cachedWidth = width;
    }
    return cachedHeight;
}

void FlowLayout::invalidate()
{
    cachedWidth = -1;
    QLayout::invalidate();
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem* item : items)
        size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

// Everything on one row.
QSize FlowLayout::sizeHint() const
{
    int width = 0;
    int height = 0;
    for (const QLayoutItem* item : items) {
        if (item->isEmpty())
            continue;
        width += (width > 0 ? gap(Qt::Horizontal) : 0) + item->sizeHint().width();
        height = qMax(height, item->sizeHint().height());
    }
    const QMargins margins = contentsMargins();
    return QSize(width + margins.left() + margins.right(), height + margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    doLayout(rect, true);
}

// The layout's own spacing plus what the style puts between two push buttons; both add up.
int FlowLayout::gap(Qt::Orientation orientation) const
{
    const QStyle* style = parentWidget() ? parentWidget()->style() : QApplication::style();
    const int styleGap = style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation);
    return qMax(spacing(), 0) + qMax(styleGap, 0);
}

int FlowLayout::doLayout(const QRect& rect, bool place) const
{
    const QRect area = rect.marginsRemoved(contentsMargins());
    const int hGap = gap(Qt::Horizontal);
    const int vGap = gap(Qt::Vertical);
    int x = area.x();
    int y = area.y();
    int rowHeight = 0;
    std::vector<std::pair<QLayoutItem*, int>> row; // items of the current row with their x

    // Items of one row share its height and are centred in it, so text lines up with the editors.
    const auto finishRow = [&]() {
        for (const auto& [item, left] : row) {
            const QSize size = item->sizeHint();
            if (place)
                item->setGeometry(QRect(QPoint(left, y + (rowHeight - size.height()) / 2), size));
        }
        row.clear();
    };

    for (QLayoutItem* item : items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (x + size.width() > area.right() + 1 && rowHeight > 0) {
            finishRow();
            x = area.x();
            y += rowHeight + vGap;
            rowHeight = 0;
        }
        row.emplace_back(item, x);
        x += size.width() + hGap;
        rowHeight = qMax(rowHeight, size.height());
    }
    finishRow();
    return y + rowHeight - rect.y() + contentsMargins().bottom();
}
