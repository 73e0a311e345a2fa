// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "hostilevalues.h"
#include "user.h"

#include <QtGui/QClipboard>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

namespace Monkey {

namespace {

const char* const typedTexts[] = {"1",  "2-9", "1,4-5", ",", "-", "0",   " ",   "7,8", "a",
                                  "mm", ".",   "12.5",  "g", "B", "999", "3,3", "in",  "\""};

constexpr Qt::Key keys[] = {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return,   Qt::Key_Enter,
                            Qt::Key_Escape,    Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Left,
                            Qt::Key_Right,     Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Home,
                            Qt::Key_End,       Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space,
                            Qt::Key_F4,        Qt::Key_Menu,   Qt::Key_F10,      Qt::Key_Select};

constexpr Qt::KeyboardModifiers modifiers[] = {
    Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier, Qt::NoModifier,
    Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};

Qt::Key modifierKey(Qt::KeyboardModifiers modifier)
{
    if (modifier == Qt::ShiftModifier)
        return Qt::Key_Shift;
    return modifier == Qt::ControlModifier ? Qt::Key_Control : Qt::Key_Alt;
}

} // namespace

// Qt hands the keys to an open list or menu, whatever window they come from.
QWindow* User::keyWindow(QWidget* panel) const
{
    return panel && panel->isVisible() ? panel->windowHandle() : nullptr;
}

void User::pressKey(QWidget* panel)
{
    QWindow* const window = keyWindow(panel);
    if (!window)
        return;
    const Qt::Key key = world.random.pick(keys);
    const Qt::KeyboardModifiers held = world.random.pick(modifiers);
    world.trail.note(QStringLiteral("user: key %1 with %2")
                         .arg(QLatin1String(QMetaEnum::fromType<Qt::Key>().valueToKey(key)))
                         .arg(held.toInt(), 0, 16));
    clickKey(window, key, held);
}

// Event by event, because each may end the window, and QTest would go on with the modifier.
void User::clickKey(QWindow* window, Qt::Key key, Qt::KeyboardModifiers held)
{
    const QPointer<QWindow> guard(window);
    const auto send = [&guard](bool press, int code, Qt::KeyboardModifiers with, char text) {
        const QString typed = text == '\0' ? QString() : QString(QLatin1Char(text));
        if (guard)
            QTest::simulateEvent(guard.data(), press, code, with, typed, false);
    };
    const char text = QTest::keyToAscii(key);
    if (held != Qt::NoModifier)
        send(true, modifierKey(held), Qt::NoModifier, '\0');
    send(true, key, held, text);
    send(false, key, held, text);
    if (held != Qt::NoModifier)
        send(false, modifierKey(held), Qt::NoModifier, '\0');
}

void User::sendKeys(QWidget* panel, const QString& text)
{
    const QPointer<QWindow> window = keyWindow(panel);
    for (const QChar character : text) {
        if (!window)
            return;
        const QString one(character);
        const char16_t code = character.toUpper().unicode();
        QTest::sendKeyEvent(QTest::Click, window.data(), Qt::Key(code), one, Qt::NoModifier);
    }
}

void User::type(QWidget* panel)
{
    const QString text = world.random.oneIn(12)
                             ? Hostile::text(world.random).left(40)
                             : QString::fromLatin1(world.random.pick(typedTexts));
    world.trail.note(QStringLiteral("user: types ") + describe(text));
    sendKeys(panel, text);
}

void User::paste(QWidget* panel)
{
    const QPointer<QWindow> window = keyWindow(panel);
    if (!window)
        return;
    const QString text =
        world.random.coin() ? Hostile::text(world.random) : Hostile::recordList(world.random);
    world.trail.note(QStringLiteral("user: pastes ") + describe(text));
    QGuiApplication::clipboard()->setText(text);
    if (world.random.coin())
        clickKey(window.data(), Qt::Key_A, Qt::ControlModifier);
    if (window)
        clickKey(window.data(), Qt::Key_V, Qt::ControlModifier);
}

void User::answerMenu()
{
    // One whose window the host has disabled gets no keys, but a click beside it ends it.
    const QWidget* const menu = QApplication::activePopupWidget();
    if (menu && !menu->isEnabled()) {
        clickAway();
        return;
    }
    const Qt::Key answers[] = {Qt::Key_Escape, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return};
    const Qt::Key key = world.random.pick(answers);
    world.trail.note(QStringLiteral("user: answers a menu with %1").arg(int(key), 0, 16));
    QTest::keyClick(m_desk.windowHandle(), key);
}

} // namespace Monkey
