// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/catalogcommand.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

namespace SampleHost {

namespace {

// What an item of the catalogue has nothing to do with.
constexpr const char* otherOptions[] = {"print",      "all",          "current",   "preview",
                                        "nup",        "sequence",     "replicate", "document",
                                        "background", "print-to-file"};

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

    CatalogCommand read()
    {
        CatalogCommand command;
        if (!has("catalog")) {
            if (has("size")) {
                complain(tr("--size needs --catalog NAME."));
            }
            return command;
        }
        command.item = value("catalog");
        if (command.item.isEmpty()) {
            complain(tr("--catalog needs the name of an item."));
        }
        if (has("size")) {
            readSize(command);
        }
        checkCombination();
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

    // The numbers are for the fields to take, and for the page to judge.
    void readSize(CatalogCommand& command)
    {
        const QString size = value("size");
        const qsizetype cross = size.indexOf(QLatin1Char('x'), 0, Qt::CaseInsensitive);
        if (cross < 1 || cross + 1 == size.size()) {
            complain(tr("--size needs length x width such as 10x7, not \"%1\".").arg(size));
            return;
        }
        command.length = size.first(cross);
        command.width = size.sliced(cross + 1);
    }

    void checkCombination()
    {
        for (const char* option : otherOptions) {
            if (has(option)) {
                complain(
                    tr("--%1 cannot be used with --catalog.").arg(QString::fromLatin1(option)));
            }
        }
    }

    const QCommandLineParser& m_parser;
    QString& m_problem;
};

} // namespace

void addCatalogOptions(QCommandLineParser& parser)
{
    parser.addOption(
        QCommandLineOption(QStringLiteral("catalog"),
                           tr("Print a catalogue item such as \"NO SMOKING\", without a user."),
                           QStringLiteral("name")));
    parser.addOption(QCommandLineOption(QStringLiteral("size"),
                                        tr("The size of the catalogue item, in inches unless "
                                           "--metric is given; for example 5x3.5."),
                                        QStringLiteral("length x width")));
}

CatalogCommand readCatalogCommand(const QCommandLineParser& parser, QString& problem)
{
    return Reader(parser, problem).read();
}

} // namespace SampleHost
