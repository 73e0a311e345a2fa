// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef STRICTTEST_H
#define STRICTTEST_H

#include <QtCore/QObject>
#include <QtTest/QTest>

/**
 * Base class of every test. Any warning that is not expected with QTest::ignoreMessage() fails the
 * test function; in particular, the warning about a string-based connection to a signal that does
 * not exist. A subclass with an init() of its own must call StrictTest::init() first.
 */
class StrictTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    // Not private, because Qt Test runs private slots as tests. It calls init() and cleanup()
    // whatever their access.
    virtual void init();
    virtual void cleanup() {}
};

/** Adds columns of test data: for each type the name in its place. */
template <typename... Types, typename... Names>
void addColumns(const Names*... names)
{
    (QTest::addColumn<Types>(names), ...);
}

/** Adds a row of test data. Plain texts become QStrings. */
template <typename... Values>
void addRow(const char* name, const Values&... values)
{
    (QTest::newRow(name) << ... << values);
}

#endif
