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
const QColor onAccent(0x06, 0x06, 0x06);
const QColor exampleText(0x66, 0x66, 0x66);

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
    palette.setColor(QPalette::HighlightedText, onAccent);
    palette.setColor(QPalette::PlaceholderText, exampleText);
    palette.setColor(QPalette::Disabled, QPalette::Base, background);
    QApplication::setPalette(palette);
    // With each ground its text, or by names from the palette, which may be replaced by a dark one.
    application.setStyleSheet(QStringLiteral(
        "QMenuBar, QStatusBar { background-color: palette(alternate-base); }"
        "QStatusBar { border-top: 1px solid palette(mid); }"
        "QDockWidget { font-weight: bold; }"
        "QToolTip { color: #2b2b2b; background-color: white; border: 1px solid #c6c6c6; }"));
}

} // namespace SampleHost
