// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/demostates.h"
#include "samplehost/automation/headlessrun.h"
#include "samplehost/commandline/commandline.h"
#include "samplehost/window/hostlook.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/printpanels_version.h>

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStatusBar>

#include <cstdio>

using namespace SampleHost;

namespace {

void say(std::FILE* stream, const QString& text)
{
    std::fputs(qPrintable(text + QLatin1Char('\n')), stream);
    std::fflush(stream);
}

/** Notes of the platform on the machine it finds are not news to who runs one command there. */
bool isPlatformNote(const QString& message)
{
    return message == QLatin1String("This plugin does not support propagateSizeHints()") ||
           message == QLatin1String("This plugin does not support raise()") ||
           message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"));
}

void reportMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!isPlatformNote(message)) {
        say(stderr, qFormatLogMessage(type, context, message));
    }
}

/** Work without a user needs no display; neither can a user be served without one. */
void choosePlatform(int argc, const char* const* argv)
{
    const bool display =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    const bool chosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    if (looksHeadless(argc, argv) || (!display && !chosen)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

int runHeadless(MainWindow& window, const CommandLine& command)
{
    HeadlessRun run(window, command);
    QObject::connect(&run, &HeadlessRun::reported, [](const QString& line) { say(stdout, line); });
    QObject::connect(&run, &HeadlessRun::warned, [](const QString& line) { say(stderr, line); });
    QObject::connect(&run, &HeadlessRun::finished,
                     [](HeadlessRun::ExitCode code, const QString& message) {
                         if (!message.isEmpty()) {
                             say(stderr, message);
                         }
                         QCoreApplication::exit(code);
                     });
    // Only a running event loop can be left with an exit code.
    QTimer::singleShot(0, &run, &HeadlessRun::start);
    return QCoreApplication::exec();
}

int runWithUser(MainWindow& window, const CommandLine& command)
{
    window.keepSettings();
    command.applyTo(window.settings());
    window.show();
    applyDemoState(window, command.state);
    const int code = QCoreApplication::exec();
    if (!window.saveSettings()) {
        say(stderr, window.statusBar()->currentMessage());
    }
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    choosePlatform(argc, argv);
    qInstallMessageHandler(reportMessage);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("samplehost"));
    QCoreApplication::setOrganizationName(QStringLiteral("printpanels"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PRINTPANELS_VERSION_STRING));
    const CommandLine command = parseCommandLine(QCoreApplication::arguments());
    if (!command.problem.isEmpty()) {
        say(stderr, command.problem);
        return HeadlessRun::NothingToPrint;
    }
    if (command.helpAsked) {
        say(stdout, commandLineHelp());
        return HeadlessRun::Success;
    }
    if (command.versionAsked) {
        say(stdout, QCoreApplication::applicationName() + QLatin1Char(' ') +
                        QCoreApplication::applicationVersion());
        return HeadlessRun::Success;
    }
    applyHostLook(application);
    MainWindow window(command.host);
    return command.isHeadless() ? runHeadless(window, command) : runWithUser(window, command);
}
