// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// "Preview and Print" for a document of several pages; prints to a PDF file.
#include <previewinput.h>
#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/recordlist.h>

#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtWidgets/QApplication>

using Ranges = QList<RecordList::Range>;
constexpr int pageCount = 8;
constexpr QRect page(0, 0, 500, 400); // of the document, in hundredths of an inch

static void paintPage(QPainter& painter, int number)
{
    painter.setWindow(page);
    QFont font;
    font.setPixelSize(60);
    painter.setFont(font);
    painter.drawText(page, Qt::AlignCenter, QString("Page %1").arg(number));
}

static QImage renderPage(int number)
{
    QImage image(page.size() * 2, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintPage(painter, number);
    return image;
}

static void printPages(const QString& file, const Ranges& ranges, int copies, bool fitToPage)
{
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(QPageSize::Letter));
    const QSize fitting = page.size().scaled(writer.width(), writer.height(), Qt::KeepAspectRatio);
    const QSize actual = page.size() * (writer.resolution() / 100);
    QPainter painter;
    for (int copy = 0; copy < copies; ++copy) {
        for (const RecordList::Range range : ranges) {
            for (int number = range.first; number <= range.last; ++number) {
                if (!(painter.isActive() ? writer.newPage() : painter.begin(&writer)))
                    return qInfo("Cannot print to %s", qPrintable(file));
                painter.setViewport(QRect(QPoint(0, 0), fitToPage ? fitting : actual));
                paintPage(painter, number);
            }
        }
    }
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QString file = app.arguments().value(1, "pages.pdf");
    bool fitToPage = true;
    auto* panel = new MultiPagePrintWidget(fitToPage, false, nullptr);
    MultiPagePrintDialog dialog(panel, nullptr, Qt::FramelessWindowHint); // owns the panel
    dialog.setTitle("Preview and Print");
    panel->updateListOfPrinters({"PDF file"}, 0);
    panel->setFormFillOption(false, false); // the document has no form
    panel->set180OrientationVisible(false);
    const auto show = [&](int n) { dialog.setPreviewImage(n > 0 ? renderPage(n) : QImage()); };
    new PreviewInput(&dialog, [panel] { panel->checkRangeUpdate(true); }); // keys and fingers
    const auto fit = [&](int state) { fitToPage = state == Qt::Checked; };
    const auto print = [&](int start, int end, const QString& list) {
        const auto ranges = list.isEmpty() ? Ranges{{start, end}}
                                           : RecordList::expand(list, pageCount).value_or(Ranges());
        printPages(file, ranges, panel->getNumberOfCopies(), fitToPage);
    };
    QObject::connect(panel, &MultiPagePrintWidget::startPageChangedSignal, panel, show);
    QObject::connect(panel, &MultiPagePrintWidget::fitToPageChangedSignal, panel, fit);
    QObject::connect(panel, &MultiPagePrintWidget::widgetPrintSignal, panel, print);
    panel->setPageInfo(1, pageCount, true); // 1-based; answered with the page to show
    panel->enablePrintButtons();
    return dialog.exec();
}
