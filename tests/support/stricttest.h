// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef STRICTTEST_H
#define STRICTTEST_H

#include <QtCore/QObject>
#include <QtTest/QTest>

/**
 * Base of every test class: any Qt warning that a test function does not announce with
 * QTest::ignoreMessage() fails that function, so a string-based connection to a signal that does
 * not exist cannot slip through. A class with an init() of its own calls StrictTest::init() first.
 */
class StrictTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    // Not a test function: QTest runs private slots only, but finds init() whatever its access.
    void init();
};

#endif
