// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "heapinuse.h"
#include "lifetimetest.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <limits>
#include <memory>

/** That a panel which only stays on the screen takes no more memory the longer it does. */
class tst_Repainting : public LifetimeTest
{
    Q_OBJECT

private Q_SLOTS:
    void memoryStaysFlat_data();
    void memoryStaysFlat();
};

void tst_Repainting::memoryStaysFlat_data()
{
    QTest::addColumn<Create>("create");
    const QList<PanelKind> kinds = panelKinds();
    for (const PanelKind& kind : kinds)
        QTest::newRow(kind.name) << kind.create;
}

// With Qt's cache of pictures at its usual size, which a picture made anew for each painting fills.
void tst_Repainting::memoryStaysFlat()
{
    constexpr int paintings = 100;
    constexpr qint64 mostPerPainting = 32; // bytes
    QFETCH(const Create, create);
    const std::unique_ptr<QWidget> panel(create());
    QVERIFY(showActive(*panel));
    const auto paint = [&panel](int times) {
        for (int i = 0; i < times; ++i) {
            panel->repaint();
            QCoreApplication::processEvents();
        }
    };
    paint(paintings / 4);
    qint64 least = std::numeric_limits<qint64>::max();
    for (int run = 0; run < 3; ++run) {
        const auto before = qint64(heapInUse());
        paint(paintings);
        least = std::min(least, qint64(heapInUse()) - before);
    }
    const QByteArray grown = QByteArray::number(least);
    QVERIFY2(least < mostPerPainting * paintings, grown.constData());
}

QTEST_MAIN(tst_Repainting)
#include "tst_repainting.moc"
