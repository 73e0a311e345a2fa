// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_WRAPPEDLABEL_H
#define PRINTPANELS_WRAPPEDLABEL_H

#include "foundation/widgets/elidedlabel.h"

#include <QtCore/QStringList>

namespace PrintPanels {

/**
 * An elided label of several lines. Lines break between words, and inside a word that is longer
 * than a line; the last line is elided if there is more text.
 */
class WrappedLabel : public ElidedLabel
{
public:
    WrappedLabel();

    /** One line's height and no width: the layout sets the width and uses heightForWidth(). */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /** Height in pixels of the text's lines at @p width pixels; four lines at most. */
    int heightForWidth(int width) const override;

protected:
    QString shownText() const override;
    bool isElided() const override;

private:
    QStringList shownLines(int width) const;
    int heightOf(qsizetype lines) const;
};

} // namespace PrintPanels

#endif
