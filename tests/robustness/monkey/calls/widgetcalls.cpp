// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "hostcall.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QApplication>

namespace Monkey {

namespace {

using Action = void (*)(QWidget&);

HostCall action(const char* name, int weight, Action run)
{
    HostCall call;
    call.signature = QByteArray(name) + "()";
    call.weight = weight;
    call.prepare = [run](RandomSource&, QVariantList&) -> HostCall::Invocation { return run; };
    return call;
}

/** The same with one of several values. */
template <typename Value>
HostCall action(const char* name, int weight, const QList<Value>& values,
                void (*run)(QWidget&, const Value&))
{
    HostCall call;
    call.signature = QByteArray(name) + "()";
    call.weight = weight;
    call.prepare = [run, values](RandomSource& random,
                                 QVariantList& arguments) -> HostCall::Invocation {
        const Value value = random.pick(values);
        arguments = {QVariant::fromValue(value)};
        return [run, value](QWidget& widget) { run(widget, value); };
    };
    return call;
}

void send(QWidget& widget, const int& type)
{
    QEvent event{QEvent::Type(type)};
    QCoreApplication::sendEvent(&widget, &event);
}

void resizeTo(QWidget& widget, const QSize& size)
{
    widget.resize(size);
}

void setFontSize(QWidget& widget, const int& size)
{
    QFont font = widget.font();
    font.setPixelSize(size);
    widget.setFont(font);
}

HostCalls appearanceCalls()
{
    return {
        action<int>("setFontSize", 1, {1, 12, 60}, setFontSize),
        action("setPalette", 1,
               [](QWidget& widget) { widget.setPalette(QPalette(Qt::darkGreen)); }),
        action("turnDirection", 1,
               [](QWidget& widget) {
                   widget.setLayoutDirection(widget.isRightToLeft() ? Qt::LeftToRight
                                                                    : Qt::RightToLeft);
               }),
        action<int>("sendEvent", 3,
                    {QEvent::LanguageChange, QEvent::StyleChange, QEvent::FontChange,
                     QEvent::PaletteChange, QEvent::ApplicationFontChange, QEvent::LocaleChange,
                     QEvent::ThemeChange, QEvent::WindowDeactivate, QEvent::WindowActivate},
                    send),
        action("grab", 1, [](QWidget& widget) { widget.grab(); }),
        action("update", 2, [](QWidget& widget) { widget.update(); }),
    };
}

} // namespace

HostCalls widgetCalls()
{
    return appearanceCalls() +
           HostCalls{
               action("show", 14, [](QWidget& widget) { widget.show(); }),
               action("hide", 3, [](QWidget& widget) { widget.hide(); }),
               action("close", 2, [](QWidget& widget) { widget.close(); }),
               action("activateWindow", 4, [](QWidget& widget) { widget.activateWindow(); }),
               action("enable", 14, [](QWidget& widget) { widget.setEnabled(true); }),
               action("disable", 2, [](QWidget& widget) { widget.setEnabled(false); }),
               // No wider than memory for the window's picture is cheap.
               action<QSize>("resize", 8,
                             {{0, 0}, {1, 1}, {300, 600}, {900, 700}, {3000, 40}, {40, 3000}},
                             resizeTo),
               action("deleteLater", 1, [](QWidget& widget) { widget.deleteLater(); }),
           };
}

} // namespace Monkey
