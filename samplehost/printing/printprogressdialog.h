// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTPROGRESSDIALOG_H
#define SAMPLEHOST_PRINTPROGRESSDIALOG_H

#include <QtWidgets/QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace SampleHost {

class PrintJob;

/**
 * Shows the progress of a job and lets the user cancel it. It is not modal, appears only for jobs
 * that take a moment, and deletes itself when the job ends.
 */
class PrintProgressDialog : public QDialog
{
    Q_OBJECT

public:
    /** The delay in milliseconds after which the dialog appears. */
    static constexpr int showAfter = 400;

    /** Shows the progress of a job that has not ended. */
    explicit PrintProgressDialog(PrintJob& job, QWidget* parent = nullptr);

public Q_SLOTS:
    /** Closing the dialog cancels the job. */
    void reject() override;

Q_SIGNALS:
    /** The user wants the job to stop. */
    void cancelled();

private:
    void createWidgets();
    void showProgress(qint64 pagesDone, qint64 pageCount);

    QLabel* m_label = nullptr;
    QProgressBar* m_bar = nullptr;
    QPushButton* m_cancelButton = nullptr;
};

} // namespace SampleHost

#endif
