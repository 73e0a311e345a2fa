// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/printprogressdialog.h"

#include "samplehost/print/printjob.h"

#include <QtCore/QTimer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace SampleHost {

namespace {

constexpr int maximum = 1000;

} // namespace

PrintProgressDialog::PrintProgressDialog(PrintJob& job, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("printProgressDialog"));
    setWindowTitle(tr("Printing"));
    setAttribute(Qt::WA_DeleteOnClose);
    createWidgets();
    showProgress(0, job.pageCount());
    connect(m_cancelButton, &QPushButton::clicked, this, &PrintProgressDialog::reject);
    connect(this, &PrintProgressDialog::cancelled, &job, &PrintJob::cancel);
    connect(&job, &PrintJob::progressChanged, this, &PrintProgressDialog::showProgress);
    // A job may also be destroyed with its owner, without having finished.
    connect(&job, &PrintJob::finished, this, &QObject::deleteLater);
    connect(&job, &QObject::destroyed, this, &QObject::deleteLater);
    QTimer::singleShot(showAfter, this, &QWidget::show);
}

void PrintProgressDialog::createWidgets()
{
    m_label = new QLabel;
    m_label->setObjectName(QStringLiteral("progressLabel"));
    m_bar = new QProgressBar;
    m_bar->setObjectName(QStringLiteral("progressBar"));
    m_bar->setRange(0, maximum);
    m_bar->setTextVisible(false);
    m_cancelButton = new QPushButton(tr("Cancel"));
    m_cancelButton->setObjectName(QStringLiteral("cancelPrintButton"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_label);
    column->addWidget(m_bar);
    column->addWidget(m_cancelButton, 0, Qt::AlignRight);
    setMinimumWidth(360);
}

void PrintProgressDialog::showProgress(qint64 pagesDone, qint64 pageCount)
{
    m_label->setText(tr("%1 of %2 pages printed").arg(pagesDone).arg(pageCount));
    m_bar->setValue(pageCount > 0 ? int(pagesDone * maximum / pageCount) : 0);
}

void PrintProgressDialog::reject()
{
    Q_EMIT cancelled();
    QDialog::reject();
}

} // namespace SampleHost
