// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_COMMANDLINE_H
#define SAMPLEHOST_COMMANDLINE_H

#include "samplehost/commandline/demostate.h"
#include "samplehost/commandline/hostoptions.h"
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
    /** What to type into the size fields, numbers or not; empty to keep the listed size. */
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
    /** Which pages are printed without a user. */
    enum class Pages {
        None, ///< Nothing is printed.
        Current,
        All,
        List
    };

    /** The document as it was given; empty without one. */
    QString file;
    Pages pages = Pages::None;
    /** The list as it was given, valid or not. */
    QString list;
    /** The 1-based current page, as it was given. */
    int page = 1;
    /** Whether pages are fitted to the paper; without a choice the panel's own stays. */
    std::optional<bool> fitToPage;
    bool rotate180 = false;
    bool formFillOnly = false;

    /** Whether pages are printed. */
    bool prints() const { return pages != Pages::None; }
};

/** What the program was asked to do on its command line. */
struct CommandLine
{
    /** Which records are printed without a user. */
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
    /** The mode to choose in the panel; without one the panel's own choice stays. */
    std::optional<NupMode> nupMode;
    std::optional<NupLayout> nup;
    std::optional<Paper> paper;
    bool userBackground = false;
    /** Whether the records are shown in the preview, and printed from there if at all. */
    bool preview = false;
    /** The orientation to choose in the preview; without one it stays as the label is designed. */
    std::optional<bool> portrait;
    /** Whether sizes are shown in millimetres. */
    bool metric = false;
    bool printToFile = false;
    /** The PDF file to print to. */
    QString output;
    /** The printer to print to in place of a PDF file. */
    QString printer;
    /** The PNG file for a picture of the window. */
    QString screenshot;
    /** The state to bring the window into. */
    DemoState state = DemoState::None;
    /** Which item of the catalogue is printed in place of labels. */
    CatalogCommand catalog;
    /** What is to be done with a document in place of labels. */
    DocumentCommand document;

    bool helpAsked = false;
    bool versionAsked = false;
    /** What is wrong with the command line; empty if it can be carried out. */
    QString problem;

    /** Puts what the command line says about the output in the place of what the settings say. */
    void applyTo(HostSettings& settings) const;

    /** Whether there is somewhere to print to. */
    bool hasTarget() const { return !output.isEmpty() || !printer.isEmpty(); }

    /** Whether the program does its work and ends, instead of waiting for a user. */
    bool isHeadless() const
    {
        return records != Records::None || catalog.isGiven() || document.prints() ||
               !screenshot.isEmpty();
    }
};

/** Reads a command line, the program's name first. */
CommandLine parseCommandLine(const QStringList& arguments);

/** The text that --help shows. Needs the application object. */
QString commandLineHelp();

/**
 * Whether a command line asks for something that needs no user, seen from the raw arguments: it is
 * needed before there is an application object.
 */
bool looksHeadless(int argc, const char* const* argv);

} // namespace SampleHost

#endif
