// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/helpdialog.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/printpanels_version.h>

#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>

namespace SampleHost {

void MainWindow::addHelpActions(QMenu& menu)
{
    menu.addAction(tr("&First Steps and Keys"), QKeySequence::HelpContents, this,
                   &MainWindow::showHelp)
        ->setObjectName(QStringLiteral("helpAction"));
    menu.addAction(tr("&About Sample Host"), this, &MainWindow::showAbout)
        ->setObjectName(QStringLiteral("aboutAction"));
}

void MainWindow::showHelp()
{
    auto* dialog = new HelpDialog(parts(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::showAbout()
{
    const QString text =
        tr("Sample Host\nPrintPanels %1, Qt %2\n\n"
           "Shows the print panels at work: labels from a data source, printed to PDF files and "
           "printers.")
            .arg(QStringLiteral(PRINTPANELS_VERSION_STRING), QLatin1String(qVersion()));
    auto* box = new QMessageBox(QMessageBox::Information, tr("About Sample Host"), text,
                                QMessageBox::Ok, this);
    box->setObjectName(QStringLiteral("aboutBox"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace SampleHost
