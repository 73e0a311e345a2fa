// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_COMMANDLINE_H
#define SAMPLEHOST_COMMANDLINE_H

#include "samplehost/commandline/demostate.h"
#include "samplehost/commandline/hostoptions.h"
#include "samplehost/commandline/hostparts.h"
#include "samplehost/printing/hostsettings.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace SampleHost {

/** What a command line asks for with an item of the catalogue. */
struct CatalogCommand
{
    /** The item's name as it was given; empty without one. */
    QString item;
    /** The texts for the size fields, valid or not; empty for the listed size. */
    QString length;
    QString width;

    /** Whether an item is asked for. */
    bool isGiven() const { return !item.isEmpty(); }
    /** Whether a size is asked for. */
    bool hasSize() const { return !length.isEmpty() || !width.isEmpty(); }
};

/** What a command line asks for with a PDF document. */
struct DocumentCommand
{
    /** Which pages are printed. */
    enum class Pages {
        None, ///< Nothing is printed.
        Current,
        All,
        List
    };

    /** The path as it was given; empty without a document. */
    QString file;
    Pages pages = Pages::None;
    /** The list as it was given, valid or not. */
    QString list;
    /** The 1-based current page, as it was given. */
    int page = 1;
    /** Whether pages are fitted to the paper; the panel's default if unset. */
    std::optional<bool> fitToPage;
    bool rotate180 = false;
    bool formFillOnly = false;

    /** Whether pages are printed. */
    bool prints() const { return pages != Pages::None; }
};

/** What the program was asked to do on its command line. */
struct CommandLine
{
    /** Which records are printed. */
    enum class Records {
        None, ///< Nothing is printed.
        Current,
        All,
        List
    };

    HostOptions host;
    Records records = Records::None;
    /** The list as it was given, valid or not. */
    QString list;
    /** The 1-based current record, as it was given. */
    int currentRecord = 1;
    int copies = 1;
    /** The mode to select in the panel; the panel's default if unset. */
    std::optional<NupMode> nupMode;
    std::optional<NupLayout> nup;
    std::optional<Paper> paper;
    bool userBackground = false;
    /** Whether the records are shown in the preview, and printed from there. */
    bool preview = false;
    /** The orientation to select in the preview; that of the label if unset. */
    std::optional<bool> portrait;
    /** The code of the language; empty for the user's choice. */
    QString language;
    /** Whether sizes are shown in millimetres. */
    bool metric = false;
    bool printToFile = false;
    /** The PDF file to print to. */
    QString output;
    /** Whether files of earlier runs are replaced without a question. */
    bool overwrite = false;
    /** The printer to print to instead of a PDF file. */
    QString printer;
    /** The PNG file for a screenshot of the window. */
    QString screenshot;
    /** The state to bring the window into. */
    DemoState state = DemoState::None;
    /** The catalogue item to print instead of labels. */
    CatalogCommand catalog;
    /** The document to print instead of labels. */
    DocumentCommand document;

    bool helpAsked = false;
    bool versionAsked = false;
    /** What is wrong with the command line; empty if it is valid. */
    QString problem;

    /** Overrides the settings that the command line names. */
    void applyTo(HostSettings& settings) const;

    /** Whether there is an output file or a printer. */
    bool hasTarget() const { return !output.isEmpty() || !printer.isEmpty(); }

    /** Whether the program runs without a user and ends. */
    bool isHeadless() const
    {
        return records != Records::None || catalog.isGiven() || document.prints() ||
               !screenshot.isEmpty();
    }
};

/**
 * Parses a command line, which starts with the name of the program. What needs a part that the
 * build does not have is a problem.
 */
CommandLine parseCommandLine(const QStringList& arguments, const HostParts& parts = HostParts());

/** The text of --help, which names the missing parts. Needs the application object. */
QString commandLineHelp(const HostParts& parts = HostParts());

/**
 * Whether the raw arguments ask for a run without a user. The platform has to be chosen before the
 * application object, which parsing needs, exists.
 */
bool looksHeadless(int argc, const char* const* argv);

} // namespace SampleHost

#endif
