// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_MESSAGEBOX_H
#define SAMPLEHOST_MESSAGEBOX_H

#include <QtCore/QString>

class QWidget;

namespace SampleHost {

/** Shows plain text in a message box that deletes itself, without waiting for the user. */
void showMessage(QWidget* parent, const QString& title, const QString& text);

} // namespace SampleHost

#endif
