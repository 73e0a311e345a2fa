// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/commandline.h"

#include "samplehost/commandline/commandoptions.h"
#include "samplehost/commandline/commandreader.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QLatin1String>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace SampleHost {

namespace {

// The parser's own options, which need no display.
constexpr const char* parserOptions[] = {"help", "help-all", "version", "h", "v"};

/** The texts belong to the messages of CommandReader. */
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SampleHost::CommandLine)
};

/** Adds the options of a build with these parts. */
void addOptions(QCommandLineParser& parser, const HostParts& parts)
{
    parser.addHelpOption();
    parser.addVersionOption();
    const QString states = demoStateNames(parts).join(QStringLiteral(", "));
    for (const CommandOption& option : commandOptions) {
        if (isOffered(option, parts)) {
            QString description = Texts::tr(option.description);
            description.replace(QStringLiteral("%1"), states);
            parser.addOption({QString::fromLatin1(option.name), description,
                              QString::fromLatin1(option.valueName)});
        }
    }
}

bool needsNoDisplay(QLatin1String name)
{
    const auto isOption = [name](const CommandOption& option) {
        return option.display == CommandOption::WithoutDisplay &&
               name == QLatin1String(option.name);
    };
    const auto isName = [name](const char* option) { return name == QLatin1String(option); };
    return std::any_of(std::begin(commandOptions), std::end(commandOptions), isOption) ||
           std::any_of(std::begin(parserOptions), std::end(parserOptions), isName);
}

} // namespace

void CommandLine::applyTo(HostSettings& settings) const
{
    settings.setOutputPath(output);
    if (overwrite) {
        settings.setReplacePolicy(ReplacePolicy::Replace);
    } else if (isHeadless()) {
        settings.setReplacePolicy(ReplacePolicy::Refuse);
    }
    if (nup) {
        settings.setNup(*nup);
    }
    if (paper) {
        settings.setPaper(*paper);
    }
    if (metric) {
        settings.setMetric(true);
    }
}

CommandLine parseCommandLine(const QStringList& arguments, const HostParts& parts)
{
    QCommandLineParser parser;
    // An option of a missing part is not just an unknown one.
    addOptions(parser, HostParts());
    CommandLine result;
    if (!parser.parse(arguments)) {
        result.problem =
            parser.errorText() + QLatin1Char(' ') + Texts::tr("--help lists the options.");
        return result;
    }
    result.helpAsked =
        parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("help-all"));
    result.versionAsked = parser.isSet(QStringLiteral("version"));
    if (!parser.positionalArguments().isEmpty()) {
        result.problem = Texts::tr("\"%1\" is not an option. --help lists the options.")
                             .arg(parser.positionalArguments().constFirst());
        return result;
    }
    CommandReader(parser, parts, result).read();
    return result;
}

QString commandLineHelp(const HostParts& parts)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        parts.documents ? Texts::tr("Prints labels and documents through the print panels.")
                        : Texts::tr("Prints labels through the print panels."));
    addOptions(parser, parts);
    QString help = parser.helpText();
    if (!parts.documents || !parts.printQueues) {
        help += QLatin1Char('\n');
    }
    if (!parts.documents) {
        help += Texts::tr("This build has no PDF documents.") + QLatin1Char('\n');
    }
    if (!parts.printQueues) {
        help += Texts::tr(
                    "This build has no print queues of CUPS: the system's own printing is used.") +
                QLatin1Char('\n');
    }
    return help;
}

bool looksHeadless(int argc, const char* const* argv)
{
    for (int i = 1; i < argc; ++i) {
        const char* argument = argv[i];
        while (*argument == '-') {
            ++argument;
        }
        const QLatin1String name(argument, qsizetype(std::strcspn(argument, "=")));
        if (argument != argv[i] && needsNoDisplay(name)) {
            return true;
        }
    }
    return false;
}

} // namespace SampleHost
