// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_CONNECTIONBLOCKER_H
#define PRINTPANELS_CONNECTIONBLOCKER_H

#include <QtCore/QPointer>

namespace PrintPanels {

/**
 * Removes one string-based connection during its lifetime, to change a control without telling the
 * host.
 *
 * QSignalBlocker would keep the change from other receivers of the signal, too. After the scope
 * there is exactly one such connection, even if a receiver blocked it again meanwhile. Without a
 * connection to begin with there is none afterwards.
 */
class ConnectionBlocker
{
    Q_DISABLE_COPY_MOVE(ConnectionBlocker)

public:
    /** @p signal and @p slot are SIGNAL() and SLOT() texts, which must outlive the blocker. */
    ConnectionBlocker(QObject* sender, const char* signal, QObject* receiver, const char* slot);
    ~ConnectionBlocker();

private:
    QPointer<QObject> m_sender;
    QPointer<QObject> m_receiver;
    const char* m_signal;
    const char* m_slot;
    bool m_wasConnected;
};

} // namespace PrintPanels

#endif
