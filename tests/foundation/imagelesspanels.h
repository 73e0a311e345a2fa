// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef IMAGELESSPANELS_H
#define IMAGELESSPANELS_H

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <memory>

class QWidget;

using PanelPointer = std::unique_ptr<QWidget>;

// Panels with everything that they can show, not shown yet.
PanelPointer printPanel();
PanelPointer pipeMarkingPanel();
PanelPointer quickPanel();
PanelPointer multiPagePanel();
PanelPointer multiPageDialog();
PanelPointer previewPopup();

/** Where every visible child of @p window stands, with the indicators of radios and check boxes. */
QStringList placesOf(const QWidget& window);

#endif
