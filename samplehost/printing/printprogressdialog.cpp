// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/printprogressdialog.h"

#include "samplehost/print/printjob.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

namespace SampleHost {

PrintProgressDialog::PrintProgressDialog(PrintJob& job, QWidget* parent)
    : QProgressDialog(parent), m_bar(findChild<QProgressBar*>())
{
    setObjectName(QStringLiteral("printProgressDialog"));
    setWindowTitle(tr("Printing"));
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumWidth(360);
    setMaximum(1000);
    setCancelButtonText(tr("Cancel"));
    m_bar->setObjectName(QStringLiteral("progressBar"));
    m_bar->setTextVisible(false);
    auto* label = findChild<QLabel*>();
    label->setObjectName(QStringLiteral("progressLabel"));
    label->setBuddy(m_bar);
    findChild<QPushButton*>()->setObjectName(QStringLiteral("cancelPrintButton"));
    showProgress(0, job.pageCount());
    // Starts the delay only if the value is the minimum.
    setMinimumDuration(showAfter);
    connect(this, &QProgressDialog::canceled, &job, &PrintJob::cancel);
    connect(this, &QDialog::rejected, &job, &PrintJob::cancel);
    connect(&job, &PrintJob::progressChanged, this, &PrintProgressDialog::showProgress);
    // A job may also be destroyed with its owner, without having finished.
    connect(&job, &PrintJob::finished, this, &QObject::deleteLater);
    connect(&job, &QObject::destroyed, this, &QObject::deleteLater);
}

void PrintProgressDialog::showProgress(qint64 pagesDone, qint64 pageCount)
{
    setLabelText(pageCount == 1 ? tr("%1 of 1 page printed").arg(pagesDone)
                                : tr("%1 of %2 pages printed").arg(pagesDone).arg(pageCount));
    // QProgressDialog::setValue() would show the dialog earlier and hide it at the last page.
    m_bar->setValue(pageCount > 0 ? int(pagesDone * maximum() / pageCount) : 0);
}

} // namespace SampleHost
