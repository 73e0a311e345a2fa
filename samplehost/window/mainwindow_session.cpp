// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// What the window keeps from one start to the next.
#include "samplehost/window/mainwindow.h"
#include "samplehost/window/statusmessages.h"
#include "samplehost/window/windowstate.h"

#include <QtCore/QSettings>
#include <QtWidgets/QTabWidget>

namespace SampleHost {

namespace {

const QString pageKey = QStringLiteral("window/page");

} // namespace

void MainWindow::persistSettings()
{
    m_settings.load();
    choosePrinter(m_settings.rememberedPrinter());
    // The window itself is stored at the end, because it may not stand where it was yet.
    connect(&m_settings, &HostSettings::changed, this, [this] { checkSaved(m_settings.save()); });
    connect(&m_settings, &HostSettings::printerChanged, this,
            [this] { checkSaved(m_settings.save()); });
}

bool MainWindow::saveSettings()
{
    QSettings().setValue(pageKey, m_pages->currentIndex());
    return checkSaved(m_settings.save() && WindowState::store(*this));
}

bool MainWindow::checkSaved(bool saved)
{
    if (!saved) {
        m_status->showError(tr("The settings cannot be kept for the next start. Check that your "
                               "settings folder can be written."));
    }
    return saved;
}

void MainWindow::restoreWindow(const QRect& available)
{
    WindowState::restore(*this, available);
    const int page = QSettings().value(pageKey).toInt();
    if (m_settings.openDocument().isEmpty() && page >= 0 && page < m_pages->count()) {
        m_pages->setCurrentIndex(page);
    }
}

void MainWindow::choosePrinter(const QString& name)
{
    if (m_printers.names().contains(name)) {
        m_settings.setPrinter(name);
    }
}

} // namespace SampleHost
