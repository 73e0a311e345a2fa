// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/labeldesign.h"
#include "samplehost/designs/requestsheet.h"
#include "samplehost/pages/catalogpage.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/printing/labelpreview.h"
#include "samplehost/printing/previewcanvas.h"
#include "samplehost/printing/printcontroller.h"
#include "samplehost/support/offscreenscreen.h"
#include "samplehost/support/previewpixels.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtGui/QPainter>
#include <QtTest/QSignalSpy>

#include <functional>
#include <memory>

using namespace SampleHost;

namespace {

constexpr int lineCount = 67;

/** A label with thin lines in one direction, at all positions between two pixels. */
class LineDesign : public LabelDesign
{
public:
    LineDesign(Qt::Orientation direction, double widthMm, const QSizeF& sizeMm)
        : m_vertical(direction == Qt::Vertical), m_widthMm(widthMm), m_sizeMm(sizeMm)
    {
    }

    QString title() const override { return QStringLiteral("lines"); }
    int currentIndex() const override { return 0; }
    int recordCount() const override { return 1; }
    void complete(PrintRequest&) const override {}
    QSizeF labelSizeMm(const PrintRequest&) const override { return m_sizeMm; }
    LabelPainter painter(const PrintRequest&) const override
    {
        return [this](QPainter& painter, const QRectF& area, int, QString&) {
            const double dotsPerMm = area.width() / m_sizeMm.width();
            painter.setPen(QPen(Qt::black, m_widthMm * dotsPerMm));
            for (int line = 0; line < lineCount; ++line) {
                const double part = (line + 0.5) / lineCount;
                const double x = area.left() + part * area.width();
                const double y = area.top() + part * area.height();
                painter.drawLine(m_vertical ? QLineF(x, area.top(), x, area.bottom())
                                            : QLineF(area.left(), y, area.right(), y));
            }
            return true;
        };
    }

private:
    const bool m_vertical;
    const double m_widthMm;
    const QSizeF m_sizeMm;
};

/** A panel or window with a preview. */
struct Panel
{
    std::unique_ptr<QWidget> window;
    std::function<void(const QImage&)> show;
};

Panel popup()
{
    auto window =
        std::make_unique<PrintPreviewDialog>(nullptr, Qt::FramelessWindowHint, QImage(), QSizeF(),
                                             QSizeF(), true, true, true, 1, 1, QString());
    auto* dialog = window.get();
    return {std::move(window), [dialog](const QImage& image) {
                dialog->updatePreview(image, {}, {}, true, true, true, 1, 1, {});
            }};
}

Panel documentWindow()
{
    auto window = std::make_unique<MultiPagePrintDialog>(
        new MultiPagePrintWidget(true, false, nullptr), nullptr, Qt::FramelessWindowHint);
    auto* dialog = window.get();
    return {std::move(window), [dialog](const QImage& image) { dialog->setPreviewImage(image); }};
}

Panel quickPanel()
{
    auto window = std::make_unique<QuickPrintWidget>(true, nullptr);
    auto* panel = window.get();
    return {std::move(window), [panel](const QImage& image) { panel->updateQuickPrint(image); }};
}

using PanelFactory = Panel (*)();

/** A page without two equal pixels in a row or column. */
QImage everyPixelItsOwn(const QSize& size)
{
    QImage page(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            page.setPixel(x, y, qRgb(x % 256, y % 256, x / 256 * 16 + y / 256));
        }
    }
    return page;
}

} // namespace

/** What thin lines become in the previews. QT_SCALE_FACTOR sets the ratio of the screen. */
class TestScreenFit : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPixelOfThePageIsShown_data();
    void everyPixelOfThePageIsShown();
    void noLineOfALabelIsLost_data();
    void noLineOfALabelIsLost();
    void catalogueShowsEveryPixel();
    void previewIsRenderedForItsSize();
    void sizesFit_data();
    void sizesFit();
};

void TestScreenFit::everyPixelOfThePageIsShown_data()
{
    addColumns<PanelFactory, QSizeF>("create", "page");
    const auto rows = [](const char* name, PanelFactory create) {
        for (const QSizeF page : {QSizeF(4, 3), QSizeF(210, 297), QSizeF(10, 1), QSizeF(1, 10)}) {
            QTest::addRow("%s, page of %gx%g", name, page.width(), page.height()) << create << page;
        }
        QTest::addRow("%s, page as the room", name) << create << QSizeF();
    };
    rows("preview popup", popup);
    rows("preview and print", documentWindow);
    rows("quick print", quickPanel);
}

void TestScreenFit::everyPixelOfThePageIsShown()
{
    QFETCH(const PanelFactory, create);
    QFETCH(const QSizeF, page);
    const Panel panel = create();
    const PreviewCanvas canvas(*panel.window, QRect(0, 0, 10, 10));
    panel.window->show();
    const QSize room = canvas.fit().room();
    const QImage image = everyPixelItsOwn(
        page.isEmpty() ? room : page.scaled(room, Qt::KeepAspectRatio).toSize().boundedTo(room));
    panel.show(canvas.fit().picture(image));
    QVERIFY(PreviewPixels::contains(PreviewPixels::shown(*PreviewPixels::canvasIn(*panel.window)),
                                    image));
}

void TestScreenFit::noLineOfALabelIsLost_data()
{
    addColumns<Qt::Orientation, double, QSizeF>("direction", "widthMm", "sizeMm");
    addRow("hairlines, vertical", Qt::Vertical, 0.0, QSizeF(101.6, 45));
    addRow("hairlines, horizontal", Qt::Horizontal, 0.0, QSizeF(101.6, 45));
    addRow("hairlines, portrait", Qt::Vertical, 0.0, QSizeF(76.2, 101.6));
    addRow("lines of a pixel, vertical", Qt::Vertical, 0.2, QSizeF(171.3, 80));
    addRow("lines of a pixel, horizontal", Qt::Horizontal, 0.2, QSizeF(171.3, 80));
}

void TestScreenFit::noLineOfALabelIsLost()
{
    QFETCH(const Qt::Orientation, direction);
    QFETCH(const double, widthMm);
    QFETCH(const QSizeF, sizeMm);
    const LineDesign design(direction, widthMm, sizeMm);
    const HostSettings settings;
    PrintWidget panel(true, nullptr);
    PrintController controller(panel, design, settings);
    LabelPreview preview(controller, design, settings, panel);
    panel.show();
    Q_EMIT controller.previewRequested(PrintRequest());
    const QImage shown = PreviewPixels::shown(*PreviewPixels::canvasIn(*preview.popup()));
    const QByteArray problem =
        PreviewPixels::lineProblem(PreviewPixels::lineWidths(shown, direction), lineCount);
    QVERIFY2(problem.isEmpty(), problem.constData());
}

void TestScreenFit::catalogueShowsEveryPixel()
{
    const HostSettings settings;
    CatalogPage page(settings);
    page.resize(1000, 900);
    page.show();
    const QWidget* canvas = PreviewPixels::canvasIn(page);
    const ScreenFit fit(*canvas);
    PrintRequest request;
    page.design().complete(request);
    QTRY_VERIFY(PreviewPixels::contains(PreviewPixels::shown(*canvas),
                                        renderFirstSheet(page.design(), request, fit.room())));
}

// As on a screen with another ratio: only the number of pixels differs.
void TestScreenFit::previewIsRenderedForItsSize()
{
    const Panel panel = popup();
    panel.window->show();
    QWidget* view = PreviewPixels::canvasIn(*panel.window);
    const PreviewCanvas canvas(*panel.window,
                               QRect(view->mapTo(panel.window.get(), QPoint()), view->size()));
    QSignalSpy changed(&canvas, &PreviewCanvas::fitChanged);
    view->repaint();
    QCoreApplication::processEvents();
    QCOMPARE(changed.size(), 0);

    view->resize(view->size() - QSize(100, 60));
    QTRY_COMPARE(changed.size(), 1);
    QVERIFY(canvas.fit() == ScreenFit(*view));

    panel.window->hide();
    view->resize(view->size() - QSize(100, 60));
    panel.window->show();
    QTRY_COMPARE(changed.size(), 2);
    QVERIFY(canvas.fit() == ScreenFit(*view));
}

void TestScreenFit::sizesFit_data()
{
    addColumns<QSize, qreal, QSize, QSize>("size", "ratio", "pixels", "room");
    addRow("1", QSize(832, 381), 1.0, QSize(832, 381), QSize(831, 380));
    addRow("1.25", QSize(832, 381), 1.25, QSize(1040, 476), QSize(1038, 474));
    addRow("1.5", QSize(832, 381), 1.5, QSize(1248, 571), QSize(1246, 569));
    addRow("2", QSize(832, 381), 2.0, QSize(1664, 762), QSize(1662, 760));
    addRow("the height is whole", QSize(381, 832), 1.25, QSize(476, 1040), QSize(474, 1038));
    // In a picture that is 476 pixels wide, the middles of pixels would lie on edges.
    addRow("neither is whole", QSize(381, 201), 1.25, QSize(477, 250), QSize(475, 248));
    addRow("tiny", QSize(1, 1), 2.0, QSize(2, 2), QSize(0, 0));
    addRow("none", QSize(0, 20), 2.0, QSize(), QSize(0, 0));
}

void TestScreenFit::sizesFit()
{
    QFETCH(const QSize, size);
    QFETCH(const qreal, ratio);
    const ScreenFit fit(QRect(QPoint(), size), ratio);
    QTEST(fit.pixels(), "pixels");
    QTEST(fit.room(), "room");
    QVERIFY(fit.picture(QImage()).isNull());
}

// On a smaller screen the window would be scrolled, at every ratio.
int main(int argc, char** argv)
{
    return runOnScreen<TestScreenFit>(3200, 2400, argc, argv);
}

#include "tst_screenfit.moc"
