// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_CONNECTIONBLOCKER_H
#define PRINTPANELS_CONNECTIONBLOCKER_H

#include <QtCore/QPointer>

namespace PrintPanels {

/**
 * Change without telling the host: takes one string-based connection away for its lifetime.
 *
 * Only the named connection pauses; other listeners of the same signal still hear of the change,
 * which is why the signal is not blocked. After the scope the connection stands exactly once, also
 * when a listener pauses it again meanwhile.
 */
class ConnectionBlocker
{
    Q_DISABLE_COPY_MOVE(ConnectionBlocker)

public:
    /** @p signal and @p slot are SIGNAL() and SLOT() texts and must outlive the pause. */
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
