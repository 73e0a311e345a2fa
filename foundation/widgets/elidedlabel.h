// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_ELIDEDLABEL_H
#define PRINTPANELS_ELIDEDLABEL_H

#include <QtWidgets/QLabel>

namespace PrintPanels {

/**
 * One line of a host's text, shown as it is and never as markup. It asks for no width: what does
 * not fit ends in an ellipsis, and a tool tip then shows the whole. text() is always the whole
 * text.
 */
class ElidedLabel : public QLabel
{
public:
    ElidedLabel();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    /** As much of the text as a label can show at all, so that a megabyte is measured quickly. */
    QString measuredText() const;
    /** What the label paints at its present width. */
    virtual QString shownText() const;
    /** Whether the label shows less than its text. */
    virtual bool isElided() const;
};

} // namespace PrintPanels

#endif
