// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LABELDESIGN_H
#define SAMPLEHOST_LABELDESIGN_H

#include "samplehost/print/printjob.h"
#include "samplehost/print/printrequest.h"

#include <QtCore/QSizeF>
#include <QtCore/QString>

namespace SampleHost {

/** What a page of the host prints: how many records there are, and how one of them looks. */
class LabelDesign
{
public:
    LabelDesign() = default;
    virtual ~LabelDesign();

    /** The name of the documents that are printed from this design. */
    virtual QString title() const = 0;

    /** The record that the host shows, 0-based. */
    virtual int currentIndex() const = 0;

    /** The number of records now. */
    virtual int recordCount() const = 0;

    /** Fills in what the panel does not know, and overrules what does not apply to this design. */
    virtual void complete(PrintRequest& request) const = 0;

    /** Whether the user designs a label of a size of its own, or the size follows from the
     * contents.
     */
    virtual bool hasDesignSize() const { return true; }

    /** The size of one label, in millimetres; exchanged sides for a turned one. */
    virtual QSizeF labelSizeMm(const PrintRequest& request) const = 0;

    /** Paints the records of a request; it may be used as long as the design exists. */
    virtual LabelPainter painter(const PrintRequest& request) const = 0;

private:
    Q_DISABLE_COPY_MOVE(LabelDesign)
};

/** Paints what another painter paints, turned by 90 degrees so that it reads upwards. */
LabelPainter turnedPainter(LabelPainter paint);

} // namespace SampleHost

#endif
