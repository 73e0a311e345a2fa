#include "samplehost/app/previewwindow.h"

#include "samplehost/app/labelview.h"
#include "samplehost/app/recordnavigator.h"

#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <limits>
#include <utility>

namespace SampleHost {

PreviewWindow::PreviewWindow(const PagePlan& plan, const SheetGeometry& sheet,
                             LabelPainter paintLabel, QWidget* parent)
    : QWidget(parent, Qt::Window), m_plan(plan), m_sheet(sheet), m_paintLabel(std::move(paintLabel))
{
    setObjectName(QStringLiteral("previewWindow"));
    setWindowTitle(tr("Print Preview"));
    m_view = new LabelView;
    m_pages = new RecordNavigator;
    m_pages->setObjectName(QStringLiteral("previewPages"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_view, 1);
    column->addWidget(m_pages);
    connect(m_pages, &RecordNavigator::currentIndexChanged, this, &PreviewWindow::showPage);
    const qint64 reachable = std::min<qint64>(plan.pageCount(), std::numeric_limits<int>::max());
    m_pages->setCount(int(reachable));
    showPage();
    resize(620, 560);
}

int PreviewWindow::currentPage() const
{
    return m_pages->currentIndex();
}

void PreviewWindow::showPage()
{
    m_view->setSheet(m_sheet.sheetSizeMm(),
                     [this](QPainter& painter, const QRectF& paper) { paint(painter, paper); });
}

void PreviewWindow::paint(QPainter& painter, const QRectF& paper)
{
    QString problem;
    painter.translate(paper.topLeft());
    const qreal dotsPerMm = paper.width() / m_sheet.sheetSizeMm().width();
    const QList<int> records = m_plan.recordsOnPage(currentPage());
    if (!paintPage(painter, dotsPerMm, m_sheet, records, m_paintLabel, problem)) {
        painter.drawText(QRectF(QPointF(), paper.size()), Qt::AlignCenter | Qt::TextWordWrap,
                         problem);
    }
}

} // namespace SampleHost
