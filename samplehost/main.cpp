// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/demostates.h"
#include "samplehost/automation/headlessrun.h"
#include "samplehost/commandline/commandline.h"
#include "samplehost/commandline/languages.h"
#include "samplehost/system.h"
#include "samplehost/window/hoststyle.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/printpanels_version.h>

#include <QtCore/QLocale>
#include <QtCore/QTimer>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStatusBar>

#include <algorithm>
#include <cstdio>
#include <iterator>

using namespace SampleHost;

namespace {

/** What platform plugins say of the machine, which does not concern the user. */
constexpr const char* platformNotes[] = {
    "This plugin does not support propagateSizeHints()",
    "This plugin does not support raise()",
    "QStandardPaths: XDG_RUNTIME_DIR not set",
    "SetProcessDpiAwarenessContext(",
    "EnableNonClientDpiScaling() failed",
    "QPixmap::fromWinHICON(), failed",
};

bool isPlatformNote(const QString& message)
{
    return std::any_of(
        std::begin(platformNotes), std::end(platformNotes),
        [&message](const char* note) { return message.startsWith(QLatin1String(note)); });
}

void reportMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!isPlatformNote(message)) {
        printLine(stderr, qFormatLogMessage(type, context, message));
    }
}

int runHeadless(MainWindow& window, const CommandLine& command)
{
    HeadlessRun run(window, command);
    QObject::connect(&run, &HeadlessRun::reported,
                     [](const QString& line) { printLine(stdout, line); });
    QObject::connect(&run, &HeadlessRun::warned,
                     [](const QString& line) { printLine(stderr, line); });
    QObject::connect(&run, &HeadlessRun::finished,
                     [](CommandRun::ExitCode code, const QString& message) {
                         if (!message.isEmpty()) {
                             printLine(stderr, message);
                         }
                         QCoreApplication::exit(code);
                     });
    // QCoreApplication::exit() has no effect before the event loop runs.
    QTimer::singleShot(0, &run, &HeadlessRun::start);
    return QCoreApplication::exec();
}

int runWithUser(MainWindow& window, const CommandLine& command)
{
    closeOwnConsole();
    window.persistSettings();
    command.applyTo(window.settings());
    // A file to print to names the printer, too.
    window.choosePrinter(command.printer.isEmpty() && !command.output.isEmpty()
                             ? PrinterDirectory::pdfFileName()
                             : command.printer);
    window.restoreWindow(window.screen()->availableGeometry());
    window.show();
    applyDemoState(window, command.state);
    const int code = QCoreApplication::exec();
    if (!window.saveSettings()) {
        printLine(stderr, window.statusBar()->currentMessage());
    }
    return code;
}

/** The user's language without a choice on the command line; scripts read English. */
QString userLanguage(const CommandLine& command)
{
    if (command.isHeadless()) {
        return QStringLiteral("en");
    }
    const QString stored = Languages::stored();
    const QStringList codes = Languages::codes();
    return codes.contains(stored) ? stored
                                  : Languages::ofSystem(QLocale::system().uiLanguages(), codes);
}

/** Reads the command line and translates the program, with the messages about the command line. */
CommandLine readCommandLine()
{
    const QStringList arguments = QCoreApplication::arguments();
    const CommandLine command = parseCommandLine(arguments, MainWindow::parts());
    const bool chosen = Languages::codes().contains(command.language);
    Languages::install(chosen ? command.language : userLanguage(command));
    return parseCommandLine(arguments, MainWindow::parts());
}

} // namespace

int main(int argc, char** argv)
{
    choosePlatform(looksHeadless(argc, argv));
    qInstallMessageHandler(reportMessage);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("samplehost"));
    QCoreApplication::setOrganizationName(QStringLiteral("printpanels"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PRINTPANELS_VERSION_STRING));
    const CommandLine command = readCommandLine();
    if (!command.problem.isEmpty()) {
        printLine(stderr, command.problem);
        return CommandRun::NothingToPrint;
    }
    if (command.helpAsked) {
        printLine(stdout, commandLineHelp(MainWindow::parts()));
        return CommandRun::Success;
    }
    if (command.versionAsked) {
        printLine(stdout, QCoreApplication::applicationName() + QLatin1Char(' ') +
                              QCoreApplication::applicationVersion());
        return CommandRun::Success;
    }
    applyHostStyle(application);
    MainWindow window(command.host);
    return command.isHeadless() ? runHeadless(window, command) : runWithUser(window, command);
}
