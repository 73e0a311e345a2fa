// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/documentcommand.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <limits>

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
    {"document", "file.pdf", "Open a PDF document."},
    {"pages", "list", "Print a list of the document's pages such as 5-9,2, without a user."},
    {"all-pages", nullptr, "Print all pages of the document, without a user."},
    {"page", "number", "Print one page of the document, without a user."},
    {"fit", nullptr, "Fit the document's pages to the paper."},
    {"no-fit", nullptr, "Print the document's pages in their own size."},
    {"rotate180", nullptr, "Print the document's pages upside down."},
    {"form-fill", nullptr, "Print only what is filled in the document's form fields."},
};
// clang-format on

QString tr(const char* text)
{
    return QCoreApplication::translate("SampleHost::CommandLine", text);
}

/** Takes the values of the options over; the first thing wrong is kept as the problem. */
class Reader
{
public:
    Reader(const QCommandLineParser& parser, QString& problem)
        : m_parser(parser), m_problem(problem)
    {
    }

    DocumentCommand read()
    {
        DocumentCommand command;
        command.file = value("document");
        readPages(command);
        if (has("fit") || has("no-fit")) {
            command.fitToPage = has("fit");
        }
        command.rotate180 = has("rotate180");
        command.formFillOnly = has("form-fill");
        checkCombination(command);
        return command;
    }

private:
    bool has(const char* name) const { return m_parser.isSet(QString::fromLatin1(name)); }

    QString value(const char* name) const { return m_parser.value(QString::fromLatin1(name)); }

    void complain(const QString& problem)
    {
        if (m_problem.isEmpty()) {
            m_problem = problem;
        }
    }

    void readPages(DocumentCommand& command)
    {
        using Pages = DocumentCommand::Pages;
        if (has("pages")) {
            command.pages = Pages::List;
            command.list = value("pages");
        } else if (has("all-pages")) {
            command.pages = Pages::All;
        } else if (has("page")) {
            command.pages = Pages::Current;
            readPage(command);
        }
    }

    void readPage(DocumentCommand& command)
    {
        bool read = false;
        command.page = value("page").toInt(&read);
        if (!read || command.page < 1) {
            complain(tr("--page needs a number from 1 to %1, not \"%2\".")
                         .arg(QString::number(std::numeric_limits<int>::max()), value("page")));
        }
    }

    void checkCombination(const DocumentCommand& command)
    {
        if (int(has("pages")) + int(has("all-pages")) + int(has("page")) > 1) {
            complain(tr("Only one of --pages, --all-pages and --page can be used."));
        }
        if (has("fit") && has("no-fit")) {
            complain(tr("Only one of --fit and --no-fit can be used."));
        }
        if (has("document") && (has("print") || has("all") || has("current"))) {
            complain(tr("--print, --all and --current are for labels; use --pages, --all-pages or "
                        "--page with --document."));
        }
        if (has("document") && command.file.isEmpty()) {
            complain(tr("--document needs a file name."));
        }
        for (const Option& option : options) {
            if (has(option.name) && !has("document")) {
                complain(tr("--%1 needs --document FILE.pdf.").arg(QLatin1String(option.name)));
            }
        }
    }

    const QCommandLineParser& m_parser;
    QString& m_problem;
};

} // namespace

void addDocumentOptions(QCommandLineParser& parser)
{
    for (const Option& option : options) {
        parser.addOption(QCommandLineOption(QString::fromLatin1(option.name),
                                            tr(option.description),
                                            QString::fromLatin1(option.value)));
    }
}

DocumentCommand readDocumentCommand(const QCommandLineParser& parser, QString& problem)
{
    return Reader(parser, problem).read();
}

} // namespace SampleHost
