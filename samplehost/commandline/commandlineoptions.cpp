// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/commandlineoptions.h"

#include "samplehost/commandline/catalogcommand.h"
#include "samplehost/commandline/demostate.h"
#include "samplehost/commandline/documentcommand.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

namespace SampleHost {

namespace {

struct Option
{
    const char* name;
    const char* value;
    const char* description;
};

// clang-format off
constexpr Option options[] = {
    {"print", "list", "Print a list of records such as 1,4-5, without a user."},
    {"all", nullptr, "Print all records, without a user."},
    {"current", "record", "Print one record, without a user."},
    {"output", "file.pdf", "The PDF file to print to."},
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
    {"metric", nullptr, "Show sizes in millimeters."},
    {"test-controls", nullptr, "Show the panels' print-to-file and error-test controls."},
    {"screenshot", "file.png", "Save a picture of the window and end."},
    {"state", "name", "Bring the window into a state: %1."},
    {"database", "name", "The SQLite file, or the database of a server."},
    {"driver", "name", "The Qt SQL driver, for example QPSQL. The password of a server's user is taken "
                       "from the environment variable SAMPLEHOST_PASSWORD."},
    {"host", "name", "The database server."},
    {"port", "number", "The port of the database server."},
    {"user", "name", "The user at the database server."},
    {"table", "name", "The table with the records."},
};
// clang-format on

QString tr(const char* text)
{
    return QCoreApplication::translate("SampleHost::CommandLine", text);
}

} // namespace

void addCommandLineOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(tr("Prints labels and documents through the print panels."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QString states = demoStateNames().join(QStringLiteral(", "));
    for (const Option& option : options) {
        // Only the text about the states has a place for them.
        QString description = tr(option.description);
        description.replace(QStringLiteral("%1"), states);
        parser.addOption(QCommandLineOption(QString::fromLatin1(option.name), description,
                                            QString::fromLatin1(option.value)));
    }
    addCatalogOptions(parser);
    addDocumentOptions(parser);
}

} // namespace SampleHost
