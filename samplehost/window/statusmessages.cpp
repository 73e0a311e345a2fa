// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/statusmessages.h"

#include <QtWidgets/QStatusBar>

namespace SampleHost {

namespace {

// Isolated, because the bar would otherwise move the slash in front of a path to its end.
QString directed(const QString& text, const QStatusBar& bar)
{
    return bar.isRightToLeft() ? QChar(0x2068) + text + QChar(0x2069) : text;
}

} // namespace

StatusMessages::StatusMessages(QStatusBar& bar, QObject* parent) : QObject(parent), m_bar(bar) {}

void StatusMessages::show(const QString& text)
{
    m_error.clear();
    m_bar.showMessage(directed(text, m_bar));
}

void StatusMessages::showError(const QString& text)
{
    m_error = directed(text, m_bar);
    m_bar.showMessage(m_error);
}

void StatusMessages::clearError()
{
    if (!m_error.isEmpty() && m_bar.currentMessage() == m_error) {
        m_bar.clearMessage();
    }
    m_error.clear();
}

} // namespace SampleHost
