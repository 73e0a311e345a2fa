// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/statusmessages.h"

#include <QtWidgets/QStatusBar>

namespace SampleHost {

StatusMessages::StatusMessages(QStatusBar& bar, QObject* parent) : QObject(parent), m_bar(bar) {}

void StatusMessages::show(const QString& text)
{
    m_error.clear();
    m_bar.showMessage(text);
}

void StatusMessages::showError(const QString& text)
{
    m_error = text;
    m_bar.showMessage(text);
}

void StatusMessages::clearError()
{
    if (!m_error.isEmpty() && m_bar.currentMessage() == m_error) {
        m_bar.clearMessage();
    }
    m_error.clear();
}

} // namespace SampleHost
