#ifndef SAMPLEHOST_PREVIEWWINDOW_H
#define SAMPLEHOST_PREVIEWWINDOW_H

#include "samplehost/print/pageplan.h"
#include "samplehost/print/printjob.h"
#include "samplehost/print/sheetgeometry.h"

#include <QtWidgets/QWidget>

namespace SampleHost {

class LabelView;
class RecordNavigator;

/** A window that shows the pages of a request, one at a time. */
class PreviewWindow : public QWidget
{
    Q_OBJECT

public:
    /** Shows the first page. What paintLabel uses must outlive the window. */
    PreviewWindow(const PagePlan& plan, const SheetGeometry& sheet, LabelPainter paintLabel,
                  QWidget* parent = nullptr);

    /** The page that is shown, 0-based. */
    int currentPage() const;

private:
    void showPage();
    void paint(QPainter& painter, const QRectF& paper);

    PagePlan m_plan;
    SheetGeometry m_sheet;
    LabelPainter m_paintLabel;
    LabelView* m_view = nullptr;
    RecordNavigator* m_pages = nullptr;
};

} // namespace SampleHost

#endif
