// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LABELDESIGN_H
#define SAMPLEHOST_LABELDESIGN_H

#include "samplehost/print/printjob.h"
#include "samplehost/print/printrequest.h"

#include <QtCore/QSizeF>
#include <QtCore/QString>

namespace SampleHost {

/** What a page prints: its records, their size and how they are painted. */
class LabelDesign
{
public:
    LabelDesign() = default;
    virtual ~LabelDesign();

    /** The title of documents that are printed with this design, the same in every language. */
    virtual QString title() const = 0;

    /** The current record, 0-based. */
    virtual int currentIndex() const = 0;

    /** The current number of records. */
    virtual int recordCount() const = 0;

    /** Adds what the panel does not know to a request, and resets what does not apply. */
    virtual void complete(PrintRequest& request) const = 0;

    /** Whether the label has a size of its own; otherwise the contents determine the size. */
    virtual bool hasDesignSize() const { return true; }

    /** The size of one label in millimetres, transposed for a turned one. */
    virtual QSizeF labelSizeMm(const PrintRequest& request) const = 0;

    /** A painter for the records of a request, valid as long as the design exists. */
    virtual LabelPainter painter(const PrintRequest& request) const = 0;

private:
    Q_DISABLE_COPY_MOVE(LabelDesign)
};

/** A painter that rotates another one by 90 degrees, so that text reads upwards. */
LabelPainter turnedPainter(LabelPainter paint);

} // namespace SampleHost

#endif
