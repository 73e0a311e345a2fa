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
class PrintController;

/**
 * Shows the first sheet of what a page's panel is about to print in a popup, and prints from there
 * what was shown. Whatever the user changes in the panel meanwhile, but for the copies, counts from
 * the next preview on.
 */
class LabelPreview : public QObject
{
    Q_OBJECT

public:
    /** Answers the previews that a controller is asked for. All of them must outlive this. */
    LabelPreview(PrintController& controller, const LabelDesign& design,
                 const HostSettings& settings, QWidget& page);
    ~LabelPreview() override;

    /** The popup, hidden or not; null before the first preview. The page's window owns it. */
    PrintPreviewDialog* popup() const;

    /** Closes the popup, because the design does not have any more what it shows. */
    void dismiss();

Q_SIGNALS:
    /** The popup was made, once for all previews of the page, and is about to be shown. */
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
    void placePopup();
    void giveFocusBack();
    QSizeF designSize() const;
    QSizeF printedSize() const;

    PrintController& m_controller;
    const LabelDesign& m_design;
    const HostSettings& m_settings;
    QWidget& m_page;
    QPointer<PrintPreviewDialog> m_popup;
    QPointer<QShortcut> m_printShortcut;
    QPointer<QWidget> m_focusBefore;
    // As the panel asked, and as it is shown in the chosen orientation.
    PrintRequest m_asked;
    PrintRequest m_shown;
    bool m_portrait = false;
};

} // namespace SampleHost

#endif
