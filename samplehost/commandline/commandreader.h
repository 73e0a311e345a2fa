// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_COMMANDREADER_H
#define SAMPLEHOST_COMMANDREADER_H

#include "samplehost/commandline/commandline.h"
#include "samplehost/commandline/commandoptions.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <initializer_list>

namespace SampleHost {

/** Reads the values of the options into a CommandLine; the first error found is its problem. */
class CommandReader
{
    Q_DECLARE_TR_FUNCTIONS(SampleHost::CommandLine)

public:
    /** Reads what a parser has parsed for a build. All arguments must outlive the reader. */
    CommandReader(const QCommandLineParser& parser, const HostParts& parts, CommandLine& result);

    /** Reads and checks everything. */
    void read();

private:
    bool has(const char* name) const { return m_parser.isSet(QString::fromLatin1(name)); }
    QString value(const char* name) const { return m_parser.value(QString::fromLatin1(name)); }
    int number(const char* name, int minimum, int maximum, int defaultValue);
    void report(const QString& problem);
    void checkExclusive(std::initializer_list<const char*> names);
    void checkFileName(const char* name);
    void checkCommand(CommandOption::Command command, const char* option, const char* usage);

    void checkParts();
    void readRecords();
    void readCatalog();
    void readSize();
    void readDocument();
    void readPages();
    void readOutput();
    void readSheet();
    void readPaper();
    void readPreview();
    void readWindow();
    void readLanguage();
    void readState();
    void readDataSource();
    void checkTarget();

    const QCommandLineParser& m_parser;
    const HostParts& m_parts;
    CommandLine& m_result;
};

} // namespace SampleHost

#endif
