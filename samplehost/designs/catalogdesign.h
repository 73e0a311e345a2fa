// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CATALOGDESIGN_H
#define SAMPLEHOST_CATALOGDESIGN_H

#include "samplehost/designs/labeldesign.h"
#include "samplehost/label/catalogitem.h"

#include <QtCore/QCoreApplication>

namespace SampleHost {

/** The items of the catalogue. The selected one is printed, in the size chosen for it. */
class CatalogDesign : public LabelDesign
{
    Q_DECLARE_TR_FUNCTIONS(CatalogDesign)

public:
    /** The first item, in the size in which it is listed. */
    CatalogDesign();

    /** The selected item, 0-based. */
    int currentIndex() const override { return m_currentIndex; }
    /** Selects an item in its listed size; an index without an item is ignored. */
    void setCurrentIndex(int index);
    /** The selected item. */
    const CatalogItem& currentItem() const;

    /** The size of the selected item, in millimetres. */
    QSizeF sizeMm() const { return m_sizeMm; }
    /** Sets that size; an empty one is ignored. */
    void setSizeMm(const QSizeF& sizeMm);

    QString title() const override;
    int recordCount() const override;
    void complete(PrintRequest& request) const override;
    QSizeF labelSizeMm(const PrintRequest& request) const override;
    LabelPainter painter(const PrintRequest& request) const override;

private:
    int m_currentIndex = 0;
    QSizeF m_sizeMm;
};

} // namespace SampleHost

#endif
