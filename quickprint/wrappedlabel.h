// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_WRAPPEDLABEL_H
#define PRINTPANELS_WRAPPEDLABEL_H

#include "foundation/widgets/elidedlabel.h"

#include <QtCore/QStringList>

namespace PrintPanels {

/**
 * An elided label of several lines. It breaks between words, and inside a word that no line can
 * hold; the last line ends in an ellipsis when there is more.
 */
class WrappedLabel : public ElidedLabel
{
public:
    WrappedLabel();

    /** One line's height and no width: the layout gives the width, and asks heightForWidth(). */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /** Height in pixels of the lines that the text takes at @p width pixels, four lines at most. */
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
