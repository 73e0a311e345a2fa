// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_NUPCOMBO_H
#define SAMPLEHOST_NUPCOMBO_H

#include "samplehost/print/printrequest.h"

#include <QtWidgets/QComboBox>

namespace SampleHost {

/** A choice of N-up layouts. */
class NupCombo : public QComboBox
{
    Q_OBJECT

public:
    /** Offers the usual layouts; one label per page is selected. */
    explicit NupCombo(QWidget* parent = nullptr);

    /** The selected layout. */
    NupLayout layoutChoice() const;

    /** Selects a layout, which is added if necessary, without a signal. */
    void setLayoutChoice(const NupLayout& layout);

Q_SIGNALS:
    /** The user selected a layout. */
    void layoutChosen(const SampleHost::NupLayout& layout);

private:
    void offer(const NupLayout& layout);
};

} // namespace SampleHost

#endif
