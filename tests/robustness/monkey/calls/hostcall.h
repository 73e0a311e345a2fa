// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_HOSTCALL_H
#define MONKEY_HOSTCALL_H

#include "hostilevalues.h"

#include <QtCore/QByteArray>
#include <QtWidgets/QWidget>

#include <functional>
#include <tuple>

namespace Monkey {

/** One operation of a panel, and how to call it with random arguments. */
struct HostCall
{
    using Invocation = std::function<void(QWidget&)>;

    /** As the meta-object spells it: name and parameter types. */
    QByteArray signature;
    /** How often it is chosen, compared with the others. */
    int weight = 1;
    /** The signals that it may emit itself, separated by blanks. */
    QByteArray mayEmit;
    /** Draws the arguments, returns them too, and returns the call that is ready to be made. */
    std::function<Invocation(RandomSource&, QVariantList&)> prepare;

    QByteArray name() const { return signature.left(signature.indexOf('(')); }
    HostCall emitting(const char* signalNames) const
    {
        HostCall answer = *this;
        answer.mayEmit = signalNames;
        return answer;
    }
    HostCall often(int times) const
    {
        HostCall answer = *this;
        answer.weight = times;
        return answer;
    }
};

using HostCalls = QList<HostCall>;

/** The call of a member function; a generator of hostile values for every parameter. */
template <typename Panel, typename Operation, typename... Generators>
HostCall hostCall(const char* signature, Operation operation, Generators... generators)
{
    HostCall call;
    call.signature = signature;
    call.prepare = [=](RandomSource& random, QVariantList& arguments) -> HostCall::Invocation {
        // Braces, because they fix the order in which the generators draw.
        const std::tuple<decltype(generators(random))...> values{generators(random)...};
        std::apply(
            [&arguments](const auto&... value) { arguments = {QVariant::fromValue(value)...}; },
            values);
        return [operation, values](QWidget& panel) {
            std::apply(
                [&](const auto&... value) {
                    static_cast<void>((static_cast<Panel&>(panel).*operation)(value...));
                },
                values);
        };
    };
    return call;
}

/** A slot that is private, reached by its name as a host can, with up to one argument. */
HostCall slotByName(const char* signature);
HostCall slotByName(const char* signature, int (*generator)(RandomSource&));
HostCall slotByName(const char* signature, QString (*generator)(RandomSource&));

// Every public operation of a class and, of PrintWidget, the private slots, too.
HostCalls printWidgetCalls();
HostCalls quickPrintWidgetCalls();
HostCalls multiPagePrintWidgetCalls();
HostCalls multiPagePrintDialogCalls();
HostCalls printPreviewDialogCalls();
HostCalls previewViewCalls();

/** What a host can do to any widget: show it, enable it, give it another font and so on. */
HostCalls widgetCalls();

} // namespace Monkey

#endif
