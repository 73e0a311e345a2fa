// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef METAMETHODS_H
#define METAMETHODS_H

#include <QtCore/QStringList>

struct QMetaObject;

/**
 * Returns the methods that the class of @p metaObject declares itself, in meta-object order, one
 * line each:
 *
 *     signal public void changed(int newValue, QString)
 *
 * that is: kind (signal, slot, method or constructor), access, return type, name, and the types and
 * names, if any, of the parameters.
 */
QStringList ownMethods(const QMetaObject& metaObject);

#endif
