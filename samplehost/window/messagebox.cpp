// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/messagebox.h"

#include <QtWidgets/QMessageBox>

namespace SampleHost {

void showMessage(QWidget* parent, const QString& title, const QString& text)
{
    auto* box = new QMessageBox(QMessageBox::Warning, title, text, QMessageBox::Ok, parent);
    box->setObjectName(QStringLiteral("messageBox"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace SampleHost
