// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "robustness/lifetime/heapinuse.h"
#include "support/stricttest.h"

#include <QtCore/QFile>
#include <QtCore/QLibrary>
#include <QtGui/QAccessible>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <limits>

/** A host may load the panels as a plugin and unload them: this program is not linked to them. */
class tst_LibraryReload : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void imagesAreThereWhileTheLibraryIsLoaded();
    void loadingAgainNeedsNoMoreMemory();
    void assistiveTechnologyAsksThePanelsWhileTheyAreLoaded();

private:
    void loadAndUnload();

    QLibrary m_library{QStringLiteral(PRINTPANELS_LIBRARY)};
};

namespace {

constexpr int cycles = 10;

#if defined(__SANITIZE_ADDRESS__)
// For each destructor that a library registers, the sanitizer registers a function of its own,
// which stays when the library goes.
constexpr qint64 mostPerCycle = 8192;
#else
constexpr qint64 mostPerCycle = 0;
#endif

bool panelsHaveImages()
{
    return QFile::exists(QStringLiteral(":/printicons/printericons/printer_settings.png"));
}

bool panelsHaveVariants()
{
    return QFile::exists(QStringLiteral(":/printicons/printericons/printer_settings@2x.png"));
}

bool kitHasImages()
{
    return QFile::exists(QStringLiteral(":/module_icons/ModuleIcons/checkbox_selected.png"));
}

} // namespace

void tst_LibraryReload::init()
{
    StrictTest::init();
    QVERIFY(!m_library.isLoaded());
}

void tst_LibraryReload::cleanup()
{
    if (m_library.isLoaded())
        m_library.unload();
}

void tst_LibraryReload::loadAndUnload()
{
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
    QVERIFY2(m_library.unload(), qPrintable(m_library.errorString()));
}

void tst_LibraryReload::imagesAreThereWhileTheLibraryIsLoaded()
{
    for (int cycle = 0; cycle < cycles; ++cycle) {
        QVERIFY(!panelsHaveImages());
        QVERIFY(!panelsHaveVariants());
        QVERIFY(!kitHasImages());
        QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
        QVERIFY(panelsHaveImages());
        QVERIFY(panelsHaveVariants());
        QVERIFY(kitHasImages());
        QVERIFY2(m_library.unload(), qPrintable(m_library.errorString()));
    }
    QVERIFY(!panelsHaveImages());
    QVERIFY(!kitHasImages());
}

// What a cycle leaves behind grows in every one. What malloc keeps of freed memory grows in some.
void tst_LibraryReload::loadingAgainNeedsNoMoreMemory()
{
    for (int cycle = 0; cycle < 2; ++cycle)
        loadAndUnload();
    qint64 least = std::numeric_limits<qint64>::max();
    for (int cycle = 0; cycle < cycles; ++cycle) {
        const auto before = qint64(heapInUse());
        loadAndUnload();
        least = std::min(least, qint64(heapInUse()) - before);
    }
    const QByteArray grown = QByteArray::number(least);
    QVERIFY2(least <= mostPerCycle, grown.constData());
}

// Qt asks the library for every object that assistive technology looks at.
void tst_LibraryReload::assistiveTechnologyAsksThePanelsWhileTheyAreLoaded()
{
    for (int cycle = 0; cycle < cycles; ++cycle) {
        QLibrary probe(QStringLiteral(PROBE_LIBRARY));
        QVERIFY2(probe.load(), qPrintable(probe.errorString()));
        const auto previewRole = reinterpret_cast<int (*)()>(probe.resolve("previewRole"));
        QVERIFY(previewRole);
        QCOMPARE(previewRole(), int(QAccessible::Graphic));
        QVERIFY2(probe.unload(), qPrintable(probe.errorString()));
        QVERIFY(!panelsHaveImages());
        QWidget widget;
        QVERIFY(QAccessible::queryAccessibleInterface(&widget));
    }
}

QTEST_MAIN(tst_LibraryReload)
#include "tst_libraryreload.moc"
