// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/userhands.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace SampleHost::UserHands {

namespace {

bool canBeReached(const QWidget* widget)
{
    return widget != nullptr && widget->isVisible() && widget->isEnabled();
}

void sendMouse(QWidget* widget, QEvent::Type type, const QPointF& position)
{
    const bool press = type == QEvent::MouseButtonPress;
    QMouseEvent event(type, position, widget->mapToGlobal(position), Qt::LeftButton,
                      press ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void sendKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(widget, &release);
}

} // namespace

void wait()
{
    // Nested layouts hand a new size up one level at a time.
    constexpr int levels = 10;
    for (int level = 0; level < levels; ++level) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}

bool click(QWidget* widget)
{
    wait();
    if (!canBeReached(widget)) {
        return false;
    }
    // A radio button hears clicks on its indicator and text only, and those are on the left.
    constexpr int indicator = 10;
    const QPointF position(std::min(indicator, widget->width() / 2), widget->height() / 2);
    sendMouse(widget, QEvent::MouseButtonPress, position);
    sendMouse(widget, QEvent::MouseButtonRelease, position);
    return true;
}

bool type(QWidget* widget, const QString& text)
{
    if (!canBeReached(widget)) {
        return false;
    }
    widget->setFocus(Qt::MouseFocusReason);
    sendKey(widget, Qt::Key_A, Qt::ControlModifier, QString());
    sendKey(widget, Qt::Key_Delete, Qt::NoModifier, QString());
    for (const QChar character : text) {
        // The text is what counts for a field; a control character must not become a command key.
        sendKey(widget, Qt::Key_unknown, Qt::NoModifier, QString(character));
    }
    return true;
}

bool pick(QComboBox* combo, const QString& text)
{
    if (!canBeReached(combo)) {
        return false;
    }
    const int wanted = combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (wanted < 0) {
        return false;
    }
    sendKey(combo, Qt::Key_Home, Qt::NoModifier, QString());
    for (int step = 0; step < wanted; ++step) {
        sendKey(combo, Qt::Key_Down, Qt::NoModifier, QString());
    }
    return combo->currentIndex() == wanted;
}

} // namespace SampleHost::UserHands
