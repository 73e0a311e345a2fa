// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/commandreader.h"

#include "samplehost/commandline/languages.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <limits>

namespace SampleHost {

namespace {

constexpr int anyNumber = std::numeric_limits<int>::max();

// What does not apply to an item of the catalogue.
constexpr const char* notForCatalog[] = {"print",      "all",          "current",   "preview",
                                         "nup",        "sequence",     "replicate", "document",
                                         "background", "print-to-file"};

} // namespace

CommandReader::CommandReader(const QCommandLineParser& parser, const HostParts& parts,
                             CommandLine& result)
    : m_parser(parser), m_parts(parts), m_result(result)
{
}

void CommandReader::read()
{
    checkParts();
    readRecords();
    readCatalog();
    readDocument();
    readOutput();
    readSheet();
    readPreview();
    readWindow();
    readDataSource();
    checkTarget();
}

void CommandReader::report(const QString& problem)
{
    if (m_result.problem.isEmpty()) {
        m_result.problem = problem;
    }
}

int CommandReader::number(const char* name, int minimum, int maximum, int defaultValue)
{
    if (!has(name)) {
        return defaultValue;
    }
    bool ok = false;
    const int given = value(name).toInt(&ok);
    if (!ok || given < minimum || given > maximum) {
        report(tr("--%1 needs a number from %2 to %3, not \"%4\".")
                   .arg(QLatin1String(name), QString::number(minimum), QString::number(maximum),
                        value(name)));
        return defaultValue;
    }
    return given;
}

void CommandReader::checkExclusive(std::initializer_list<const char*> names)
{
    QStringList options;
    int given = 0;
    for (const char* name : names) {
        options.append(QStringLiteral("--") + QLatin1String(name));
        given += int(has(name));
    }
    if (given > 1) {
        const QString last = options.takeLast();
        report(
            tr("Only one of %1 and %2 can be used.").arg(options.join(QStringLiteral(", ")), last));
    }
}

void CommandReader::checkFileName(const char* name)
{
    if (has(name) && value(name).isEmpty()) {
        report(tr("--%1 needs a file name.").arg(QLatin1String(name)));
    }
}

void CommandReader::checkCommand(CommandOption::Command command, const char* option,
                                 const char* usage)
{
    for (const CommandOption& other : commandOptions) {
        if (other.command == command && has(other.name) && !has(option)) {
            report(tr("--%1 needs %2.").arg(QLatin1String(other.name), QLatin1String(usage)));
        }
    }
}

void CommandReader::checkParts()
{
    for (const CommandOption& option : commandOptions) {
        if (has(option.name) && !isOffered(option, m_parts)) {
            report(tr("--%1 cannot be used: this build has no PDF documents.")
                       .arg(QLatin1String(option.name)));
        }
    }
}

void CommandReader::readRecords()
{
    using Records = CommandLine::Records;
    checkExclusive({"print", "all", "current"});
    if (has("print")) {
        m_result.records = Records::List;
        m_result.list = value("print");
    } else if (has("all")) {
        m_result.records = Records::All;
    } else if (has("current")) {
        m_result.records = Records::Current;
        m_result.currentRecord = number("current", 1, anyNumber, 1);
    }
    m_result.copies = number("copies", 1, 999, 1);
}

void CommandReader::readCatalog()
{
    checkCommand(CommandOption::Catalog, "catalog", "--catalog NAME");
    if (!has("catalog")) {
        return;
    }
    m_result.catalog.item = value("catalog");
    if (m_result.catalog.item.isEmpty()) {
        report(tr("--catalog needs the name of an item."));
    }
    if (has("size")) {
        readSize();
    }
    for (const char* name : notForCatalog) {
        if (has(name)) {
            report(tr("--%1 cannot be used with --catalog.").arg(QLatin1String(name)));
        }
    }
}

void CommandReader::readSize()
{
    // The fields of the panel read the numbers, and the page checks them.
    const QString size = value("size");
    const qsizetype cross = size.indexOf(QLatin1Char('x'), 0, Qt::CaseInsensitive);
    if (cross < 1 || cross + 1 == size.size()) {
        report(tr("--size needs length x width such as 10x7, not \"%1\".").arg(size));
        return;
    }
    m_result.catalog.length = size.first(cross);
    m_result.catalog.width = size.sliced(cross + 1);
}

void CommandReader::readDocument()
{
    DocumentCommand& document = m_result.document;
    document.file = value("document");
    m_result.host.document = document.file;
    readPages();
    if (has("fit") || has("no-fit")) {
        document.fitToPage = has("fit");
    }
    document.rotate180 = has("rotate180");
    document.formFillOnly = has("form-fill");
    checkExclusive({"pages", "all-pages", "page"});
    checkExclusive({"fit", "no-fit"});
    if (has("document") && (has("print") || has("all") || has("current"))) {
        report(tr("--print, --all and --current are for labels; use --pages, --all-pages or "
                  "--page with --document."));
    }
    checkFileName("document");
    checkCommand(CommandOption::Document, "document", "--document FILE.pdf");
}

void CommandReader::readPages()
{
    using Pages = DocumentCommand::Pages;
    DocumentCommand& document = m_result.document;
    if (has("pages")) {
        document.pages = Pages::List;
        document.list = value("pages");
    } else if (has("all-pages")) {
        document.pages = Pages::All;
    } else if (has("page")) {
        document.pages = Pages::Current;
        document.page = number("page", 1, anyNumber, 1);
    }
}

void CommandReader::readOutput()
{
    m_result.output = value("output");
    m_result.overwrite = has("overwrite");
    m_result.printer = value("printer");
    m_result.userBackground = has("background");
    m_result.printToFile = has("print-to-file");
    checkFileName("output");
}

void CommandReader::readSheet()
{
    if (has("nup")) {
        m_result.nup = NupLayout::fromText(value("nup"));
        if (!m_result.nup) {
            report(tr("--nup needs rows x columns such as 2x3, not \"%1\".").arg(value("nup")));
        }
    }
    checkExclusive({"sequence", "replicate"});
    if (has("sequence") || has("replicate")) {
        m_result.nupMode = has("sequence") ? NupMode::Sequencing : NupMode::Replicating;
    }
    if (has("paper")) {
        readPaper();
    }
}

void CommandReader::readPaper()
{
    const QString name = value("paper").toLower();
    if (name == QLatin1String("label")) {
        m_result.paper = Paper::LabelSize;
    } else if (name == QLatin1String("a4")) {
        m_result.paper = Paper::A4;
    } else if (name == QLatin1String("letter")) {
        m_result.paper = Paper::Letter;
    } else {
        report(tr("--paper needs label, a4 or letter, not \"%1\".").arg(name));
    }
}

void CommandReader::readPreview()
{
    m_result.preview = has("preview");
    m_result.metric = has("metric");
    checkExclusive({"portrait", "landscape"});
    if (has("portrait") || has("landscape")) {
        m_result.portrait = has("portrait");
        if (!m_result.preview) {
            report(tr("--portrait and --landscape need --preview."));
        }
    }
    if (m_result.preview && m_result.records == CommandLine::Records::None) {
        report(tr("--preview needs --print, --all or --current."));
    }
}

void CommandReader::readWindow()
{
    m_result.screenshot = value("screenshot");
    checkFileName("screenshot");
    // Neither file may exist yet, so only their paths can be compared.
    const auto file = [](const QString& path) {
        return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    };
    if (has("screenshot") && has("output") && file(m_result.screenshot) == file(m_result.output)) {
        report(tr("--screenshot and --output need different files."));
    }
    readLanguage();
    readState();
    m_result.host.testControls =
        has("test-controls") || m_result.printToFile || m_result.state == DemoState::TestControls;
}

void CommandReader::readLanguage()
{
    m_result.language = value("language");
    const QStringList codes = Languages::codes();
    if (has("language") && !codes.contains(m_result.language)) {
        report(tr("--language needs one of %1, not \"%2\".")
                   .arg(codes.join(QStringLiteral(", ")), m_result.language));
    }
}

void CommandReader::readState()
{
    const QString name = value("state");
    const QStringList offered = demoStateNames(m_parts);
    m_result.state = demoStateFromName(name);
    if (has("state") && m_result.state == DemoState::None) {
        report(tr("--state needs one of %1, not \"%2\".")
                   .arg(offered.join(QStringLiteral(", ")), name));
    } else if (has("state") && !offered.contains(name)) {
        report(tr("The state \"%1\" cannot be shown: this build has no PDF documents.").arg(name));
    }
}

void CommandReader::readDataSource()
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

void CommandReader::checkTarget()
{
    const bool prints = m_result.records != CommandLine::Records::None ||
                        m_result.catalog.isGiven() || m_result.document.prints();
    // A preview and a catalogue item can be shown without being printed.
    const bool onlyShows =
        (m_result.preview || m_result.catalog.isGiven()) && !m_result.screenshot.isEmpty();
    if (prints && !onlyShows && !m_result.hasTarget()) {
        report(tr("Where to? Add --output FILE.pdf or --printer NAME."));
    }
}

} // namespace SampleHost
