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
constexpr int widestHint = 320;
constexpr int widestMinimumHint = 120;
// More than any box can show; keeps painting quick when a host gives a megabyte of text.
constexpr qsizetype longestLine = 1000;

// A line break in a name must not push half of it out of the box.
QString oneLine(QString text)
{
    for (QChar& character : text) {
        if (character.isSpace())
            character = QLatin1Char(' ');
    }
    return text;
}
} // namespace

JxComboBox::JxComboBox(QWidget* parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // The delegates that QComboBox chooses itself do not know the row height of a style sheet.
    setItemDelegate(new QStyledItemDelegate(this));
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
    return QSize(qMin(hint.width(), widestHint), hint.height());
}

QSize JxComboBox::minimumSizeHint() const
{
    const QSize hint = QComboBox::minimumSizeHint();
    return QSize(qMin(hint.width(), widestMinimumHint), hint.height());
}

void JxComboBox::showPopup()
{
    // Here and not in the constructor, because setView() may have replaced the list since.
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
    int room =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
            .width();
    if (!option.currentIcon.isNull())
        room -= option.iconSize.width() + 4;
    option.currentText = option.fontMetrics.elidedText(
        oneLine(option.currentText.left(longestLine)), Qt::ElideRight, room - 2);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void JxComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
