// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef HOSTPROGRAM_H
#define HOSTPROGRAM_H

#include <QtCore/QProcessEnvironment>
#include <QtCore/QString>
#include <QtCore/QStringList>

/** The program, started as its users do, without a display. */
class HostProgram
{
public:
    /** Works in a folder, which is also its user's home. */
    explicit HostProgram(const QString& folder);

    /** Starts the program and waits for its end. Its exit code, or -1 if it crashed or hangs. */
    int run(const QStringList& arguments);
    /** Likewise; arguments are separated by blanks, "_" stands for a blank inside one. */
    int run(const QString& arguments) { return run(split(arguments)); }

    /** The arguments of a line, as run() takes it. */
    static QStringList split(const QString& arguments);

    QProcessEnvironment environment;
    QString out;
    QString error;

private:
    QString m_folder;
};

#endif
