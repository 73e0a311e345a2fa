// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <jxcombobox.h>

#include "plaintooltip.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QToolTip>

namespace {
constexpr int maxHintWidth = 320;
constexpr int maxMinimumHintWidth = 120;
// What the style leaves free on either side of the text.
constexpr int textMargin = 1;
// More than a combo box can show. Keeps painting fast if the host sets a megabyte of text.
constexpr qsizetype maxTextLength = 1000;

// A line break in a text must not move a part of it out of the combo box.
QString singleLine(QString text)
{
    for (QChar& character : text) {
        if (character.isSpace())
            character = QLatin1Char(' ');
    }
    return text;
}

// Keeps the direction of a text, so that a number or a full stop at an end of it stays there. Some
// styles paint the text of a combo box from left to right in either layout.
QString isolated(const QString& text, Qt::LayoutDirection direction)
{
    if (direction == Qt::LeftToRight && !text.isRightToLeft())
        return text;
    return QChar(u'\u2068') + text + QChar(u'\u2069'); // first strong isolate
}

class ItemDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text = isolated(option->text, option->direction);
    }
};
} // namespace

JxComboBox::JxComboBox(QWidget* parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // The default delegates of QComboBox ignore the item height set by a style sheet.
    setItemDelegate(new ItemDelegate(this));
    view()->setTextElideMode(Qt::ElideRight);
    QPalette colors = view()->palette();
    colors.setColor(QPalette::Highlight, QColor(0xfd, 0x78, 0x00));
    colors.setColor(QPalette::HighlightedText, QColor(0x06, 0x06, 0x06));
    view()->setPalette(colors);
    connect(this, &QComboBox::textActivated, this,
            qOverload<const QString&>(&JxComboBox::activated));
}

JxComboBox::~JxComboBox() = default;

QSize JxComboBox::sizeHint() const
{
    const QSize hint = QComboBox::sizeHint();
    // QComboBox measures what a text paints, without the room at the sides of the letters.
    const int bearings = fontMetrics().averageCharWidth() / 2;
    return QSize(qMin(hint.width() + 2 * textMargin + bearings, maxHintWidth), hint.height());
}

QSize JxComboBox::minimumSizeHint() const
{
    const QSize hint = QComboBox::minimumSizeHint();
    return QSize(qMin(hint.width(), maxMinimumHintWidth), hint.height());
}

void JxComboBox::showPopup()
{
    // Not in the constructor, because setView() may have replaced the view.
    view()->viewport()->installEventFilter(this);
    QComboBox::showPopup();
}

bool JxComboBox::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        HostKit::showPlainToolTip(this, static_cast<QHelpEvent*>(event));
        return true;
    }
    return QComboBox::event(event);
}

bool JxComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ToolTip && watched == view()->viewport()) {
        const auto* help = static_cast<QHelpEvent*>(event);
        return showItemToolTip(help->pos(), help->globalPos());
    }
    return QComboBox::eventFilter(watched, event);
}

bool JxComboBox::showItemToolTip(const QPoint& position, const QPoint& globalPosition)
{
    const QModelIndex index = view()->indexAt(position);
    const QWidget* viewport = view()->viewport();
    QString text = index.data(Qt::ToolTipRole).toString();
    if (text.isEmpty() && view()->sizeHintForIndex(index).width() > viewport->width())
        text = index.data(Qt::DisplayRole).toString();
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(globalPosition, HostKit::plainToolTip(text), view()->viewport(),
                           view()->visualRect(index));
    return true;
}

void JxComboBox::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    if (currentIndex() < 0 && !placeholderText().isEmpty()) {
        option.palette.setBrush(QPalette::ButtonText, option.palette.placeholderText());
        option.currentText = placeholderText();
    }
    int availableWidth =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
            .width();
    if (!option.currentIcon.isNull())
        availableWidth -= option.iconSize.width() + 4;
    option.currentText = option.fontMetrics.elidedText(
        isolated(singleLine(option.currentText.left(maxTextLength)), layoutDirection()),
        Qt::ElideRight, availableWidth - 2 * textMargin);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void JxComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
