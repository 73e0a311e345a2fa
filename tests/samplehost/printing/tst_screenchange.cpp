// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/requestsheet.h"
#include "samplehost/printing/labelpreview.h"
#include "samplehost/printing/screenfit.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/hosttest.h"
#include "samplehost/support/previewpixels.h"

#include <printpanels/printpreviewdialog.h>

#include <QtGui/QScreen>
#include <QtGui/QWindow>

using namespace SampleHost;

/** A preview that moves between two screens, the second with a device pixel ratio of 2. */
class TestScreenChange : public HostTest<HostFixture>
{
    Q_OBJECT

private Q_SLOTS:
    void previewIsRenderedForItsScreen();

private:
    QWidget* popup() const { return m_host->labels().preview().popup(); }
    void moveTo(int screen) const
    {
        popup()->windowHandle()->setScreen(QGuiApplication::screens().at(screen));
    }
    /** Whether the popup shows the pixels of a sheet rendered for the ratio. */
    bool isRenderedFor(qreal ratio) const;
};

bool TestScreenChange::isRenderedFor(qreal ratio) const
{
    const QWidget* canvas = PreviewPixels::canvasIn(*popup());
    if (canvas->devicePixelRatioF() != ratio) {
        return false;
    }
    const QSize room = ScreenFit(*canvas).room();
    const PrintRequest request = m_host->labels().controller().request(1, -1, QString());
    return PreviewPixels::contains(PreviewPixels::shown(*canvas),
                                   renderFirstSheet(m_host->labels().design(), request, room));
}

void TestScreenChange::previewIsRenderedForItsScreen()
{
    QCOMPARE(QGuiApplication::screens().size(), qsizetype(2));
    m_host->click("PreviewButton");
    QVERIFY(isRenderedFor(1));
    moveTo(1);
    QTRY_VERIFY(isRenderedFor(2));
    moveTo(0);
    QTRY_VERIFY(isRenderedFor(1));
    popup()->hide();
    moveTo(1);
    m_host->click("PreviewButton");
    QTRY_VERIFY(isRenderedFor(2));
}

QTEST_MAIN(TestScreenChange)
#include "tst_screenchange.moc"
