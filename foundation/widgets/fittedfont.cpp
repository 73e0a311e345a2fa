// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/fittedfont.h"

#include <QtCore/QEvent>
#include <QtGui/QFontInfo>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStyleOptionFrame>

#include <algorithm>
#include <utility>

namespace PrintPanels {

namespace {

// The sizes to try, in pixels. Nobody reads smaller text.
constexpr int smallestSize = 9;
constexpr int largestSize = 100;
constexpr int anySize = QWIDGETSIZE_MAX;

QFont reduced(const QFont& font, int largest)
{
    QFont smaller = font;
    if (QFontInfo(font).pixelSize() > largest)
        smaller.setPixelSize(largest);
    return smaller;
}

bool haveSameSize(const QFont& one, const QFont& other)
{
    return one.pixelSize() == other.pixelSize() &&
           qFuzzyCompare(one.pointSizeF(), other.pointSizeF());
}

int widthOfButton(const QAbstractButton* button, const QFont& font)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    option.fontMetrics = QFontMetrics(font);
    auto kind = QStyle::CT_PushButton;
    if (qobject_cast<const QCheckBox*>(button))
        kind = QStyle::CT_CheckBox;
    else if (qobject_cast<const QRadioButton*>(button))
        kind = QStyle::CT_RadioButton;
    const QSize text = option.fontMetrics.size(Qt::TextShowMnemonic, option.text);
    return button->style()->sizeFromContents(kind, &option, text, button).width();
}

// Of the placeholder; what a user enters scrolls.
int widthOfEdit(const QLineEdit* edit, const QFont& font)
{
    constexpr int sideMargin = 2; // QLineEdit's own, on either side of the text
    QStyleOptionFrame option;
    option.initFrom(edit);
    option.fontMetrics = QFontMetrics(font);
    option.lineWidth = edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit);
    const QMargins margins = edit->textMargins();
    const QSize text = option.fontMetrics.size(Qt::TextSingleLine, edit->placeholderText()) +
                       QSize(2 * sideMargin + margins.left() + margins.right(), 0);
    return edit->style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, edit).width();
}

// What the size hint would be. While the control handles the change of its font, the hint still
// belongs to the font before.
int widthOf(const QWidget* control, const QFont& font)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(control))
        return widthOfButton(button, font);
    if (const auto* edit = qobject_cast<const QLineEdit*>(control))
        return widthOfEdit(edit, font);
    const auto* label = qobject_cast<const QLabel*>(control);
    return label ? QFontMetrics(font).size(Qt::TextShowMnemonic, label->text()).width() : 0;
}

int gapWidth(const QWidget* control)
{
    const int gap = control->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr,
                                                  control->parentWidget());
    if (gap >= 0)
        return gap;
    return qMax(0,
                control->style()->layoutSpacing(QSizePolicy::DefaultType, QSizePolicy::DefaultType,
                                                Qt::Horizontal, nullptr, control->parentWidget()));
}

} // namespace

FittedFont::FittedFont(const QList<TextLine>& lines) : QObject(lines.first().controls.first())
{
    for (const TextLine& line : lines)
        addLine(line);
}

void FittedFont::addLine(const TextLine& line)
{
    QList<qsizetype> indices;
    for (QWidget* control : line.controls) {
        indices.append(m_controls.size());
        m_controls.append({control, control->font()});
        control->installEventFilter(this);
    }
    m_lines.append({indices, line.width, line.gaps});
}

bool FittedFont::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FontChange:
        rememberFont(static_cast<QWidget*>(watched));
        fit();
        break;
    case QEvent::Polish:
    case QEvent::Show:
    case QEvent::StyleChange:
        fit();
        break;
    default:
        break;
    }
    return false;
}

void FittedFont::rememberFont(QWidget* widget)
{
    for (Control& control : m_controls) {
        if (control.widget != widget)
            continue;
        const QFont own = std::exchange(control.font, widget->font());
        // Another family, for example: the size is still the reduced one.
        if (control.reducedTo == 0 || widget->font().pixelSize() != control.reducedTo)
            continue;
        if (own.pixelSize() > 0)
            control.font.setPixelSize(own.pixelSize());
        else
            control.font.setPointSizeF(own.pointSizeF());
    }
}

void FittedFont::fit()
{
    int largest = anySize;
    if (!fits(largest)) {
        largest = smallestSize;
        for (const Control& control : std::as_const(m_controls))
            largest = qMax(largest, QFontInfo(control.font).pixelSize());
        largest = qMin(largest, largestSize);
        while (largest > smallestSize && !fits(largest))
            --largest;
    }
    reduceTo(largest);
}

bool FittedFont::fits(int largest) const
{
    return std::all_of(m_lines.begin(), m_lines.end(),
                       [=](const Line& line) { return fits(line, largest); });
}

bool FittedFont::fits(const Line& line, int largest) const
{
    int needed = 0;
    int gap = 0;
    for (const qsizetype index : line.controls) {
        const Control& control = m_controls.at(index);
        if (!control.widget)
            continue;
        needed += widthOf(control.widget, reduced(control.font, largest));
        gap = gapWidth(control.widget);
    }
    return needed + line.gaps * gap <= line.width;
}

void FittedFont::reduceTo(int largest)
{
    for (Control& control : m_controls) {
        if (!control.widget)
            continue;
        const QFont font = reduced(control.font, largest);
        control.reducedTo = haveSameSize(font, control.font) ? 0 : largest;
        if (haveSameSize(font, control.widget->font()))
            continue;
        // A change that comes from here is not the control's own.
        control.widget->removeEventFilter(this);
        control.widget->setFont(font);
        control.widget->installEventFilter(this);
    }
}

void fitText(QWidget* control, int width, int gaps)
{
    new FittedFont({TextLine{{control}, width, gaps}});
}

} // namespace PrintPanels
