// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_SUBJECT_H
#define MONKEY_SUBJECT_H

#include "world.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QMetaMethod>

#include <memory>

class QLineEdit;

namespace Monkey {

/**
 * One life of a panel: built in a random way, called, used, and deleted by somebody at some time.
 *
 * A derived class knows one kind of panel: what its signals may carry and what has to be true of it
 * between any two steps. Both report to World::fail().
 */
class Subject : public QObject
{
    Q_DISABLE_COPY_MOVE(Subject)

public:
    explicit Subject(World& sharedWorld) : world(sharedWorld) {}
    ~Subject() override;

    /** The kinds of panels. */
    static QByteArrayList names();
    static std::unique_ptr<Subject> create(const QByteArray& name, World& world);

    /** Null once somebody has deleted it. */
    QWidget* panel() const { return m_panel; }
    /**
     * The window that shows the panel: the panel itself, or a window of the host, which may stay
     * when the panel is gone.
     */
    QWidget* window() const;
    /** One random call of the host. */
    void hostActs();

    /** The host is about to make this call. */
    virtual void aboutToCall(const QByteArray& name, const QVariantList& arguments);
    /** What must be true between two steps, of this kind of panel. Called while it lives. */
    virtual void check() = 0;

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

protected:
    /** A signal of the panel arrived. */
    virtual void received(const QByteArray& signal, const QVariantList& arguments) = 0;

    /**
     * Takes a new panel: puts it somewhere, listens to it and shows it, mostly.
     * @param clickSignals the signals by which a click of a button, and nothing else that the user
     *        does, reports
     */
    void adopt(QWidget* panel, const HostCalls& calls, const QByteArrayList& clickSignals);
    /** Another widget of the panel that has operations of its own. */
    void addPort(QWidget* widget, const HostCalls& calls);
    /** The user types into @p edit, and only these calls and buttons may change it besides. */
    void watchTyping(QLineEdit* edit, const QByteArrayList& changers);
    void require(bool holds, const char* check, const QString& detail);

    World& world;

private:
    struct Port
    {
        QPointer<QWidget> widget;
        HostCalls calls;
    };

    void listenTo(QWidget* widget);
    void typedTextChanged(const QLineEdit* edit, const QByteArrayList& changers);
    void react(const QByteArray& signal);
    bool mayComeNow(const QByteArray& signal) const;
    bool mayDeleteAtOnce(const QByteArray& signal) const;

    QPointer<QWidget> m_panel;
    QPointer<QWidget> m_host;
    QList<Port> m_ports;
    QList<QMetaMethod> m_signals;
    QByteArrayList m_clickSignals;
};

} // namespace Monkey

#endif
