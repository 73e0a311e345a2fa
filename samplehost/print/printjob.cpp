#include "samplehost/print/printjob.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QPagedPaintDevice>

#include <utility>

namespace SampleHost {

namespace {

// Long enough to get on with the work, short enough for a button to feel alive.
constexpr qint64 sliceMilliseconds = 25;
constexpr qreal millimetersPerInch = 25.4;

QRectF scaled(const QRectF& rect, qreal factor)
{
    return QRectF(rect.topLeft() * factor, rect.size() * factor);
}

} // namespace

bool paintPage(QPainter& painter, qreal dotsPerMm, const SheetGeometry& sheet,
               const QList<int>& records, const LabelPainter& paintLabel, QString& problem)
{
    for (int place = 0; place < records.size(); ++place) {
        painter.save();
        const QRectF area = scaled(sheet.labelRectMm(place), dotsPerMm);
        const bool painted = paintLabel(painter, area, records.at(place), problem);
        painter.restore();
        if (!painted) {
            return false;
        }
    }
    return true;
}

PrintJob::PrintJob(const PagePlan& plan, const SheetGeometry& sheet, LabelPainter paintLabel,
                   std::unique_ptr<PrintTarget> target, QObject* parent)
    : QObject(parent),
      m_plan(plan),
      m_sheet(sheet),
      m_paintLabel(std::move(paintLabel)),
      m_target(std::move(target))
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &PrintJob::runSlice);
}

PrintJob::~PrintJob()
{
    closeUnfinished();
}

QString PrintJob::targetDescription() const
{
    return m_target ? m_target->description() : QString();
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
    const bool nothingComesOut = closeUnfinished();
    end(Outcome::Cancelled,
        nothingComesOut
            ? QString()
            : tr("The pages that %1 already has may still come out.").arg(m_target->description()));
}

void PrintJob::runSlice()
{
    QString problem;
    if (m_device == nullptr && !openTarget(problem)) {
        fail(problem);
        return;
    }
    QElapsedTimer elapsed;
    elapsed.start();
    do {
        if (!paintNextPage(problem) || !m_target->isHealthy(problem)) {
            fail(problem);
            return;
        }
        ++m_pagesDone;
    } while (m_pagesDone < m_plan.pageCount() && elapsed.elapsed() < sliceMilliseconds);
    // A receiver may cancel the job right here.
    Q_EMIT progressChanged(m_pagesDone, m_plan.pageCount());
    if (m_state == State::Running && m_pagesDone == m_plan.pageCount()) {
        complete();
    }
}

bool PrintJob::openTarget(QString& problem)
{
    if (m_plan.pageCount() == 0 || !m_paintLabel || !m_target) {
        problem = tr("There is nothing to print.");
        return false;
    }
    m_device = m_target->open(m_sheet.sheetSizeMm(), problem);
    if (m_device == nullptr) {
        return false;
    }
    if (!m_painter.begin(m_device)) {
        problem = tr("Printing to %1 cannot be started.").arg(m_target->description());
        return false;
    }
    return true;
}

bool PrintJob::paintNextPage(QString& problem)
{
    if (m_pagesDone > 0 && !m_device->newPage()) {
        problem = tr("Page %1 cannot be started.").arg(m_pagesDone + 1);
        return false;
    }
    const qreal dotsPerMm = m_device->logicalDpiX() / millimetersPerInch;
    return paintPage(m_painter, dotsPerMm, m_sheet, m_plan.recordsOnPage(m_pagesDone), m_paintLabel,
                     problem);
}

void PrintJob::complete()
{
    QString problem;
    m_painter.end();
    m_device = nullptr;
    if (m_target->commit(problem)) {
        end(Outcome::Completed, QString());
    } else {
        fail(problem);
    }
}

bool PrintJob::closeUnfinished()
{
    if (!m_target) {
        return true;
    }
    const bool nothingComesOut = m_target->abort();
    // The painter must let go of the device before the target destroys it.
    if (m_painter.isActive()) {
        m_painter.end();
    }
    m_device = nullptr;
    m_target->discard();
    return nothingComesOut;
}

void PrintJob::fail(const QString& problem)
{
    closeUnfinished();
    end(Outcome::Failed, problem);
}

void PrintJob::end(Outcome outcome, const QString& message)
{
    m_timer.stop();
    m_state = State::Ended;
    Q_EMIT finished(outcome, message);
}

} // namespace SampleHost
