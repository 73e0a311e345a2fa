// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_COMMANDOPTIONS_H
#define SAMPLEHOST_COMMANDOPTIONS_H

#include "samplehost/commandline/hostparts.h"

namespace SampleHost {

/** One option of the program. */
struct CommandOption
{
    /** The command that an option belongs to. */
    enum Command { AnyCommand, Catalog, Document };
    /** Whether the program needs a display with this option. */
    enum Display { WithDisplay, WithoutDisplay };

    const char* name;
    /** The name of the value in --help; null for an option without a value. */
    const char* valueName;
    const char* description;
    Command command = AnyCommand;
    Display display = WithDisplay;
};

// clang-format off
/** All options in the order of --help. The states replace the place marker of "state". */
inline constexpr CommandOption commandOptions[] = {
    {"print", "list", "Print a list of records such as 1,4-5, without a user.",
     CommandOption::AnyCommand, CommandOption::WithoutDisplay},
    {"all", nullptr, "Print all records, without a user.",
     CommandOption::AnyCommand, CommandOption::WithoutDisplay},
    {"current", "record", "Print one record, without a user.",
     CommandOption::AnyCommand, CommandOption::WithoutDisplay},
    {"output", "file.pdf", "The PDF file to print to."},
    {"overwrite", nullptr, "Replace files that exist already, without a question."},
    {"printer", "name", "Print to a printer of the system instead of a PDF file."},
    {"copies", "number", "The number of copies, 1 to 999."},
    {"nup", "rows x columns", "The labels on a sheet, for example 2x2."},
    {"sequence", nullptr, "Fill a sheet with successive records."},
    {"replicate", nullptr, "Fill a sheet with copies of one record."},
    {"paper", "name", "The paper: label, a4 or letter."},
    {"background", nullptr, "Print a user background under the labels."},
    {"print-to-file", nullptr, "Print to a .prn file below the folder of the output file."},
    {"preview", nullptr, "Press Print Preview, and Print in the popup if there is somewhere to print to."},
    {"portrait", nullptr, "Turn the preview to portrait."},
    {"landscape", nullptr, "Turn the preview to landscape."},
    {"metric", nullptr, "Show sizes in millimetres."},
    {"language", "code", "The language of the window, for example de."},
    {"test-controls", nullptr, "Show the panels' print-to-file and error-test controls."},
    {"screenshot", "file.png", "Save a picture of the window and end.",
     CommandOption::AnyCommand, CommandOption::WithoutDisplay},
    {"state", "name", "Bring the window into a state: %1."},
    {"database", "name", "The SQLite file, or the database of a server."},
    {"driver", "name", "The Qt SQL driver, for example QPSQL. The password of a server's user is taken "
                       "from the environment variable SAMPLEHOST_PASSWORD."},
    {"host", "name", "The database server."},
    {"port", "number", "The port of the database server."},
    {"user", "name", "The user at the database server."},
    {"table", "name", "The table with the records."},
    {"catalog", "name", "Print a catalogue item such as \"NO SMOKING\", without a user.",
     CommandOption::Catalog, CommandOption::WithoutDisplay},
    {"size", "length x width", "The size of the catalogue item, in inches unless --metric is given; "
                               "for example 5x3.5.", CommandOption::Catalog},
    {"document", "file.pdf", "Open a PDF document.", CommandOption::Document},
    {"pages", "list", "Print a list of the document's pages such as 5-9,2, without a user.",
     CommandOption::Document, CommandOption::WithoutDisplay},
    {"all-pages", nullptr, "Print all pages of the document, without a user.",
     CommandOption::Document, CommandOption::WithoutDisplay},
    {"page", "number", "Print one page of the document, without a user.",
     CommandOption::Document, CommandOption::WithoutDisplay},
    {"fit", nullptr, "Fit the document's pages to the paper.", CommandOption::Document},
    {"no-fit", nullptr, "Print the document's pages in their own size.", CommandOption::Document},
    {"rotate180", nullptr, "Print the document's pages upside down.", CommandOption::Document},
    {"form-fill", nullptr, "Print only what is filled in the document's form fields.",
     CommandOption::Document},
};
// clang-format on

/** Whether a build with these parts has an option. */
inline bool isOffered(const CommandOption& option, const HostParts& parts)
{
    return option.command != CommandOption::Document || parts.documents;
}

} // namespace SampleHost

#endif
