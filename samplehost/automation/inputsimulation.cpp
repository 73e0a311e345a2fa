// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/inputsimulation.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace SampleHost::InputSimulation {

namespace {

bool acceptsInput(const QWidget* widget)
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

QString textOf(const QWidget* widget)
{
    return widget->property("text").toString();
}

bool isPrintable(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.isPrint(); });
}

// Each change makes the panels read the whole field again, so text is inserted at once if possible.
// A field refuses it as a whole if it does not accept a part; then the parts are inserted.
void insertText(QWidget* widget, const QString& text)
{
    const QString before = textOf(widget);
    const bool single = text.size() == 1;
    // A field ignores a control character that is typed, but not one within a text.
    if (single || isPrintable(text)) {
        // Without a key code, a control character is no command.
        sendKey(widget, Qt::Key_unknown, Qt::NoModifier, text);
    }
    if (!single && textOf(widget) == before) {
        const qsizetype half = text.size() / 2;
        insertText(widget, text.first(half));
        insertText(widget, text.sliced(half));
    }
}

} // namespace

void processEvents()
{
    // A new size propagates through nested layouts one level at a time.
    constexpr int levels = 10;
    for (int level = 0; level < levels; ++level) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}

bool click(QWidget* widget)
{
    processEvents();
    if (!acceptsInput(widget)) {
        return false;
    }
    // A radio button reacts only to clicks on its indicator and text, which are on the left.
    constexpr int indicator = 10;
    const QPointF position(std::min(indicator, widget->width() / 2), widget->height() / 2);
    sendMouse(widget, QEvent::MouseButtonPress, position);
    sendMouse(widget, QEvent::MouseButtonRelease, position);
    return true;
}

bool type(QWidget* widget, const QString& text)
{
    if (!acceptsInput(widget)) {
        return false;
    }
    widget->setFocus(Qt::MouseFocusReason);
    sendKey(widget, Qt::Key_A, Qt::ControlModifier, QString());
    sendKey(widget, Qt::Key_Delete, Qt::NoModifier, QString());
    if (!text.isEmpty()) {
        insertText(widget, text);
    }
    return true;
}

bool select(QComboBox* combo, const QString& text)
{
    if (!acceptsInput(combo)) {
        return false;
    }
    const int index = combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        return false;
    }
    sendKey(combo, Qt::Key_Home, Qt::NoModifier, QString());
    for (int step = 0; step < index; ++step) {
        sendKey(combo, Qt::Key_Down, Qt::NoModifier, QString());
    }
    return combo->currentIndex() == index;
}

} // namespace SampleHost::InputSimulation
