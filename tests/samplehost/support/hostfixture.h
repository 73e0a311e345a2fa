// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TESTS_SAMPLEHOST_HOSTFIXTURE_H
#define TESTS_SAMPLEHOST_HOSTFIXTURE_H

#include "samplehost/automation/inputsimulation.h"
#include "samplehost/pages/labelpage.h"
#include "samplehost/pages/pipepage.h"
#include "samplehost/printing/printcontroller.h"
#include "samplehost/support/pdfpages.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/printwidget.h>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QMessageBox>

#include <memory>
#include <optional>

/** A visible sample host of its own: database and output lie in a folder that goes with it. */
class HostFixture
{
public:
    using Outcome = SampleHost::PrintJob::Outcome;

    explicit HostFixture(bool testControls = false)
    {
        SampleHost::HostOptions options;
        options.dataSource.databaseName = folder.filePath(QStringLiteral("chemicals.db"));
        options.testControls = testControls;
        window = std::make_unique<SampleHost::MainWindow>(options);
        window->settings().setOutputPath(outputPath());
        // Tests print to this file again and again.
        window->settings().setReplacePolicy(SampleHost::ReplacePolicy::Replace);
        window->show();
    }

    /** The path of a file in the host's folder. */
    QString path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }

    QString outputPath() const { return folder.filePath(QStringLiteral("out.pdf")); }

    SampleHost::LabelPage& labels() const { return window->labelPage(); }
    SampleHost::PipePage& pipes() const { return window->pipePage(); }
    PrintWidget& panel() const { return labels().panel(); }

    /** A widget of the page of labels, or of its panel, by object name. */
    template <typename Widget>
    Widget* find(const char* name) const
    {
        return labels().findChild<Widget*>(QString::fromLatin1(name));
    }

    /** Clicks where a radio button listens too. */
    void click(const char* name) const { click(find<QWidget>(name)); }
    static void click(QWidget* widget)
    {
        // A section that has just appeared is laid out first.
        SampleHost::InputSimulation::processEvents();
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier,
                          QPoint(qMin(10, widget->width() / 2), widget->height() / 2));
    }

    /** Chooses "Range or List of Records:" and types. */
    void typeList(const QString& list) const
    {
        click("recordListRadio");
        QTest::keyClicks(find<QWidget>("recordListEdit"), list);
    }

    /** Presses Print and waits for the end of the job; nothing when there was no job. */
    std::optional<Outcome> print()
    {
        return printWith(labels().controller(), find<QWidget>("PrintButton"));
    }

    /** The message that the host shows, or null. */
    QMessageBox* messageBox() const
    {
        return window->findChild<QMessageBox*>(QStringLiteral("messageBox"));
    }
    /** Its text; empty without one. */
    QString shownMessage() const { return messageBox() ? messageBox()->text() : QString(); }

    /** The names of all chemicals, read from the database by a source of its own. */
    QStringList productNames() const
    {
        SampleHost::DataSourceOptions options;
        options.databaseName = folder.filePath(QStringLiteral("chemicals.db"));
        const auto source = SampleHost::RecordSource::open(options);
        QStringList names;
        for (int i = 0; source && i < source->count(); ++i) {
            names.append(source->record(i)->name);
        }
        return names;
    }

    /** The files in the folder, without the database. */
    QStringList outputFiles() const
    {
        QStringList files = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
        files.removeAll(QStringLiteral("chemicals.db"));
        return files;
    }

    QTemporaryDir folder;
    std::unique_ptr<SampleHost::MainWindow> window;
    /** How the last job ended, in words. */
    QString message;

protected:
    /** Presses a button and waits for the end of the controller's job, if there is one then. */
    template <typename Controller>
    std::optional<Outcome> printWith(Controller& controller, QWidget* button)
    {
        QSignalSpy ended(&controller, &Controller::jobEnded);
        click(button);
        if (ended.isEmpty() && (!controller.isPrinting() || !ended.wait(60000))) {
            return std::nullopt;
        }
        message = ended.at(0).at(1).toString();
        return ended.at(0).at(0).value<Outcome>();
    }
};

#endif
