// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_ACCESSIBLEPARTS_H
#define PRINTPANELS_ACCESSIBLEPARTS_H

class QAccessibleInterface;
class QComboBox;
class QLabel;
class QString;
class QWidget;

namespace PrintPanels {

/**
 * A widget that tells assistive technology about itself in its own way.
 *
 * A second base class of the widget. It makes Qt ask the widget, as long as the library is loaded.
 * The widget must not be given a text by its own constructor: Qt would announce it, and ask before
 * the widget is complete.
 */
class AccessiblePart
{
public:
    /** Returns a new object, which Qt owns. Called once at most, when it is needed. */
    virtual QAccessibleInterface* createAccessible() = 0;

protected:
    AccessiblePart();
    ~AccessiblePart() = default;
};

/** Makes @p caption the name of @p control, which has to be in the same parent. */
void setCaption(QWidget* control, QLabel* caption);
/** The same for a combo box: the list that it opens has the name, too. */
void setCaption(QComboBox* control, QLabel* caption);

} // namespace PrintPanels

#endif
