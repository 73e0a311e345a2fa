// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_PANELSTATE_H
#define GALLERY_PANELSTATE_H

#include <QtCore/QList>
#include <QtCore/QString>

class QWidget;

namespace Gallery {

/**
 * A state of a panel or dialog. The gallery shows it live, the documentation describes it, and the
 * tests compare what it looks like. Texts are UTF-8.
 */
struct PanelState
{
    /** The class of the panel or dialog. */
    const char* panel;
    /** Unique; also the name of the state's picture. */
    const char* name;
    const char* title;
    /** What the state shows or how a host gets there, in a sentence or two. */
    const char* description;
    /** Creates the panel in this state, hidden. The caller owns it. */
    QWidget* (*create)();
    /** What the user does once the panel is shown; null if nothing. */
    void (*operate)(QWidget& panel) = nullptr;
};

/** The states of all panels and dialogs, in the order of the documentation. */
QList<PanelState> panelStates();

/// The states of one class each.
/// @{
QList<PanelState> printWidgetStates();
QList<PanelState> supplyStates();
QList<PanelState> quickPrintStates();
QList<PanelState> previewStates();
QList<PanelState> multiPageStates();
/// @}

/// What a user does; nothing where the panel has no such part.
/// @{
void click(QWidget& panel, const char* button);
void type(QWidget& panel, const char* field, const QString& text);
/** Gives the keyboard to a part of the panel, as the Tab key does. */
void tabTo(QWidget& panel, const char* part);
/// @}

} // namespace Gallery

#endif
