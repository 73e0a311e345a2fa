// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTPROGRESSDIALOG_H
#define SAMPLEHOST_PRINTPROGRESSDIALOG_H

#include <QtWidgets/QProgressDialog>

namespace SampleHost {

class PrintJob;

/**
 * Shows the progress of a job and lets the user cancel it, also by closing the dialog. It is not
 * modal, appears only for jobs that take a moment, and deletes itself when the job ends.
 */
class PrintProgressDialog : public QProgressDialog
{
    Q_OBJECT

public:
    /** The delay in milliseconds after which the dialog appears. */
    static constexpr int showAfter = 400;

    /** Shows the progress of a job that has not ended. */
    explicit PrintProgressDialog(PrintJob& job, QWidget* parent = nullptr);

private:
    void showProgress(qint64 pagesDone, qint64 pageCount);

    QProgressBar* m_bar;
};

} // namespace SampleHost

#endif
