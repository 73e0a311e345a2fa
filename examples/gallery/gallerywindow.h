// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_GALLERYWINDOW_H
#define GALLERY_GALLERYWINDOW_H

#include "appearance.h"
#include "states/panelstate.h"

#include <QtCore/QPointer>
#include <QtWidgets/QMainWindow>

class QCheckBox;
class QComboBox;
class QLabel;
class QScrollArea;
class QTreeWidget;

namespace Gallery {

class SignalLog;

/** The panels and dialogs in all their states, live. */
class GalleryWindow : public QMainWindow
{
public:
    GalleryWindow();

    /** Shows the state of this name. False if there is none. */
    bool showState(const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTreeWidget* createStateTree();
    QWidget* createStage();
    void createToolBar();
    QCheckBox* createSwitch(const char* name, const QString& text);
    void createLanguages();
    void createTextSizes();
    void showCurrentState();
    void keepInPlace();

    const QList<PanelState> m_states;
    Appearance m_appearance;
    QTreeWidget* m_tree = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_description = nullptr;
    QScrollArea* m_area = nullptr;
    SignalLog* m_log = nullptr;
    QCheckBox* m_disabled = nullptr;
    QComboBox* m_languages = nullptr;
    QComboBox* m_textSizes = nullptr;
    QPointer<QWidget> m_panel;
};

} // namespace Gallery

#endif
