// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/textdirection.h"

#include <QtCore/QEvent>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

namespace PrintPanels {

namespace {

constexpr QChar firstStrongIsolate(u'\u2068');
constexpr QChar leftToRightIsolate(u'\u2066');
constexpr QChar popIsolate(u'\u2069');

/** Aligns a control of the class @p Control again whenever its layout turns round. */
template <typename Control>
class StartAligner : public QObject
{
public:
    explicit StartAligner(Control* control) : QObject(control)
    {
        control->installEventFilter(this);
        align(control);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutDirectionChange)
            align(static_cast<Control*>(watched));
        return false;
    }

private:
    static void align(Control* control)
    {
        const Qt::Alignment vertical = control->alignment() & Qt::AlignVertical_Mask;
        control->setAlignment(startOfLine(control) | vertical);
    }
};

} // namespace

Qt::Alignment startOfLine(const QWidget* widget)
{
    return Qt::AlignAbsolute | (widget->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
}

int readingDirection(const QString& text)
{
    return text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
}

QString isolated(const QString& text, const QWidget* widget)
{
    if (text.isRightToLeft() == widget->isRightToLeft())
        return text;
    return firstStrongIsolate + text + popIsolate;
}

QString numbersAfter(const QString& introduction, const QString& numbers)
{
    return introduction.isRightToLeft() ? leftToRightIsolate + numbers + popIsolate : numbers;
}

void alignToStart(QLabel* label)
{
    new StartAligner<QLabel>(label);
}

void alignToStart(QLineEdit* edit)
{
    new StartAligner<QLineEdit>(edit);
}

void alignToStart(QAbstractSpinBox* spinBox)
{
    new StartAligner<QAbstractSpinBox>(spinBox);
}

} // namespace PrintPanels
