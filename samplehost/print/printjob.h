// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTJOB_H
#define SAMPLEHOST_PRINTJOB_H

#include "samplehost/print/labelpages.h"
#include "samplehost/print/pageplan.h"
#include "samplehost/print/printtarget.h"
#include "samplehost/print/printwork.h"
#include "samplehost/print/sheetgeometry.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>

namespace SampleHost {

/**
 * Carries out print work, some pages at a time between the events of the GUI thread, so that
 * the user sees the progress and can cancel it. It runs once.
 */
class PrintJob : public QObject
{
    Q_OBJECT

public:
    /** How a job ended. */
    enum class Outcome {
        Completed, ///< Every page arrived at the target.
        Cancelled, ///< Stopped by cancel(); the target was discarded.
        Failed     ///< Stopped by an error; the target was discarded.
    };
    Q_ENUM(Outcome)

    /** Prepares a job; nothing is opened before start(). Null work fails with a reason. */
    explicit PrintJob(std::unique_ptr<PrintWork> work, QObject* parent = nullptr);

    /** Prepares a job that paints the labels of a plan on a target. */
    PrintJob(const PagePlan& plan, const SheetGeometry& sheet, LabelPainter paintLabel,
             std::unique_ptr<PrintTarget> target, QObject* parent = nullptr);

    /** A job that is still running is cancelled, without a signal. */
    ~PrintJob() override;

    /** Whether the job was started and has not ended. */
    bool isRunning() const { return m_state == State::Running; }

    /** The number of pages that the job has to print. */
    qint64 pageCount() const { return m_work ? m_work->pageCount() : 0; }

    /** Where the output goes, as a text for the user. */
    QString targetDescription() const;

    /** The path of the file that is printed to; empty for a printer. */
    QString file() const { return m_work ? m_work->file() : QString(); }

public Q_SLOTS:
    /** Starts printing when control returns to the event loop. A second call does nothing. */
    void start();

    /** Stops before the next page. Does nothing unless the job is running. */
    void cancel();

Q_SIGNALS:
    /** Some pages were printed: pagesDone of pageCount. */
    void progressChanged(qint64 pagesDone, qint64 pageCount);

    /**
     * The job ended; sent once. message says why a job failed, or warns that a printer may still
     * put out pages of a cancelled job; it is empty otherwise.
     */
    void finished(SampleHost::PrintJob::Outcome outcome, const QString& message);

private:
    enum class State { Ready, Running, Ended };

    void runSlice();
    bool openWork(QString& problem);
    bool printPages(QString& problem);
    void complete();
    bool cancelWork();
    void fail(const QString& problem);
    void end(Outcome outcome, const QString& message);

    std::unique_ptr<PrintWork> m_work;
    QTimer m_timer;
    qint64 m_pagesDone = 0;
    bool m_opened = false;
    State m_state = State::Ready;
};

} // namespace SampleHost

#endif
