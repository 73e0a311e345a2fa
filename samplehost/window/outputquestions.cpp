// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/outputquestions.h"

#include "samplehost/printing/hostsettings.h"
#include "samplehost/printing/jobcontroller.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace SampleHost {

namespace {

class OutputQuestions
{
    Q_DECLARE_TR_FUNCTIONS(SampleHost::OutputQuestions)
};

} // namespace

void askToReplace(QWidget* parent, const QString& path, JobController& controller,
                  HostSettings& settings)
{
    const QString question = OutputQuestions::tr("The file \"%1\" exists already. Replace it?")
                                 .arg(QDir::toNativeSeparators(path));
    auto* box = new QMessageBox(QMessageBox::Question, OutputQuestions::tr("Printing"), question,
                                QMessageBox::NoButton, parent);
    box->setObjectName(QStringLiteral("replaceQuestion"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    const QPushButton* replace =
        box->addButton(OutputQuestions::tr("&Replace"), QMessageBox::DestructiveRole);
    const QPushButton* saveAs =
        box->addButton(OutputQuestions::tr("Save &As..."), QMessageBox::ActionRole);
    // Whoever presses a key too early keeps the file.
    box->setDefaultButton(box->addButton(QMessageBox::Cancel));
    QObject::connect(box, &QDialog::finished, &controller, [=, &controller, &settings] {
        if (box->clickedButton() == replace) {
            controller.printToFile(path);
        } else if (box->clickedButton() == saveAs) {
            choosePdfFile(
                parent, settings,
                [&controller, &settings] { controller.printToFile(settings.outputPath()); },
                [&controller] { controller.dismissRequest(); });
        } else {
            controller.dismissRequest();
        }
    });
    box->open();
}

void choosePdfFile(QWidget* parent, HostSettings& settings, const std::function<void()>& chosen,
                   const std::function<void()>& cancelled)
{
    auto* dialog =
        new QFileDialog(parent, OutputQuestions::tr("Save PDF As"), settings.outputFolder(),
                        OutputQuestions::tr("PDF documents (*.pdf);;All files (*)"));
    dialog->setObjectName(QStringLiteral("savePdfDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("pdf"));
    dialog->selectFile(settings.outputFileName());
    QObject::connect(dialog, &QFileDialog::fileSelected, &settings,
                     [&settings, chosen](const QString& path) {
                         settings.setOutputPath(path);
                         chosen();
                     });
    QObject::connect(dialog, &QDialog::rejected, &settings, cancelled);
    dialog->open();
}

} // namespace SampleHost
