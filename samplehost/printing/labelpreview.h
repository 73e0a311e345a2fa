// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LABELPREVIEW_H
#define SAMPLEHOST_LABELPREVIEW_H

#include "samplehost/print/printrequest.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

class PrintPreviewDialog;
class QShortcut;
class QWidget;

namespace SampleHost {

class HostSettings;
class LabelDesign;
class PreviewCanvas;
class PrintController;
class WindowScroller;

/**
 * Shows the first sheet of a request in a popup and prints the request from there. Except for the
 * copies, changes in the panel take effect with the next preview.
 */
class LabelPreview : public QObject
{
    Q_OBJECT

public:
    /** Shows the previews that a controller requests. The arguments must outlive this. */
    LabelPreview(PrintController& controller, const LabelDesign& design,
                 const HostSettings& settings, QWidget& page);

    /** The popup, which the page's window owns; null before the first preview. */
    PrintPreviewDialog* popup() const;

    /** Closes the popup, because what it shows is no longer in the design. */
    void dismiss();

Q_SIGNALS:
    /** The popup, which serves all previews of the page, was created. */
    void popupCreated(PrintPreviewDialog* popup);

private:
    void open(const PrintRequest& request);
    void createPopup();
    void addShortcuts();
    void connectPopup();
    void showRequest();
    void showUnit();
    void showReadiness();
    void turn(int orientation);
    void print(int sequenceStart, int sequenceEnd, const QString& customRecordsList);
    void restoreFocus();
    QSizeF designSize() const;
    QSizeF printedSize() const;

    PrintController& m_controller;
    const LabelDesign& m_design;
    const HostSettings& m_settings;
    QWidget& m_page;
    QPointer<PrintPreviewDialog> m_popup;
    // The preview in the popup, which owns this.
    PreviewCanvas* m_canvas = nullptr;
    QPointer<WindowScroller> m_scroller;
    QPointer<QShortcut> m_printShortcut;
    QPointer<QWidget> m_focusBefore;
    // As the panel requested it, and in the orientation that is shown.
    PrintRequest m_requested;
    PrintRequest m_shown;
    bool m_portrait = false;
};

} // namespace SampleHost

#endif
