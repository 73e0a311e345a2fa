// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_STYLESHEETS_H
#define PRINTPANELS_STYLESHEETS_H

#include <QtCore/QString>

/**
 * The look of the panels: one style sheet per role, for QWidget::setStyleSheet().
 *
 * Images under ":/printicons/printericons/" are the library's own. Those under
 * ":/module_icons/ModuleIcons/" and ":/Size/SizeIcons/" come from the host; without them the
 * controls keep their sizes and show no image.
 */
namespace StyleSheets {

/** Quick-print and multi-page panels: push buttons, combo boxes, scroll bars, radio buttons. */
QString panel();
/** Print settings panel: combo boxes, scroll bars, check boxes, radio buttons, tab bar. */
QString printSettingsPanel();
/** Dark push buttons, 35 pixels high. */
QString primaryPushButton();
/** Dark push buttons, 40 pixels high, that start a print or a preview. */
QString tallPushButton();
/** The button beside the printer selector, with its icon. */
QString printerSettingsButton();
/** Touch-size check boxes. */
QString checkBoxIndicator();
/** Radio buttons with images. */
QString radioButtonIndicator();
/** The button that adds a copy. */
QString plusStepButton();
/** The button that removes a copy. */
QString minusStepButton();
/** The picture of N-up replicating. */
QString replicatingLabel();
/** The picture of N-up sequencing. */
QString sequencingLabel();
/** The preview's zoom-in button. */
QString zoomInButton();
/** The preview's zoom-out button. */
QString zoomOutButton();
/** The preview's fit button; it has no disabled look. */
QString fitButton();
/** The preview's portrait button; the checked state shows the pressed picture. */
QString portraitButton();
/** The preview's landscape button; the checked state shows the pressed picture. */
QString landscapeButton();
/** The grey surround of a preview. */
QString previewFrame();
/** Background and border of the multi-page dialog. */
QString multiPageDialogFrame();
/** Background and border of the preview popup. */
QString previewDialogFrame();

} // namespace StyleSheets

#endif
