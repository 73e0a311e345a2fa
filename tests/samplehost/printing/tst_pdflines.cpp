// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdfprinting.h"
#include "samplehost/printing/screenfit.h"
#include "samplehost/support/documentfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/support/offscreenscreen.h"
#include "samplehost/support/previewpixels.h"

using namespace SampleHost;

/** What thin lines of a document become in "Preview and Print". QT_SCALE_FACTOR sets the ratio. */
class TestPdfLines : public HostTest<DocumentFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void noLineIsLost_data();
    void noLineIsLost();
    void everyPixelIsShown();

private:
    static QByteArray lines(Qt::Orientation direction, double width, const QSizeF& size);
    QImage shown() const
    {
        return PreviewPixels::shown(*PreviewPixels::canvasIn(m_host->dialog()));
    }
};

namespace {

constexpr int lineCount = 53;

} // namespace

/** A page with lines in one direction, at all positions between two pixels. */
QByteArray TestPdfLines::lines(Qt::Orientation direction, double width, const QSizeF& size)
{
    const auto number = [](double value) { return QByteArray::number(value, 'f', 3) + ' '; };
    QByteArray content = number(width) + "w\n";
    for (int line = 0; line < lineCount; ++line) {
        const double part = (line + 0.5) / lineCount;
        if (direction == Qt::Vertical) {
            const QByteArray x = number(part * size.width());
            content += x + "0 m " + x + number(size.height()) + "l S\n";
        } else {
            const QByteArray y = number(part * size.height());
            content += "0 " + y + "m " + number(size.width()) + y + "l S\n";
        }
    }
    return PdfSamples::pages({PdfSamples::Page{size, content, QByteArray()}});
}

void TestPdfLines::noLineIsLost_data()
{
    addColumns<Qt::Orientation, double, QSizeF>("direction", "width", "size");
    const QSizeF a4(595, 842);
    addRow("hairlines, vertical", Qt::Vertical, 0.0, a4);
    addRow("hairlines, horizontal", Qt::Horizontal, 0.0, a4);
    addRow("thin lines, vertical", Qt::Vertical, 0.5, a4);
    addRow("thin lines, horizontal", Qt::Horizontal, 0.5, a4);
    addRow("hairlines on a wide page, vertical", Qt::Vertical, 0.0, QSizeF(842, 595));
    addRow("hairlines on a wide page, horizontal", Qt::Horizontal, 0.0, QSizeF(842, 595));
    addRow("lines of a pixel, vertical", Qt::Vertical, 1.0, QSizeF(420, 420));
}

void TestPdfLines::noLineIsLost()
{
    QFETCH(const Qt::Orientation, direction);
    QFETCH(const double, width);
    QFETCH(const QSizeF, size);
    QVERIFY(m_host->openBytes(lines(direction, width, size)));
    QVERIFY(m_host->showDialog());
    const QByteArray problem =
        PreviewPixels::lineProblem(PreviewPixels::lineWidths(shown(), direction), lineCount);
    QVERIFY2(problem.isEmpty(), problem.constData());
}

void TestPdfLines::everyPixelIsShown()
{
    QVERIFY(m_host->openBytes(PdfSamples::form()));
    QVERIFY(m_host->showDialog());
    const QWidget* canvas = PreviewPixels::canvasIn(m_host->dialog());
    const ScreenFit fit(*canvas);
    const QImage sheet =
        previewPdfSheet(*m_host->page().document(), m_host->preview().request(), 0, fit.room());
    QVERIFY(PreviewPixels::contains(shown(), sheet));
}

// On a smaller screen the window would be scrolled, at every ratio.
int main(int argc, char** argv)
{
    return runOnScreen<TestPdfLines>(3200, 2400, argc, argv);
}

#include "tst_pdflines.moc"
