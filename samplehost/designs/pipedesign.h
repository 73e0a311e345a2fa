// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PIPEDESIGN_H
#define SAMPLEHOST_PIPEDESIGN_H

#include "samplehost/designs/labeldesign.h"
#include "samplehost/label/pipemarker.h"

#include <QtCore/QCoreApplication>

namespace SampleHost {

/** The pipe markers. The selected one, or one of its ammonia tags, is printed. */
class PipeDesign : public LabelDesign
{
    Q_DECLARE_TR_FUNCTIONS(PipeDesign)

public:
    /** The selected marker, 0-based. */
    int currentIndex() const override { return m_currentIndex; }
    /** Selects a marker; an index without a marker is ignored. */
    void setCurrentIndex(int index);
    /** The selected marker. */
    const PipeMarker& currentMarker() const;

    /** The part of the marker that is printed: a PipeItem value. */
    int item() const { return m_item; }
    /** Selects that part. A part that the marker does not have selects the whole marker. */
    void setItem(int item);

    QString title() const override;
    int recordCount() const override;
    void complete(PrintRequest& request) const override;
    bool hasDesignSize() const override { return false; }
    QSizeF labelSizeMm(const PrintRequest& request) const override;
    LabelPainter painter(const PrintRequest& request) const override;

private:
    int m_currentIndex = 0;
    int m_item = PipeItem::Label;
};

} // namespace SampleHost

#endif
