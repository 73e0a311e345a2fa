// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// The quick print panel; prints one finished label, resized if the user likes, to a PDF file.
#include <printpanels/quickprintwidget.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QApplication>

// Sizes are inches; the label is painted in hundredths of an inch, whatever it is painted on.
static void paintLabel(QPainter& painter, const QSizeF& size)
{
    const QRect label(QPoint(0, 0), (size * 100).toSize());
    painter.setWindow(label);
    QFont font;
    font.setPixelSize(label.height() / 5);
    painter.setFont(font);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 3));
    painter.drawRect(label.adjusted(10, 10, -10, -10));
    painter.drawText(label, Qt::AlignCenter, "EYE WASH\nSTATION");
}

static QImage renderLabel(const QSizeF& size)
{
    // In the pixels of the panel's preview, which scales without smoothing.
    const QSizeF preview = size.scaled(200, 200, Qt::KeepAspectRatio);
    QImage image((preview * qApp->devicePixelRatio()).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintLabel(painter, size);
    return image;
}

static void printLabel(const QString& file, const QSizeF& size, int copies)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat); // for paper, setPrinterName() instead
    printer.setOutputFileName(file);
    printer.setPageSize(QPageSize(size, QPageSize::Inch, {}, QPageSize::ExactMatch));
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer))
        return qInfo("Nothing printed");
    for (int copy = 0; copy < copies; ++copy) {
        if (copy > 0)
            printer.newPage();
        paintLabel(painter, size);
    }
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QString file = app.arguments().value(1, "labels.pdf");
    QSizeF size(10, 7);

    QuickPrintWidget panel(true, nullptr);
    panel.setModule(JxModuleInfo::JxCatalog); // shows the size fields
    panel.setCurrentPrinterName("PDF file: " + file);
    panel.setCanvasSize(size);
    panel.updateQuickPrint(renderLabel(size));
    panel.disableAllButtons(); // there is no editor to open the label in
    panel.enablePrintButtons();

    QObject::connect(&panel, &QuickPrintWidget::resizeSignal, &panel, [&](const QSizeF& asked) {
        // A field that holds no number is -1; what is a sensible size is for the host to say.
        if (asked.width() >= 1 && asked.height() >= 1)
            size = asked.boundedTo(QSizeF(20, 20));
        panel.setCanvasSize(size);
        panel.updateQuickPrint(renderLabel(size));
    });
    QObject::connect(&panel, &QuickPrintWidget::widgetPrintSignal, &panel,
                     [&] { printLabel(file, size, panel.getNumberOfCopies()); });
    panel.show();
    return QApplication::exec();
}
