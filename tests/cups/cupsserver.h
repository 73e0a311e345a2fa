// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TESTS_CUPS_CUPSSERVER_H
#define TESTS_CUPS_CUPSSERVER_H

#include <QtCore/QProcess>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

#include <memory>

/**
 * A CUPS server of the test's own: configuration, spool, logs and output lie in a folder that goes
 * with it, and it listens on one port of the loopback only. Its queues turn jobs into PDF files.
 *
 * libcups remembers the first server that a process asked, so a program has one of these, started
 * before anything asks for printers.
 */
class CupsServer
{
public:
    CupsServer();
    ~CupsServer();

    /** Why this machine cannot run one; empty when it can. */
    static QString whyUnavailable();

    /** Starts the server, again on the same port with the same queues; false with the reason. */
    bool start(QString& problem);
    /** Ends the server as an administrator would. */
    void stop();
    bool isRunning() const;

    bool addQueue(const QString& name, const QString& description, const QString& location);
    bool removeQueue(const QString& name);
    /** Stops a queue with a reason: it keeps the jobs that it goes on taking. */
    bool disable(const QString& name, const QString& reason);
    bool enable(const QString& name);
    /** Makes a queue refuse jobs, with a reason. */
    bool reject(const QString& name, const QString& reason);
    bool accept(const QString& name);

    /** The jobs that wait or print, one a line. */
    QStringList jobs();
    /** The jobs that have ended, whatever their end, one a line. */
    QStringList endedJobs();
    /** Waits until no job waits or prints. */
    bool waitForJobs();
    /** The PDF files that jobs have become, in the order of the jobs. */
    QStringList outputs() const;
    /** Forgets what was printed so far. */
    void clearOutputs();

    /** The end of the server's log, for the message of a test that fails. */
    QByteArray log() const;

private:
    Q_DISABLE_COPY_MOVE(CupsServer)
    /** A file of the system that the server's own need; empty when all are there. */
    static QString missingFile();
    bool writeFiles();
    bool writeProgram(const QString& path, const QByteArray& text);
    bool write(const QString& path, const QByteArray& text);
    QByteArray serverConfiguration() const;
    QByteArray filesConfiguration() const;
    bool writePrinterDescription();
    bool run(const char* program, const QStringList& arguments, QByteArray* output = nullptr);
    QStringList lines(const QStringList& arguments);
    QString path(const char* name) const;

    QTemporaryDir m_folder;
    std::unique_ptr<QProcess> m_server;
    quint16 m_port = 0;
};

#endif
