// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// The preview popup; prints the records that it was opened for to a PDF file.
#include <previewinput.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/recordlist.h>

#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtWidgets/QApplication>

#include <utility>

constexpr int recordCount = 12;
constexpr QSizeF labelSizes[] = {{4, 3}, {3, 4}}; // landscape and portrait, in inches

static void paintLabel(QPainter& painter, const QSizeF& size, int record)
{
    const QRect label(QPoint(0, 0), (size * 100).toSize());
    painter.setWindow(label); // hundredths of an inch, on the screen and on paper
    QFont font;
    font.setPixelSize(40);
    painter.setFont(font);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawText(label, Qt::AlignCenter, QString("Record %1").arg(record));
    painter.drawRect(label.adjusted(10, 10, -10, -10));
}

static QImage renderLabel(const QSizeF& size, int record)
{
    QImage image((size * 200).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintLabel(painter, size, record);
    return image;
}

static void printLabels(const QString& file, const QSizeF& size, int start, int end,
                        const QString& list)
{
    QList<RecordList::Range> ranges{{start, end == -1 ? start : end}};
    if (!list.isEmpty())
        ranges = RecordList::expand(list, recordCount).value_or(QList<RecordList::Range>());
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(size, QPageSize::Inch));
    writer.setPageMargins(QMarginsF());
    QPainter painter;
    for (const RecordList::Range range : std::as_const(ranges)) {
        for (int record = range.first; record <= range.last; ++record) {
            if (!(painter.isActive() ? writer.newPage() : painter.begin(&writer)))
                return qInfo("Cannot print to %s", qPrintable(file));
            paintLabel(painter, size, record);
        }
    }
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QString file = app.arguments().value(1, "labels.pdf");
    QSizeF size = labelSizes[0];

    // Beside a panel, the popup has a parent, the flag Qt::Popup and the panel's request.
    PrintPreviewDialog popup(nullptr, Qt::FramelessWindowHint, renderLabel(size, 1), size, size,
                             true, false, false, 0, 0, "1,4-5");
    const auto turn = [&](int orientation) { // 0 landscape, 1 portrait
        size = labelSizes[orientation];
        popup.updatePreview(renderLabel(size, 1), size, size, true, orientation == 1, false, 0, 0,
                            "1,4-5");
    };
    const auto print = [&](int start, int end, const QString& list) {
        printLabels(file, size, start, end, list);
    };
    QObject::connect(&popup, &PrintPreviewDialog::orientationChangedSignal, &popup, turn);
    QObject::connect(&popup, &PrintPreviewDialog::previewPrintSignal, &popup, print);
    new PreviewInput(&popup); // keys and fingers for the picture
    popup.show();
    return QApplication::exec();
}
