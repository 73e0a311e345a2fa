// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/printjob.h"

#include <QtCore/QElapsedTimer>

#include <utility>

namespace SampleHost {

namespace {

// Long enough to get on with the work, short enough for a button to feel alive.
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
    giveUp();
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
    const bool nothingComesOut = giveUp();
    end(Outcome::Cancelled,
        nothingComesOut
            ? QString()
            : tr("The pages that %1 already has may still come out.").arg(targetDescription()));
}

void PrintJob::runSlice()
{
    QString problem;
    if (!m_opened && !openWork(problem)) {
        fail(problem);
        return;
    }
    QElapsedTimer elapsed;
    elapsed.start();
    do {
        if (!m_work->putPage(m_pagesDone, problem)) {
            fail(problem);
            return;
        }
        ++m_pagesDone;
    } while (m_pagesDone < pageCount() && elapsed.elapsed() < sliceMilliseconds);
    // A receiver may cancel the job right here.
    Q_EMIT progressChanged(m_pagesDone, pageCount());
    if (m_state == State::Running && m_pagesDone == pageCount()) {
        complete();
    }
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
    if (m_work->complete(problem)) {
        end(Outcome::Completed, QString());
    } else {
        fail(problem);
    }
}

bool PrintJob::giveUp()
{
    return !m_work || m_work->giveUp();
}

void PrintJob::fail(const QString& problem)
{
    giveUp();
    end(Outcome::Failed, problem);
}

void PrintJob::end(Outcome outcome, const QString& message)
{
    m_timer.stop();
    m_state = State::Ended;
    Q_EMIT finished(outcome, message);
}

} // namespace SampleHost
