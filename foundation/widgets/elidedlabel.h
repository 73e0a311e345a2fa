// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_ELIDEDLABEL_H
#define PRINTPANELS_ELIDEDLABEL_H

#include <QtWidgets/QLabel>

namespace PrintPanels {

/**
 * A label for one line of a host's text, shown as plain text. It requires no width: a text that
 * does not fit is elided, and the tool tip shows all of it. text() is always the whole text.
 */
class ElidedLabel : public QLabel
{
public:
    ElidedLabel();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    /** As much of the text as any label can show, so that a megabyte is measured quickly. */
    QString measuredText() const;
    /** The text that the label paints at its present width. */
    virtual QString shownText() const;
    /** Whether the label shows less than its text. */
    virtual bool isElided() const;
};

} // namespace PrintPanels

#endif
