// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef LIFETIMETEST_H
#define LIFETIMETEST_H

#include "livepanel.h"
#include "support/deleter.h"
#include "support/stricttest.h"
#include "useractions.h"

using Create = QWidget* (*)();

/** Base class of the tests that delete panels. */
class LifetimeTest : public StrictTest
{
    Q_OBJECT

protected:
    /** Deletes what a failed test left. */
    void cleanup() override { deleteWidgetsLeft(); }

    /**
     * Adds a row for every UserAction after which a handler may delete @p when: at once only for
     * the click of a button. With @p create, only those on the panel that this function builds.
     */
    static void addActionRows(Deleter::When when, Create create = nullptr);

    /** Adds a row for every kind of panel: the function that creates one. */
    static void addKindRows();

    /** Does @p action to @p panel in its window and checks that @p host deletes its target. */
    static void actAndDelete(const UserAction& action, const QPointer<QWidget>& panel,
                             Deleter& host, Deleter::When when);
};

Q_DECLARE_METATYPE(UserAction)
Q_DECLARE_METATYPE(Create)

#endif
