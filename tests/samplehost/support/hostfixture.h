// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TESTS_SAMPLEHOST_HOSTFIXTURE_H
#define TESTS_SAMPLEHOST_HOSTFIXTURE_H

#include "samplehost/automation/inputsimulation.h"
#include "samplehost/pages/labelpage.h"
#include "samplehost/pages/pipepage.h"
#include "samplehost/printing/printcontroller.h"
#include "samplehost/window/mainwindow.h"

#include <printpanels/printwidget.h>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtPdf/QPdfDocument>
#include <QtPdf/QPdfSelection>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>

/** A visible sample host of its own: database and output lie in a folder that goes with it. */
class HostFixture
{
public:
    explicit HostFixture(bool testControls = false)
    {
        SampleHost::HostOptions options;
        options.dataSource.databaseName = folder.filePath(QStringLiteral("chemicals.db"));
        options.testControls = testControls;
        window = std::make_unique<SampleHost::MainWindow>(options);
        window->settings().setOutputPath(outputPath());
        window->show();
    }

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
    void click(const char* name) const
    {
        // A section that has just appeared is laid out first.
        SampleHost::InputSimulation::processEvents();
        auto* widget = find<QWidget>(name);
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier,
                          QPoint(qMin(10, widget->width() / 2), widget->height() / 2));
    }

    /** Chooses "Range or List of Records:" and types. */
    void typeList(const QString& list) const
    {
        click("recordListRadio");
        QTest::keyClicks(find<QWidget>("recordListEdit"), list);
    }

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
};

/** The texts of a PDF file's pages, with single blanks; empty when the file cannot be read. */
inline QStringList pdfPages(const QString& path)
{
    QPdfDocument document;
    QStringList pages;
    if (document.load(path) == QPdfDocument::Error::None) {
        for (int page = 0; page < document.pageCount(); ++page) {
            pages.append(document.getAllText(page).text().simplified());
        }
    }
    return pages;
}

#endif
