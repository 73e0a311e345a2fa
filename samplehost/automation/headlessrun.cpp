// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/automation/headlessrun.h"

#include "samplehost/automation/catalogrun.h"
#include "samplehost/automation/demostates.h"
#include "samplehost/automation/documentrun.h"
#include "samplehost/automation/inputsimulation.h"
#include "samplehost/pages/catalogpage.h"
#include "samplehost/pages/labelpage.h"
#include "samplehost/pages/pdfpage.h"
#include "samplehost/pages/recordnavigator.h"
#include "samplehost/print/outputfile.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/printwidget.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QPixmap>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

namespace SampleHost {

using Records = CommandLine::Records;

namespace {

/** Writes a complete PNG file or none. */
bool savePicture(const QPixmap& picture, const QString& path, QString& problem)
{
    // Encoded in memory, because the encoder prints warnings when writing fails.
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!picture.save(&buffer, "PNG")) {
        problem = HeadlessRun::tr("The picture of the window cannot be made.");
        return false;
    }
    OutputFile file(path);
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
    const auto follow = [this](const JobController& controller) {
        connect(&controller, &JobController::refused, this,
                [this](const QString& reason) { fail(NothingToPrint, reason); });
        connect(&controller, &JobController::jobEnded, this, &HeadlessRun::endJob);
    };
    follow(window.labelPage().controller());
    follow(window.catalogPage().controller());
    follow(window.pdfPage().controller());
}

QWidget* HeadlessRun::panelWidget(const char* name) const
{
    return m_window.labelPage().panel().findChild<QWidget*>(QString::fromLatin1(name));
}

bool HeadlessRun::fail(ExitCode code, const QString& message)
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
    if (!m_window.pdfPage().problem().isEmpty()) {
        fail(RuntimeFailure, m_window.pdfPage().problem());
        return;
    }
    if (!applyDemoState(m_window, m_command.state)) {
        fail(RuntimeFailure,
             tr("The state \"%1\" cannot be shown.").arg(demoStateName(m_command.state)));
        return;
    }
    InputSimulation::processEvents();
    m_window.growToPanel();
    if (!m_command.document.file.isEmpty()) {
        printDocument();
    } else if (m_command.catalog.isGiven()) {
        printCatalogItem();
    } else if (m_command.records == Records::None) {
        finish();
    } else if (chooseOutput() && chooseRecords() && chooseSheet()) {
        m_command.preview ? printFromPreview() : print();
    }
}

void HeadlessRun::applyOptions()
{
    m_command.applyTo(m_window.settings());
    if (m_command.userBackground) {
        m_window.findChild<QCheckBox*>(QStringLiteral("backgroundCheck"))->setChecked(true);
    }
}

bool HeadlessRun::chooseOutput()
{
    if (!m_window.dataSourceProblem().isEmpty()) {
        return fail(RuntimeFailure, m_window.dataSourceProblem());
    }
    if (!m_command.output.isEmpty() && QFileInfo(m_command.output).fileName().isEmpty()) {
        return fail(RuntimeFailure, tr("\"%1\" is not the name of a file.").arg(m_command.output));
    }
    auto* printers = qobject_cast<QComboBox*>(panelWidget("PrinterListCombo"));
    if (!m_command.printer.isEmpty() && !InputSimulation::select(printers, m_command.printer)) {
        return fail(RuntimeFailure, tr("There is no printer \"%1\".").arg(m_command.printer));
    }
    if (m_command.printToFile && !choosePrintToFile(m_window.labelPage())) {
        return fail(RuntimeFailure, tr("The panel cannot print to a file."));
    }
    return true;
}

bool HeadlessRun::chooseRecords()
{
    switch (m_command.records) {
    case Records::Current:
        return chooseCurrent();
    case Records::All:
        return InputSimulation::click(panelWidget("allRecordsRadio")) ||
               fail(NothingToPrint, tr("There are no records. Nothing is printed."));
    default:
        return chooseList();
    }
}

bool HeadlessRun::chooseCurrent()
{
    RecordNavigator& navigator = m_window.labelPage().navigator();
    const int count = navigator.count();
    if (m_command.currentRecord > count) {
        return fail(NothingToPrint, tr("There is no record %1 among the %2 records. Nothing is "
                                       "printed.")
                                        .arg(m_command.currentRecord)
                                        .arg(count));
    }
    navigator.setCurrentIndex(m_command.currentRecord - 1);
    return InputSimulation::click(panelWidget("currentRecordRadio")) ||
           fail(NothingToPrint, tr("There are no records. Nothing is printed."));
}

bool HeadlessRun::chooseList()
{
    if (m_command.list.isEmpty()) {
        return fail(NothingToPrint, tr("The list is empty. Nothing is printed."));
    }
    auto* edit = qobject_cast<QLineEdit*>(panelWidget("recordListEdit"));
    if (!InputSimulation::click(panelWidget("recordListRadio")) ||
        !InputSimulation::type(edit, m_command.list)) {
        return fail(NothingToPrint, tr("There are no records. Nothing is printed."));
    }
    if (edit->text() != m_command.list) {
        return fail(NothingToPrint,
                    tr("The list \"%1\" cannot be read: the panel takes no more than "
                       "\"%2\" of it. Nothing is printed.")
                        .arg(m_command.list, edit->text()));
    }
    return true;
}

bool HeadlessRun::chooseSheet()
{
    if (!InputSimulation::type(panelWidget("copiesSpinBox"), QString::number(m_command.copies)) ||
        m_window.labelPage().panel().getNumberOfCopies() != m_command.copies) {
        return fail(RuntimeFailure, tr("The panel does not take %1 copies.").arg(m_command.copies));
    }
    if (m_command.nupMode) {
        const bool sequencing = *m_command.nupMode == NupMode::Sequencing;
        if (!InputSimulation::click(
                panelWidget(sequencing ? "sequencingRadio" : "replicatingRadio"))) {
            Q_EMIT warned(
                tr("The panel offers no N-up choice for this request; --%1 has no "
                   "effect.")
                    .arg(sequencing ? QStringLiteral("sequence") : QStringLiteral("replicate")));
        }
    }
    return true;
}

void HeadlessRun::print()
{
    if (!InputSimulation::click(panelWidget("PrintButton"))) {
        fail(RuntimeFailure, tr("The panel's Print button cannot be pressed."));
    }
}

void HeadlessRun::printDocument()
{
    DocumentRun run(m_window, m_command);
    const bool prints = m_command.document.prints();
    const bool choosesNothing = !prints && m_command.state == DemoState::Document;
    if (!choosesNothing && (!run.choose() || (prints && !run.print()))) {
        fail(run.exitCode(), run.problem());
    } else if (!prints) {
        finish();
    }
}

void HeadlessRun::printCatalogItem()
{
    CatalogRun run(m_window, m_command);
    if (!run.choose() || (m_command.hasTarget() && !run.print())) {
        fail(run.exitCode(), run.problem());
    } else if (!m_command.hasTarget()) {
        finish();
    }
}

void HeadlessRun::printFromPreview()
{
    if (!openPreview(m_window.labelPage(), m_command.portrait)) {
        fail(RuntimeFailure, tr("The preview cannot be shown."));
    } else if (!m_command.hasTarget()) {
        finish();
    } else if (!InputSimulation::click(previewWidget(m_window.labelPage(), "printButton"))) {
        fail(RuntimeFailure, tr("The preview's Print button cannot be pressed."));
    }
}

void HeadlessRun::endJob(PrintJob::Outcome outcome, const QString& message)
{
    if (outcome == PrintJob::Outcome::Completed) {
        Q_EMIT reported(message);
        finish();
    } else {
        fail(RuntimeFailure, message);
    }
}

void HeadlessRun::finish()
{
    if (!m_ended && (m_command.screenshot.isEmpty() || saveScreenshot())) {
        m_ended = true;
        Q_EMIT finished(Success, QString());
    }
}

bool HeadlessRun::saveScreenshot()
{
    InputSimulation::processEvents();
    QWidget* popup = openPopup(m_window);
    QWidget* picture = popup != nullptr ? popup : &m_window;
    QString problem = m_window.settings().overwriteProblem(m_command.screenshot);
    if (!problem.isEmpty() || !savePicture(picture->grab(), m_command.screenshot, problem)) {
        return fail(RuntimeFailure, problem);
    }
    Q_EMIT reported(
        tr("Saved a picture of the window to %1")
            .arg(QDir::toNativeSeparators(QFileInfo(m_command.screenshot).absoluteFilePath())));
    return true;
}

} // namespace SampleHost
