// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef ACCESSIBLETREE_H
#define ACCESSIBLETREE_H

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QAccessible>

class QWidget;

/** The accessible properties of one control. */
struct AccessibleControl
{
    /** Class and object name of the control, or of the nearest widget around it. */
    QString place;
    QAccessible::Role role = QAccessible::NoRole;
    QString name;
    /** Empty except for a value that is shown besides the name, as in a combo box. */
    QString value;
};

/**
 * The name by which a screen reader calls @p control. What Qt calls the name of a tab bar, and on
 * Linux of a combo box, is what is chosen there; screen readers take the name from the label.
 */
QString accessibleName(const QAccessibleInterface* control);

/** All controls in @p root, also hidden ones: what a user can operate, and pictures to look at. */
QList<AccessibleControl> accessibleControls(QWidget* root);

/** The controls in @p root that have no name, one line each. */
QStringList unnamedControls(QWidget* root);

#endif
