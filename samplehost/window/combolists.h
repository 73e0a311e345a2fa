// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_COMBOLISTS_H
#define SAMPLEHOST_COMBOLISTS_H

class QWidget;

namespace SampleHost {

/** Gives the list that each combo box in @p window opens the name of its combo box: its label. */
void nameComboLists(const QWidget& window);

} // namespace SampleHost

#endif
