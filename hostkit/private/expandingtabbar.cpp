// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <expandingtabbar.h>

#include "colortext.h"
#include "plaintooltip.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionTab>
#include <QtWidgets/QToolTip>

namespace {
constexpr int spacing = 6;
// In pixels and characters: more than a screen can show, but not too much for Qt to paint.
constexpr int maxTabLength = 2000;
constexpr int maxTextLength = 1000;

// Returns the image for a character of the host's icon font; empty for any other text.
QString pictureFile(const QString& text)
{
    if (text == QLatin1String("!"))
        return QStringLiteral(":/hostkit/ribbon.png");
    if (text == QChar(0xe92a))
        return QStringLiteral(":/hostkit/blank-ribbon.png");
    if (text == QChar(0xe917))
        return QStringLiteral(":/hostkit/supply.png");
    return QString();
}

void paintColorRect(QPainter* painter, const QRectF& rect, const QString& color)
{
    painter->save();
    painter->setBrush(Qt::NoBrush);
    if (color == HostKit::blankText()) {
        painter->setPen(QPen(QColor(0x84, 0x84, 0x84), 1, Qt::DashLine));
    } else {
        HostKit::fillWithColorText(painter, rect, color);
        painter->setPen(QColor(0x46, 0x46, 0x46));
    }
    painter->drawRect(rect.adjusted(0.5, 0.5, -0.5, -0.5));
    painter->restore();
}
} // namespace

ExpandingTabBar::ExpandingTabBar(QWidget* parent) : QTabBar(parent)
{
    setExpanding(true);
}

ExpandingTabBar::~ExpandingTabBar() = default;

void ExpandingTabBar::setTabColorRect(int index, const QString& color)
{
    const bool isValid =
        color.isEmpty() || color == HostKit::blankText() || HostKit::isColorText(color);
    if (!isValid || index < 0 || index >= count() || tabColorRect(index) == color)
        return;
    setTabData(index, color.isEmpty() ? QVariant() : QVariant(color));
    // Makes QTabBar lay out its tabs again.
    setTabText(index, tabText(index));
    update();
}

QString ExpandingTabBar::tabColorRect(int index) const
{
    return tabData(index).toString();
}

void ExpandingTabBar::setTabToolTip(int index, const QString& toolTip)
{
    QTabBar::setTabToolTip(index, toolTip);
    updateAccessibleName(index);
}

bool ExpandingTabBar::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QString text = tabToolTip(tabAt(help->pos()));
        if (!text.isEmpty()) {
            QToolTip::showText(help->globalPos(), HostKit::plainToolTip(text), this);
            return true;
        }
    }
    return QTabBar::event(event);
}

void ExpandingTabBar::tabLayoutChange()
{
    QTabBar::tabLayoutChange();
    for (int index = 0; index < count(); ++index)
        updateAccessibleName(index);
}

QSize ExpandingTabBar::tabSizeHint(int index) const
{
    // Includes the icon of the tab. If the icon is part of the contents too, it is counted twice,
    // which only adds some space.
    const QSize hint = QTabBar::tabSizeHint(index).boundedTo(QSize(maxTabLength, maxTabLength));
    const QSize extra = contentsSize(index);
    if (extra.isEmpty())
        return hint;
    const bool vertical = isVertical();
    const int length = (vertical ? hint.height() : hint.width()) + extra.width() + spacing;
    const int breadth = qMax(vertical ? hint.width() : hint.height(), extra.height());
    return vertical ? QSize(breadth, length) : QSize(length, breadth);
}

void ExpandingTabBar::initStyleOption(QStyleOptionTab* option, int tabIndex) const
{
    QTabBar::initStyleOption(option, tabIndex);
    option->text.truncate(maxTextLength);
    const QSize size = contentsSize(tabIndex);
    if (size.isEmpty())
        return;
    option->icon = contentsIcon(tabIndex);
    option->iconSize = size;
    if (!pictureFile(tabText(tabIndex)).isEmpty()) {
        // Without a text, the style aligns the icon to the left. It centres an icon that is smaller
        // than the icon size, so use the length of the tab as icon size.
        option->text.clear();
        const int padding = style()->pixelMetric(QStyle::PM_TabBarTabHSpace, option, this);
        const int length = isVertical() ? option->rect.height() : option->rect.width();
        option->iconSize.setWidth(qMax(size.width(), length - padding));
    } else if (elideMode() != Qt::ElideNone) {
        const QRect textRect = style()->subElementRect(QStyle::SE_TabBarTabText, option, this);
        option->text = fontMetrics().elidedText(tabText(tabIndex).left(maxTextLength), elideMode(),
                                                textRect.width(), Qt::TextShowMnemonic);
    }
}

bool ExpandingTabBar::isVertical() const
{
    const Shape side = shape();
    return side == RoundedWest || side == RoundedEast || side == TriangularWest ||
           side == TriangularEast;
}

QSize ExpandingTabBar::contentsSize(int index) const
{
    const bool hasPicture = !pictureFile(tabText(index)).isEmpty();
    const bool hasColorRect = !tabColorRect(index).isEmpty();
    if (!hasPicture && !hasColorRect)
        return QSize();
    const bool hasIcon = hasPicture || !tabIcon(index).isNull();
    const QSize icon = iconSize();
    const int width = (hasIcon ? icon.width() : 0) + (hasColorRect ? icon.width() : 0) +
                      (hasIcon && hasColorRect ? spacing : 0) + (hasPicture ? 0 : spacing);
    return QSize(width, icon.height());
}

// Identifies the result of contents().
QString ExpandingTabBar::contentsKey(int index) const
{
    const QSize size = iconSize();
    const QStringList parts = {pictureFile(tabText(index)),
                               QString::number(tabIcon(index).cacheKey()),
                               tabColorRect(index),
                               QString::number(size.width()),
                               QString::number(size.height()),
                               QString::number(devicePixelRatioF()),
                               QString::number(int(isRightToLeft()))};
    return parts.join(u'|');
}

QIcon ExpandingTabBar::contentsIcon(int index) const
{
    const QString key = contentsKey(index);
    if (const QIcon* cached = m_contents.object(key))
        return *cached;
    const QIcon icon(contents(index));
    m_contents.setMaxCost(qMax(m_contents.maxCost(), qsizetype(count())));
    m_contents.insert(key, new QIcon(icon));
    return icon;
}

// Paints the image or the tab's icon, followed by the colour rectangle, into one pixmap.
QPixmap ExpandingTabBar::contents(int index) const
{
    QPixmap image(contentsSize(index) * devicePixelRatioF());
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QString picture = pictureFile(tabText(index));
    // If a text follows, leave some space at the edge of the tab.
    QRect place(QPoint(picture.isEmpty() ? spacing : 0, 0), iconSize());
    const auto mirrored = [this, whole = QRect(QPoint(), contentsSize(index))](const QRect& rect) {
        return QStyle::visualRect(layoutDirection(), whole, rect);
    };
    const QIcon icon = picture.isEmpty() ? tabIcon(index) : pictureIcon(picture);
    if (!icon.isNull()) {
        icon.paint(&painter, mirrored(place));
        place.translate(place.width() + spacing, 0);
    }
    const int inset = place.height() / 6;
    if (!tabColorRect(index).isEmpty())
        paintColorRect(&painter, mirrored(place).adjusted(0, inset, 0, -inset),
                       tabColorRect(index));
    return image;
}

QIcon ExpandingTabBar::pictureIcon(const QString& file) const
{
    QIcon& icon = m_pictures[file];
    if (icon.isNull())
        icon = QIcon(file);
    return icon;
}

void ExpandingTabBar::updateAccessibleName(int index)
{
    const QString toolTip = tabToolTip(index);
    if (!pictureFile(tabText(index)).isEmpty())
        setAccessibleTabName(index, toolTip);
    else if (accessibleTabName(index) == toolTip)
        setAccessibleTabName(index, QString());
}
