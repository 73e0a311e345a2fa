// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_MESSAGEBOX_H
#define SAMPLEHOST_MESSAGEBOX_H

#include <QtCore/QString>

class QWidget;

namespace SampleHost {

/** Shows a text, letter for letter, in a window that deletes itself; does not wait for the user. */
void showMessage(QWidget* parent, const QString& title, const QString& text);

} // namespace SampleHost

#endif
