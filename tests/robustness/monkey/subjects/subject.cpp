// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "subject.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QVBoxLayout>

namespace Monkey {

namespace {

constexpr int deepest = 3;

} // namespace

Subject::~Subject()
{
    // No signal of a dying panel is anybody's business.
    for (const Port& port : std::as_const(m_ports)) {
        if (port.widget)
            port.widget->disconnect(this);
    }
    delete m_panel;
    delete m_host;
}

QWidget* Subject::window() const
{
    return m_panel ? m_panel->window() : m_host.data();
}

void Subject::adopt(QWidget* panel, const HostCalls& calls, const QByteArrayList& clickSignals)
{
    m_panel = panel;
    m_clickSignals = clickSignals;
    addPort(panel, calls);
    if (!panel->isWindow() || (panel->windowFlags() & Qt::WindowType_Mask) == Qt::Window) {
        const int place = world.random.below(3);
        if (place == 1) {
            m_host = new QWidget;
            (new QVBoxLayout(m_host))->addWidget(panel);
        } else if (place == 2) {
            auto* area = new QScrollArea;
            area->setWidgetResizable(true);
            area->setWidget(panel);
            area->resize(300, 400);
            m_host = area;
        }
        world.trail.note(QStringLiteral("place %1").arg(place));
    }
    if (world.random.oneIn(6))
        window()->setLayoutDirection(Qt::RightToLeft);
    if (!world.random.oneIn(8)) {
        panel->show();
        window()->show();
        window()->activateWindow();
    }
}

void Subject::addPort(QWidget* widget, const HostCalls& calls)
{
    m_ports.append({widget, calls});
    listenTo(widget);
}

void Subject::listenTo(QWidget* widget)
{
    const QMetaObject* meta = widget->metaObject();
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() != QMetaMethod::Signal ||
            meta->method(i).enclosingMetaObject() == &QDialog::staticMetaObject)
            continue;
        const int id = QObject::staticMetaObject.methodCount() + int(m_signals.size());
        m_signals.append(meta->method(i));
        QMetaObject::connect(widget, i, this, id, Qt::DirectConnection);
    }
}

int Subject::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod || !m_panel)
        return id;
    const QMetaMethod method = m_signals.at(id);
    QVariantList values;
    for (int i = 0; i < method.parameterCount(); ++i)
        values.append(QVariant(method.parameterMetaType(i), arguments[i + 1]));
    world.trail.note(QStringLiteral("  signal %1(%2)")
                         .arg(QString::fromLatin1(method.name()), describe(values)));
    ++world.tally.signalsReceived;
    const HostCall* cause = world.underWay();
    require(!cause || mayComeNow(method.name()), "a host hears nothing of its own changes",
            QString::fromLatin1(method.name()));
    received(method.name(), values);
    react(method.name());
    return -1;
}

bool Subject::mayComeNow(const QByteArray& signal) const
{
    // What the user had begun ends when the host hides or disables the widget under it.
    const QByteArrayList atAnyTime = {"printWidgetShowSignal", "focusLost",
                                      "supplyWidthChangedSignal"};
    return atAnyTime.contains(signal) || world.underWay()->mayEmit.split(' ').contains(signal);
}

// Where the user clicked a button that reports by its click. Everywhere else a handler has to use
// deleteLater().
bool Subject::mayDeleteAtOnce(const QByteArray& signal) const
{
    return !world.underWay() && m_clickSignals.contains(signal);
}

// What a host does in the handler of a signal.
void Subject::react(const QByteArray& signal)
{
    if (!m_panel || world.depth() >= deepest)
        return;
    const int choice = world.random.below(100);
    if (choice < 15) {
        hostActs();
    } else if (choice < 25 && mayDeleteAtOnce(signal)) {
        world.trail.note(QStringLiteral("  host, in its handler: delete"));
        delete m_panel;
    } else if (choice >= 98) {
        world.trail.note(QStringLiteral("  host, in its handler: deleteLater"));
        m_panel->deleteLater();
    }
}

void Subject::hostActs()
{
    const Port& port = world.random.pick(m_ports);
    QWidget* const shown = window();
    if (shown && !shown->isVisible() && world.random.coin()) {
        world.trail.note(QStringLiteral("host: shows the window"));
        m_panel->show();
        shown->show();
        return;
    }
    // Often the host rather does what it may do to any widget.
    static const HostCalls anyWidget = widgetCalls();
    const bool asWidget = world.random.oneIn(6);
    const HostCalls& calls = asWidget ? anyWidget : port.calls;
    if (!port.widget)
        return;
    QWidget* widget = port.widget;
    if (asWidget && world.random.coin())
        widget = widget->window();
    const int index =
        world.random.pickWeighted(calls, [](const HostCall& call) { return call.weight; });
    world.call(*this, *widget, calls.at(index));
}

void Subject::aboutToCall(const QByteArray&, const QVariantList&) {}

void Subject::watchTyping(QLineEdit* edit, const QByteArrayList& changers)
{
    connect(edit, &QLineEdit::textChanged, this,
            [this, edit, changers] { typedTextChanged(edit, changers); });
}

void Subject::typedTextChanged(const QLineEdit* edit, const QByteArrayList& changers)
{
    // A handler of this very change may have deleted the panel before.
    if (!m_panel)
        return;
    if (const HostCall* call = world.underWay()) {
        require(changers.contains(call->name()), "only what is meant to changes a typed text",
                edit->objectName() + QStringLiteral(" by ") + QString::fromLatin1(call->name()));
        return;
    }
    // Keys go to the focus of their window, also while another window is the active one.
    // A menu is no popup any more when what was chosen in it is done.
    bool meant = QApplication::activePopupWidget() || qobject_cast<QMenu*>(world.target);
    for (const QWidget* addressed :
         {world.target.data(), world.heldTarget.data(), edit->window()->focusWidget()})
        meant = meant || addressed == edit ||
                (addressed && changers.contains(addressed->objectName().toLatin1()));
    require(meant, "only what is meant to changes a typed text", edit->objectName());
}

void Subject::require(bool holds, const char* check, const QString& detail)
{
    if (!holds)
        world.fail(QString::fromLatin1(check), detail);
}

} // namespace Monkey
