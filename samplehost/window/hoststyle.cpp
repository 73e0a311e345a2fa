// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/hoststyle.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>

namespace SampleHost {

namespace {

const QColor background(0xf2, 0xf2, 0xf2);
const QColor text(0x2b, 0x2b, 0x2b);
const QColor disabledText(0x84, 0x84, 0x84);
const QColor border(0xc6, 0xc6, 0xc6);
const QColor accent(0xfd, 0x78, 0x00);

} // namespace

void applyHostStyle(QApplication& application)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QPalette palette(background);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, disabledText);
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xfa, 0xfa, 0xfa));
    palette.setColor(QPalette::Mid, border);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(palette);
    application.setStyleSheet(QStringLiteral(
        "QMenuBar, QStatusBar { background-color: #fafafa; }"
        "QStatusBar { border-top: 1px solid #d8d8d8; }"
        "QDockWidget { font-weight: bold; }"
        "QToolTip { color: #2b2b2b; background-color: white; border: 1px solid #c6c6c6; }"));
}

} // namespace SampleHost
