// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMTEST_H
#define PROGRAMTEST_H

#include "samplehost/support/hostprogram.h"
#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <memory>

/** Base class of the tests that run the program, each function in a folder of its own. */
class ProgramTest : public StrictTest
{
    Q_OBJECT

protected:
    void init() override;

    /** Runs the program with a database in the folder, unless the arguments name another. */
    int run(const QStringList& arguments);
    /** Likewise; arguments are separated by blanks, "_" stands for a blank inside one. */
    int run(const QString& arguments) { return run(HostProgram::split(arguments)); }

    /** The path of a file in the folder. */
    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    /** The path of a file in the folder, as the program shows it. */
    QString shown(const char* name) const { return QDir::toNativeSeparators(path(name)); }

    /** What the program last wrote. */
    const QString& out() const { return m_program->out; }
    const QString& error() const { return m_program->error; }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HostProgram> m_program;
};

#endif
