// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/commandline.h"

#include "samplehost/commandline/commandlineoptions.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QLatin1String>

#include <cstring>
#include <limits>

namespace SampleHost {

namespace {

// Whoever asks for one of these does not need a display.
constexpr const char* headlessOptions[] = {
    "print", "all",     "current", "pages",    "all-pages", "page", "screenshot",
    "help",  "version", "catalog", "help-all", "h",         "v"};

QString tr(const char* text)
{
    return QCoreApplication::translate("SampleHost::CommandLine", text);
}

/** Takes the values of the options over; the first thing wrong is kept as the problem. */
class Reader
{
public:
    Reader(const QCommandLineParser& parser, CommandLine& result)
        : m_parser(parser), m_result(result)
    {
    }

    void read()
    {
        readRecords();
        m_result.catalog = readCatalogCommand(m_parser, m_result.problem);
        m_result.document = readDocumentCommand(m_parser, m_result.problem);
        m_result.host.document = m_result.document.file;
        readOutput();
        readSheet();
        readPreview();
        readWindow();
        readDataSource();
        checkTarget();
    }

private:
    bool has(const char* name) const { return m_parser.isSet(QString::fromLatin1(name)); }

    QString value(const char* name) const { return m_parser.value(QString::fromLatin1(name)); }

    void complain(const QString& problem)
    {
        if (m_result.problem.isEmpty()) {
            m_result.problem = problem;
        }
    }

    int number(const char* name, int least, int most, int otherwise)
    {
        if (!has(name)) {
            return otherwise;
        }
        bool read = false;
        const int given = value(name).toInt(&read);
        if (!read || given < least || given > most) {
            complain(tr("--%1 needs a number from %2 to %3, not \"%4\".")
                         .arg(QString::fromLatin1(name), QString::number(least),
                              QString::number(most), value(name)));
            return otherwise;
        }
        return given;
    }

    void readRecords()
    {
        using Records = CommandLine::Records;
        if (int(has("print")) + int(has("all")) + int(has("current")) > 1) {
            complain(tr("Only one of --print, --all and --current can be used."));
        }
        if (has("print")) {
            m_result.records = Records::List;
            m_result.list = value("print");
        } else if (has("all")) {
            m_result.records = Records::All;
        } else if (has("current")) {
            m_result.records = Records::Current;
            m_result.currentRecord = number("current", 1, std::numeric_limits<int>::max(), 1);
        }
        m_result.copies = number("copies", 1, 999, 1);
    }

    void readOutput()
    {
        m_result.output = value("output");
        m_result.printer = value("printer");
        m_result.userBackground = has("background");
        m_result.printToFile = has("print-to-file");
        if (has("output") && m_result.output.isEmpty()) {
            complain(tr("--output needs a file name."));
        }
    }

    void readSheet()
    {
        if (has("nup")) {
            m_result.nup = NupLayout::fromText(value("nup"));
            if (!m_result.nup) {
                complain(
                    tr("--nup needs rows x columns such as 2x3, not \"%1\".").arg(value("nup")));
            }
        }
        if (has("sequence") && has("replicate")) {
            complain(tr("Only one of --sequence and --replicate can be used."));
        }
        if (has("sequence") || has("replicate")) {
            m_result.nupMode = has("sequence") ? NupMode::Sequencing : NupMode::Replicating;
        }
        if (has("paper")) {
            readPaper(value("paper").toLower());
        }
    }

    void readPreview()
    {
        m_result.preview = has("preview");
        m_result.metric = has("metric");
        if (has("portrait") && has("landscape")) {
            complain(tr("Only one of --portrait and --landscape can be used."));
        }
        if (has("portrait") || has("landscape")) {
            m_result.portrait = has("portrait");
            if (!m_result.preview) {
                complain(tr("--portrait and --landscape need --preview."));
            }
        }
        if (m_result.preview && m_result.records == CommandLine::Records::None) {
            complain(tr("--preview needs --print, --all or --current."));
        }
    }

    void readPaper(const QString& name)
    {
        const QStringList names{QStringLiteral("label"), QStringLiteral("a4"),
                                QStringLiteral("letter")};
        const qsizetype index = names.indexOf(name);
        if (index < 0) {
            complain(tr("--paper needs label, a4 or letter, not \"%1\".").arg(name));
        } else {
            m_result.paper = Paper(index);
        }
    }

    void readWindow()
    {
        m_result.screenshot = value("screenshot");
        m_result.state = demoStateFromName(value("state"));
        if (has("screenshot") && m_result.screenshot.isEmpty()) {
            complain(tr("--screenshot needs a file name."));
        }
        if (has("state") && m_result.state == DemoState::None) {
            complain(tr("--state needs one of %1, not \"%2\".")
                         .arg(demoStateNames().join(QStringLiteral(", ")), value("state")));
        }
        m_result.host.testControls = has("test-controls") || m_result.printToFile ||
                                     m_result.state == DemoState::TestControls;
    }

    void readDataSource()
    {
        DataSourceOptions& source = m_result.host.dataSource;
        if (has("driver")) {
            source.driver = value("driver");
        }
        if (has("table")) {
            source.table = value("table");
        }
        source.databaseName = value("database");
        source.hostName = value("host");
        source.userName = value("user");
        source.password = qEnvironmentVariable("SAMPLEHOST_PASSWORD");
        source.port = number("port", 1, 65535, source.port);
    }

    void checkTarget()
    {
        const bool prints = m_result.records != CommandLine::Records::None ||
                            m_result.catalog.isGiven() || m_result.document.prints();
        // These show what they would print before they print it.
        const bool looksOnly =
            (m_result.preview || m_result.catalog.isGiven()) && !m_result.screenshot.isEmpty();
        if (prints && !looksOnly && !m_result.hasTarget()) {
            complain(tr("Where to? Add --output FILE.pdf or --printer NAME."));
        }
    }

    const QCommandLineParser& m_parser;
    CommandLine& m_result;
};

} // namespace

void CommandLine::applyTo(HostSettings& settings) const
{
    settings.setOutputPath(output);
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

CommandLine parseCommandLine(const QStringList& arguments)
{
    QCommandLineParser parser;
    addCommandLineOptions(parser);
    CommandLine result;
    if (!parser.parse(arguments)) {
        result.problem = parser.errorText();
        return result;
    }
    result.helpAsked =
        parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("help-all"));
    result.versionAsked = parser.isSet(QStringLiteral("version"));
    if (!parser.positionalArguments().isEmpty()) {
        result.problem =
            tr("\"%1\" is not an option.").arg(parser.positionalArguments().constFirst());
        return result;
    }
    Reader(parser, result).read();
    return result;
}

QString commandLineHelp()
{
    QCommandLineParser parser;
    addCommandLineOptions(parser);
    return parser.helpText();
}

bool looksHeadless(int argc, const char* const* argv)
{
    for (int i = 1; i < argc; ++i) {
        const char* argument = argv[i];
        while (*argument == '-') {
            ++argument;
        }
        const QLatin1String name(argument, qsizetype(std::strcspn(argument, "=")));
        for (const char* option : headlessOptions) {
            if (argument != argv[i] && name == QLatin1String(option)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace SampleHost
