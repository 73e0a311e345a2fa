// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "imagelesspanels.h"
#include "support/stricttest.h"

#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtGui/QImage>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QPushButton>

using PanelFactory = PanelPointer (*)();

namespace {

/** Brings the images of a host while it lives. */
class HostImages
{
public:
    HostImages() { registered = QResource::registerResource(file); }
    ~HostImages()
    {
        QResource::unregisterResource(file);
        QPixmapCache::clear();
    }

    bool registered;

private:
    const QString file = QStringLiteral(HOST_IMAGES);
};

bool hostImageExists()
{
    return QFile::exists(QStringLiteral(":/module_icons")) ||
           QFile::exists(QStringLiteral(":/Size")) || QFile::exists(QStringLiteral(":/hostkit"));
}

bool show(QWidget& panel)
{
    panel.show();
    return QTest::qWaitForWindowExposed(&panel);
}

/** The look of a button as it is, held down and disabled. */
QList<QImage> looksOf(QPushButton* button)
{
    QList<QImage> looks = {button->grab().toImage()};
    button->setDown(true);
    looks.append(button->grab().toImage());
    button->setDown(false);
    button->setEnabled(false);
    looks.append(button->grab().toImage());
    button->setEnabled(true);
    return looks;
}

} // namespace

/** Controls keep their sizes, and Qt prints no warning, where the host has registered no images. */
class tst_WithoutImages : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheLibrarysOwnImagesAreThere();
    void everyControlKeepsItsPlace_data();
    void everyControlKeepsItsPlace();
    void stepButtonsKeepTheirSizeAndShowNoPicture_data();
    void stepButtonsKeepTheirSizeAndShowNoPicture();
};

void tst_WithoutImages::onlyTheLibrarysOwnImagesAreThere()
{
    QVERIFY(!hostImageExists());
    QVERIFY(QFile::exists(QStringLiteral(":/printicons/printericons/printer_settings.png")));
    const HostImages images;
    QVERIFY(images.registered);
    QVERIFY(hostImageExists());
}

void tst_WithoutImages::everyControlKeepsItsPlace_data()
{
    QTest::addColumn<PanelFactory>("create");
    addRow("print settings panel", &printPanel);
    addRow("print settings panel, pipe marking", &pipeMarkingPanel);
    addRow("quick print panel", &quickPanel);
    addRow("multi-page panel", &multiPagePanel);
    addRow("multi-page dialog", &multiPageDialog);
    addRow("preview popup", &previewPopup);
}

void tst_WithoutImages::everyControlKeepsItsPlace()
{
    QFETCH(const PanelFactory, create);
    QVERIFY(!hostImageExists());
    const PanelPointer without = create();
    QVERIFY(show(*without));
    const QImage bare = without->grab().toImage();
    QVERIFY(!bare.isNull());

    const HostImages images;
    const PanelPointer with = create();
    QVERIFY(show(*with));
    QCOMPARE(without->size(), with->size());
    QCOMPARE(placesOf(*without), placesOf(*with));
    // It is the images that make the difference.
    QVERIFY(with->grab().toImage() != bare);
}

void tst_WithoutImages::stepButtonsKeepTheirSizeAndShowNoPicture_data()
{
    QTest::addColumn<PanelFactory>("create");
    addRow("print settings panel", &printPanel);
    addRow("quick print panel", &quickPanel);
    addRow("multi-page panel", &multiPagePanel);
}

// Plus and minus are two plain buttons of one look then, in each of their states.
void tst_WithoutImages::stepButtonsKeepTheirSizeAndShowNoPicture()
{
    QFETCH(const PanelFactory, create);
    const auto looks = [create](const char* name) {
        const PanelPointer panel = create();
        return show(*panel) ? looksOf(panel->findChild<QPushButton*>(QLatin1String(name)))
                            : QList<QImage>();
    };
    const QList<QImage> plainPlus = looks("plusButton");
    const QList<QImage> plainMinus = looks("minusButton");
    const HostImages images;
    const QList<QImage> plus = looks("plusButton");
    const QList<QImage> minus = looks("minusButton");
    QCOMPARE(plainPlus.size(), 3);
    for (int state = 0; state < 3; ++state) {
        QCOMPARE(plainPlus.at(state).size(), plus.at(state).size());
        QCOMPARE(plainMinus.at(state).size(), minus.at(state).size());
        QCOMPARE(plainPlus.at(state), plainMinus.at(state));
        QVERIFY(plus.at(state) != minus.at(state));
    }
}

QTEST_MAIN(tst_WithoutImages)
#include "tst_withoutimages.moc"
