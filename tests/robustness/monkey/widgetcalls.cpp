// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "hostcall.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QApplication>

namespace Monkey {

namespace {

using Deed = void (*)(QWidget&);

HostCall deed(const char* name, int weight, Deed run)
{
    HostCall call;
    call.signature = QByteArray(name) + "()";
    call.weight = weight;
    call.prepare = [run](RandomSource&, QVariantList&) -> HostCall::Thunk { return run; };
    return call;
}

/** The same with one of several values. */
template <typename Value>
HostCall deed(const char* name, int weight, const QList<Value>& values,
              void (*run)(QWidget&, const Value&))
{
    HostCall call;
    call.signature = QByteArray(name) + "()";
    call.weight = weight;
    call.prepare = [run, values](RandomSource& random, QVariantList& told) -> HostCall::Thunk {
        const Value value = random.pick(values);
        told = {QVariant::fromValue(value)};
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
        deed<int>("setFontSize", 1, {1, 12, 60}, setFontSize),
        deed("setPalette", 1, [](QWidget& widget) { widget.setPalette(QPalette(Qt::darkGreen)); }),
        deed("turnDirection", 1,
             [](QWidget& widget) {
                 widget.setLayoutDirection(widget.isRightToLeft() ? Qt::LeftToRight
                                                                  : Qt::RightToLeft);
             }),
        deed<int>("sendEvent", 3,
                  {QEvent::LanguageChange, QEvent::StyleChange, QEvent::FontChange,
                   QEvent::PaletteChange, QEvent::ApplicationFontChange, QEvent::LocaleChange,
                   QEvent::ThemeChange, QEvent::WindowDeactivate, QEvent::WindowActivate},
                  send),
        deed("grab", 1, [](QWidget& widget) { widget.grab(); }),
        deed("update", 2, [](QWidget& widget) { widget.update(); }),
    };
}

} // namespace

HostCalls widgetCalls()
{
    return appearanceCalls() +
           HostCalls{
               deed("show", 14, [](QWidget& widget) { widget.show(); }),
               deed("hide", 3, [](QWidget& widget) { widget.hide(); }),
               deed("close", 2, [](QWidget& widget) { widget.close(); }),
               deed("activateWindow", 4, [](QWidget& widget) { widget.activateWindow(); }),
               deed("enable", 14, [](QWidget& widget) { widget.setEnabled(true); }),
               deed("disable", 2, [](QWidget& widget) { widget.setEnabled(false); }),
               // No wider than memory for the window's picture is cheap.
               deed<QSize>("resize", 8,
                           {{0, 0}, {1, 1}, {300, 600}, {900, 700}, {3000, 40}, {40, 3000}},
                           resizeTo),
               deed("deleteLater", 1, [](QWidget& widget) { widget.deleteLater(); }),
           };
}

} // namespace Monkey
