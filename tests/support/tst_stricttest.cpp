// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

/**
 * Fails on purpose: StrictTest must turn a connection to a signal that does not exist into a
 * failure. CTest expects this failure.
 */
class tst_StrictTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void aConnectionToNoSignalFails();
};

void tst_StrictTest::aConnectionToNoSignalFails()
{
    QObject receiver;
    QObject::connect(this, SIGNAL(neverDeclared()), &receiver, SLOT(deleteLater()));
}

QTEST_GUILESS_MAIN(tst_StrictTest)
#include "tst_stricttest.moc"
