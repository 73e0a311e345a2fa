// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <QtCore/QtGlobal>

// The resource compiler writes a pair like that below for each of the two collections, and
// registers each of them when the library is loaded.
int QT_MANGLE_NAMESPACE(qInitResources_printericons_basic)();
int QT_MANGLE_NAMESPACE(qCleanupResources_printericons_basic)();
int QT_MANGLE_NAMESPACE(qInitResources_printericons_scaled)();
int QT_MANGLE_NAMESPACE(qCleanupResources_printericons_scaled)();

// What Q_INIT_RESOURCE(printericons) and Q_CLEANUP_RESOURCE(printericons) call.
int QT_MANGLE_NAMESPACE(qInitResources_printericons)();
int QT_MANGLE_NAMESPACE(qCleanupResources_printericons)();

int QT_MANGLE_NAMESPACE(qInitResources_printericons)()
{
    QT_MANGLE_NAMESPACE(qInitResources_printericons_scaled)();
    return QT_MANGLE_NAMESPACE(qInitResources_printericons_basic)();
}

int QT_MANGLE_NAMESPACE(qCleanupResources_printericons)()
{
    QT_MANGLE_NAMESPACE(qCleanupResources_printericons_scaled)();
    return QT_MANGLE_NAMESPACE(qCleanupResources_printericons_basic)();
}
