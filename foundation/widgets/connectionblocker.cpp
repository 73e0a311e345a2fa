// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/connectionblocker.h"

#include <QtCore/QObject>

namespace PrintPanels {

ConnectionBlocker::ConnectionBlocker(QObject* sender, const char* signal, QObject* receiver,
                                     const char* slot)
    : m_sender(sender),
      m_receiver(receiver),
      m_signal(signal),
      m_slot(slot),
      m_wasConnected(QObject::disconnect(sender, signal, receiver, slot))
{
}

ConnectionBlocker::~ConnectionBlocker()
{
    // A receiver of the change may have deleted either of the two.
    if (m_wasConnected && m_sender && m_receiver)
        QObject::connect(m_sender, m_signal, m_receiver, m_slot);
}

} // namespace PrintPanels
