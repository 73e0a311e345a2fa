// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// The full print settings panel; prints labels, two on a page, to the PDF file it is started with.
#include <printpanels/printwidget.h>
#include <printpanels/recordlist.h>

#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollArea>

constexpr int recordCount = 12;
constexpr int labelsPerPage = 2;

// The record on each label: one after the other, or each as often as a page has room for it.
static QList<int> labelsFor(int start, int end, const QString& list, bool sequence)
{
    using Ranges = QList<RecordList::Range>;
    const auto ranges = list.isEmpty() ? Ranges{{start, end == -1 ? start : end}}
                                       : RecordList::expand(list, recordCount).value_or(Ranges());
    QList<int> labels;
    for (const RecordList::Range range : ranges)
        for (int record = range.first; record <= range.last; ++record)
            labels.insert(labels.size(), sequence ? 1 : labelsPerPage, record);
    return labels;
}

static void printLabels(const QString& file, const QList<int>& labels, int copies)
{
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(QSizeF(labelsPerPage * 3, 2), QPageSize::Inch));
    writer.setPageMargins(QMarginsF());
    QPainter painter;
    if (labels.isEmpty() || !painter.begin(&writer))
        return qInfo("Nothing printed");
    painter.setFont(QFont(QApplication::font().family(), 28));
    const int width = writer.width() / labelsPerPage;
    for (int copy = 0; copy < copies; ++copy) {
        for (int i = 0; i < labels.size(); ++i) {
            const int column = i % labelsPerPage;
            if (column == 0 && copy + i > 0)
                writer.newPage();
            const QRect label(column * width, 0, width, writer.height());
            painter.drawText(label, Qt::AlignCenter, QString("Record %1").arg(labels.at(i)));
            painter.drawRect(label.adjusted(100, 100, -100, -100));
        }
    }
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QString file = app.arguments().value(1, "labels.pdf");

    auto* panel = new PrintWidget(false, nullptr); // true adds the test controls
    panel->setModule(JxModuleInfo::JxLabelEditor); // once, before the panel is shown
    panel->updateListOfPrinters({"PDF file"}, 0);
    panel->updatePrinterLocation(file);
    panel->updatePrinterStatus(false, false, false); // offline, remote, unavailable
    panel->setRangeValues(0, recordCount - 1, true); // 0-based: on the first of the records
    panel->setNupSeqRepVisible(true);
    panel->disableAllButtons(); // there is no dialog of printer preferences
    panel->enablePrintButtons();

    const auto print = [panel, file](int start, int end, const QString& list) {
        const auto labels = labelsFor(start, end, list, panel->getNupSeqRepOption());
        printLabels(file, labels, panel->getNumberOfCopies());
    };
    const auto preview = [] { qInfo("The preview example shows the popup for this"); };
    QObject::connect(panel, &PrintWidget::widgetPrintSignal, panel, print);
    QObject::connect(panel, &PrintWidget::printPreviewSignal, panel, preview);
    QScrollArea area; // with all its sections the panel is higher than many screens
    area.setWidget(panel);
    area.setWidgetResizable(true);
    area.resize(380, 720);
    area.show();
    return QApplication::exec();
}
