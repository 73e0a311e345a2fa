// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/flowlayout.h"

#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace SampleHost {

FlowLayout::FlowLayout(int columnSpacing, int rowSpacing, QWidget* parent)
    : QLayout(parent), m_columnSpacing(columnSpacing), m_rowSpacing(rowSpacing)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[std::size_t(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    if (itemAt(index) == nullptr) {
        return nullptr;
    }
    QLayoutItem* item = m_items[std::size_t(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

int FlowLayout::heightForWidth(int width) const
{
    return arrange(QRect(0, 0, width, 0), false);
}

QSize FlowLayout::sizeHint() const
{
    QSize size;
    for (const auto& item : m_items) {
        const QSize hint = item->sizeHint();
        size.rwidth() += hint.width() + (size.isEmpty() ? 0 : m_columnSpacing);
        size.setHeight(std::max(size.height(), hint.height()));
    }
    return size;
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const auto& item : m_items) {
        size = size.expandedTo(item->minimumSize());
    }
    return size;
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

/** Fills rows from the top and returns their height. */
int FlowLayout::arrange(const QRect& rect, bool place) const
{
    const Qt::LayoutDirection direction =
        parentWidget() != nullptr ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    QPoint corner = rect.topLeft();
    int rowHeight = 0;
    for (const auto& item : m_items) {
        const QSize hint = item->sizeHint();
        if (corner.x() > rect.left() && corner.x() + hint.width() > rect.left() + rect.width()) {
            corner = QPoint(rect.left(), corner.y() + rowHeight + m_rowSpacing);
            rowHeight = 0;
        }
        if (place) {
            const QRect wanted(corner, QSize(std::min(hint.width(), rect.width()), hint.height()));
            item->setGeometry(QStyle::visualRect(direction, rect, wanted));
        }
        corner.rx() += hint.width() + m_columnSpacing;
        rowHeight = std::max(rowHeight, hint.height());
    }
    return corner.y() + rowHeight - rect.top();
}

} // namespace SampleHost
