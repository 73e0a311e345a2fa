// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/printjob.h"

#include <QtCore/QElapsedTimer>

#include <utility>

namespace SampleHost {

namespace {

// Long enough to make progress, short enough for buttons to respond.
constexpr qint64 sliceMilliseconds = 25;

} // namespace

PrintJob::PrintJob(std::unique_ptr<PrintWork> work, QObject* parent)
    : QObject(parent), m_work(std::move(work))
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &PrintJob::runSlice);
}

PrintJob::PrintJob(const PagePlan& plan, const SheetGeometry& sheet, LabelPainter paintLabel,
                   std::unique_ptr<PrintTarget> target, QObject* parent)
    : PrintJob(
          std::make_unique<PaintedWork>(
              std::make_unique<LabelPages>(plan, sheet, std::move(paintLabel)), std::move(target)),
          parent)
{
}

PrintJob::~PrintJob()
{
    cancelWork();
}

QString PrintJob::targetDescription() const
{
    return m_work ? m_work->targetDescription() : QString();
}

void PrintJob::start()
{
    if (m_state == State::Ready) {
        m_state = State::Running;
        m_timer.start();
    }
}

void PrintJob::cancel()
{
    if (m_state != State::Running) {
        return;
    }
    const bool nothingComesOut = cancelWork();
    end(Outcome::Cancelled,
        nothingComesOut
            ? QString()
            : tr("The pages that %1 already has may still come out.").arg(targetDescription()));
}

void PrintJob::runSlice()
{
    QString problem;
    if ((!m_opened && !openWork(problem)) || !printPages(problem)) {
        fail(problem);
        return;
    }
    // A receiver of progressChanged() may have cancelled the job.
    if (m_state == State::Running && m_pagesDone == pageCount()) {
        complete();
    }
}

bool PrintJob::printPages(QString& problem)
{
    if (m_pagesDone == pageCount()) {
        return true;
    }
    QElapsedTimer elapsed;
    elapsed.start();
    do {
        if (!m_work->printPage(m_pagesDone, problem)) {
            return false;
        }
        ++m_pagesDone;
    } while (m_pagesDone < pageCount() && elapsed.elapsed() < sliceMilliseconds);
    Q_EMIT progressChanged(m_pagesDone, pageCount());
    return true;
}

bool PrintJob::openWork(QString& problem)
{
    if (!m_work) {
        problem = tr("There is nothing to print.");
        return false;
    }
    m_opened = m_work->open(problem);
    return m_opened;
}

void PrintJob::complete()
{
    QString problem;
    switch (m_work->complete(problem)) {
    case PrintWork::Completion::Completed:
        end(Outcome::Completed, QString());
        break;
    case PrintWork::Completion::Pending:
        break;
    case PrintWork::Completion::Failed:
        fail(problem);
        break;
    }
}

bool PrintJob::cancelWork()
{
    return !m_work || m_work->cancel();
}

void PrintJob::fail(const QString& problem)
{
    cancelWork();
    end(Outcome::Failed, problem);
}

void PrintJob::end(Outcome outcome, const QString& message)
{
    m_timer.stop();
    m_state = State::Ended;
    Q_EMIT finished(outcome, message);
}

} // namespace SampleHost
