// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Every panel and dialog in its states, live: gallery_example [--grab FOLDER] [STATE]
#include "gallerywindow.h"
#include "states/snapshot.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtWidgets/QApplication>

#include <cstdio>

static bool grabStates(const QDir& folder)
{
    if (!folder.mkpath("."))
        return false;
    const QList<Gallery::PanelState> states = Gallery::panelStates();
    for (const Gallery::PanelState& state : states) {
        if (!Gallery::snapshot(state).save(folder.filePath(QString("%1.png").arg(state.name))))
            return false;
    }
    return true;
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription("Shows every panel and dialog in its states.");
    parser.addHelpOption();
    const QCommandLineOption grab("grab", "Saves pictures of all states and quits.", "folder");
    parser.addOption(grab);
    parser.addPositionalArgument("state", "The state to begin with.", "[state]");
    parser.process(app);
    if (parser.isSet(grab)) {
        if (grabStates(parser.value(grab)))
            return 0;
        std::fprintf(stderr, "Cannot save to %s\n", qPrintable(parser.value(grab)));
        return 1;
    }
    Gallery::GalleryWindow window;
    const QString state = parser.positionalArguments().value(0, "print-ready");
    if (!window.showState(state)) {
        std::fprintf(stderr, "There is no state %s\n", qPrintable(state));
        return 1;
    }
    window.show();
    return QApplication::exec();
}
