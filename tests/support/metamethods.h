// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef METAMETHODS_H
#define METAMETHODS_H

#include <QtCore/QStringList>

struct QMetaObject;

/**
 * The methods that @p metaObject's class declares itself, in meta-object order, one line each:
 *
 *     signal public void changed(int newValue, QString)
 *
 * that is kind (signal, slot, method, constructor), access, result, name, and the parameters' types
 * with their names, if they have any.
 */
QStringList ownMethods(const QMetaObject& metaObject);

#endif
