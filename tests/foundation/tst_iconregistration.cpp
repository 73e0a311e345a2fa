// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <QtCore/QFile>

// The explicit pair that the resource compiler writes beside the load-time registration.
int qInitResources_printericons();
int qCleanupResources_printericons();

class tst_IconRegistration : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void iconsAreThereFromTheStart();
    void cleanUpAnswersOneAndTakesTheIconsAway();
    void initialiseAnswersOneAndBringsThemBack();
};

namespace {

bool iconExists()
{
    return QFile::exists(QStringLiteral(":/printicons/printericons/printer_settings.png"));
}

} // namespace

void tst_IconRegistration::iconsAreThereFromTheStart()
{
    QVERIFY(iconExists());
}

void tst_IconRegistration::cleanUpAnswersOneAndTakesTheIconsAway()
{
    QCOMPARE(qCleanupResources_printericons(), 1);
    QVERIFY(!iconExists());
}

void tst_IconRegistration::initialiseAnswersOneAndBringsThemBack()
{
    QCOMPARE(qInitResources_printericons(), 1);
    QVERIFY(iconExists());
}

QTEST_GUILESS_MAIN(tst_IconRegistration)
#include "tst_iconregistration.moc"
