// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

// The explicit pair beside the load-time registration.
int qInitResources_printericons();
int qCleanupResources_printericons();
// The pair of the variants alone.
int qInitResources_printericons_scaled();
int qCleanupResources_printericons_scaled();

class tst_IconRegistration : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void iconsAreThereFromTheStart();
    void variantsAreACollectionOfTheirOwn();
    void cleanUpAnswersOneAndTakesTheIconsAway();
    void initialiseAnswersOneAndBringsThemBack();
};

namespace {

bool iconExists()
{
    return QFile::exists(QStringLiteral(":/printicons/printericons/printer_settings.png"));
}

QStringList icons()
{
    return QDir(QStringLiteral(":/printicons/printericons")).entryList();
}

bool variantsExist()
{
    return icons().contains(QLatin1String("printer_settings@2x.png")) &&
           icons().contains(QLatin1String("printer_settings@3x.png"));
}

} // namespace

void tst_IconRegistration::iconsAreThereFromTheStart()
{
    QVERIFY(iconExists());
    QVERIFY(variantsExist());
}

void tst_IconRegistration::variantsAreACollectionOfTheirOwn()
{
    QCOMPARE(icons().size(), 3 * 14);
    QCOMPARE(qCleanupResources_printericons_scaled(), 1);
    QCOMPARE(icons().size(), 14);
    QVERIFY(iconExists());
    QCOMPARE(qInitResources_printericons_scaled(), 1);
    QVERIFY(variantsExist());
}

void tst_IconRegistration::cleanUpAnswersOneAndTakesTheIconsAway()
{
    QCOMPARE(qCleanupResources_printericons(), 1);
    QVERIFY(!iconExists());
    QVERIFY(!variantsExist());
}

void tst_IconRegistration::initialiseAnswersOneAndBringsThemBack()
{
    QCOMPARE(qInitResources_printericons(), 1);
    QVERIFY(iconExists());
    QVERIFY(variantsExist());
}

QTEST_GUILESS_MAIN(tst_IconRegistration)
#include "tst_iconregistration.moc"
