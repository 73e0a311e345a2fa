// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/programtest.h"

void ProgramTest::init()
{
    StrictTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_program = std::make_unique<HostProgram>(m_folder->path());
}

int ProgramTest::run(const QStringList& arguments)
{
    const QString database = QStringLiteral("--database");
    return m_program->run(arguments.contains(database)
                              ? arguments
                              : QStringList{database, path("chemicals.db")} + arguments);
}
