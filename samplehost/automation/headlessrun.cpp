// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/headlessrun.h"

#include "samplehost/automation/catalogrun.h"
#include "samplehost/automation/demostates.h"
#include "samplehost/automation/documentstates.h"
#include "samplehost/automation/inputsimulation.h"
#include "samplehost/automation/labelrun.h"
#include "samplehost/pages/hostpage.h"
#include "samplehost/print/outputfile.h"
#include "samplehost/printing/jobcontroller.h"
#include "samplehost/window/mainwindow.h"

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QPixmap>
#include <QtWidgets/QCheckBox>

namespace SampleHost {

namespace {

/** Writes a complete PNG file or none. */
bool savePicture(const QPixmap& picture, const QString& path, ExistingFile existing,
                 QString& problem)
{
    // Encoded in memory, because the encoder prints warnings when writing fails.
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!picture.save(&buffer, "PNG")) {
        problem = HeadlessRun::tr("The picture of the window cannot be made.");
        return false;
    }
    OutputFile file(path, existing);
    QIODevice* device = file.open(problem);
    if (device == nullptr) {
        return false;
    }
    device->write(bytes);
    return file.commit(problem);
}

} // namespace

HeadlessRun::HeadlessRun(MainWindow& window, const CommandLine& command, QObject* parent)
    : QObject(parent), m_window(window), m_command(command)
{
    const auto pages = window.findChildren<HostPage*>();
    for (const HostPage* page : pages) {
        const JobController* controller = &page->controller();
        connect(controller, &JobController::refused, this,
                [this](const QString& reason) { fail(CommandRun::NothingToPrint, reason); });
        connect(controller, &JobController::jobEnded, this, &HeadlessRun::endJob);
    }
}

bool HeadlessRun::fail(CommandRun::ExitCode code, const QString& message)
{
    if (!m_ended) {
        m_ended = true;
        Q_EMIT finished(code, message);
    }
    return false;
}

void HeadlessRun::start()
{
    applyOptions();
    m_window.show();
    // Before anything is printed.
    if (!checkScreenshot()) {
        return;
    }
    const QString problem = documentProblem(m_window);
    if (!problem.isEmpty()) {
        fail(CommandRun::RuntimeFailure, problem);
        return;
    }
    if (!applyDemoState(m_window, m_command.state)) {
        fail(CommandRun::RuntimeFailure,
             tr("The state \"%1\" cannot be shown.").arg(demoStateName(m_command.state)));
        return;
    }
    InputSimulation::processEvents();
    m_window.growToPanel();
    if (const std::unique_ptr<CommandRun> run = makeRun()) {
        execute(*run);
    } else {
        finish();
    }
}

void HeadlessRun::execute(CommandRun& run)
{
    const bool chosen = run.choose();
    if (!run.warning().isEmpty()) {
        Q_EMIT warned(run.warning());
    }
    if (!chosen || (run.prints() && !run.print())) {
        fail(run.exitCode(), run.problem());
    } else if (!run.prints()) {
        finish();
    }
}

std::unique_ptr<CommandRun> HeadlessRun::makeRun()
{
    if (!m_command.document.file.isEmpty()) {
        return makeDocumentRun(m_window, m_command);
    }
    if (m_command.catalog.isGiven()) {
        return std::make_unique<CatalogRun>(m_window, m_command);
    }
    if (m_command.records != CommandLine::Records::None) {
        return std::make_unique<LabelRun>(m_window, m_command);
    }
    return nullptr;
}

void HeadlessRun::applyOptions()
{
    m_command.applyTo(m_window.settings());
    if (m_command.userBackground) {
        m_window.findChild<QCheckBox*>(QStringLiteral("backgroundCheck"))->setChecked(true);
    }
}

void HeadlessRun::endJob(PrintJob::Outcome outcome, const QString& message)
{
    if (outcome == PrintJob::Outcome::Completed) {
        Q_EMIT reported(message);
        finish();
    } else {
        fail(CommandRun::RuntimeFailure, message);
    }
}

void HeadlessRun::finish()
{
    if (!m_ended && (m_command.screenshot.isEmpty() || saveScreenshot())) {
        m_ended = true;
        Q_EMIT finished(CommandRun::Success, QString());
    }
}

bool HeadlessRun::checkScreenshot()
{
    const QString& path = m_command.screenshot;
    QString problem = m_window.settings().overwriteProblem(path);
    if (problem.isEmpty() && !m_command.overwrite && QFileInfo(path).isFile()) {
        problem = HostSettings::refusal(path);
    }
    return problem.isEmpty() || fail(CommandRun::RuntimeFailure, problem);
}

bool HeadlessRun::saveScreenshot()
{
    InputSimulation::processEvents();
    QWidget* popup = openPopup(m_window);
    QWidget* picture = popup != nullptr ? popup : &m_window;
    const ExistingFile existing = m_command.overwrite ? ExistingFile::Replaced : ExistingFile::Kept;
    QString problem;
    if (!savePicture(picture->grab(), m_command.screenshot, existing, problem)) {
        return fail(CommandRun::RuntimeFailure, problem);
    }
    Q_EMIT reported(
        tr("Saved a picture of the window to %1")
            .arg(QDir::toNativeSeparators(QFileInfo(m_command.screenshot).absoluteFilePath())));
    return true;
}

} // namespace SampleHost
