// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "cups/cupsserver.h"

#include <QtCore/QCollator>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QStandardPaths>
#include <QtNetwork/QTcpServer>
#include <QtTest/QTest>

#include <algorithm>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

constexpr int startMilliseconds = 20000;
constexpr int stopMilliseconds = 10000;
constexpr int jobsMilliseconds = 30000;
constexpr int commandMilliseconds = 30000;

QString programPath(const char* name)
{
    const QString program = QString::fromLatin1(name);
    const QString found = QStandardPaths::findExecutable(program);
    return found.isEmpty() ? QStandardPaths::findExecutable(
                                 program, {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")})
                           : found;
}

/** A port that nothing listens on just now. */
quint16 freePort()
{
    QTcpServer probe;
    return probe.listen(QHostAddress::LocalHost) ? probe.serverPort() : quint16(0);
}

} // namespace

CupsServer::CupsServer() = default;

CupsServer::~CupsServer()
{
    stop();
}

QString CupsServer::whyUnavailable()
{
    if (::geteuid() != 0) {
        return QStringLiteral("cups-pdf prints for root's server only, and this is not root");
    }
    for (const char* program : {"cupsd", "lpadmin", "lpstat", "cupsdisable", "cupsreject"}) {
        if (programPath(program).isEmpty()) {
            return QStringLiteral("there is no %1").arg(QString::fromLatin1(program));
        }
    }
    const QString file = missingFile();
    return file.isEmpty() ? QString() : QStringLiteral("there is no %1").arg(file);
}

bool CupsServer::start(QString& problem)
{
    if (m_port == 0) {
        m_port = freePort();
        if (m_port == 0 || !m_folder.isValid() || !writeFiles()) {
            problem = QStringLiteral("the server's files cannot be written");
            return false;
        }
        qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(m_port));
    }
    m_server = std::make_unique<QProcess>();
    m_server->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // A test that is killed takes its server along.
    m_server->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_server->start(programPath("cupsd"),
                    {QStringLiteral("-f"), QStringLiteral("-c"), path("cupsd.conf"),
                     QStringLiteral("-s"), path("cups-files.conf")});
    QElapsedTimer elapsed;
    elapsed.start();
    QByteArray answer;
    while (m_server->waitForStarted(startMilliseconds) && elapsed.elapsed() < startMilliseconds) {
        if (run("lpstat", {QStringLiteral("-r")}, &answer) && answer.contains("is running")) {
            return true;
        }
        if (m_server->waitForFinished(50)) {
            break;
        }
    }
    problem = QStringLiteral("the server does not answer: ") + QString::fromLocal8Bit(log());
    return false;
}

void CupsServer::stop()
{
    if (m_server && m_server->state() != QProcess::NotRunning) {
        m_server->terminate();
        if (!m_server->waitForFinished(stopMilliseconds)) {
            m_server->kill();
            m_server->waitForFinished(stopMilliseconds);
        }
    }
    m_server.reset();
}

bool CupsServer::isRunning() const
{
    return m_server && m_server->state() == QProcess::Running;
}

bool CupsServer::run(const char* program, const QStringList& arguments, QByteArray* output)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    process.setProcessEnvironment(environment);
    process.start(programPath(program), arguments);
    if (!process.waitForFinished(commandMilliseconds)) {
        process.kill();
        process.waitForFinished();
        return false;
    }
    if (output != nullptr) {
        *output = process.readAllStandardOutput();
    }
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool CupsServer::addQueue(const QString& name, const QString& description, const QString& location)
{
    // Files are called "job_1-Title.pdf". The renderer is the one that leaves texts as glyphs of
    // their fonts; the other one draws them with the dots of a printer.
    return run("lpadmin", {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                           QStringLiteral("cups-pdf:/"), QStringLiteral("-P"), path("queue.ppd"),
                           QStringLiteral("-D"), description, QStringLiteral("-L"), location,
                           QStringLiteral("-o"), QStringLiteral("Label=1"), QStringLiteral("-o"),
                           QStringLiteral("TitlePref=1"), QStringLiteral("-o"),
                           QStringLiteral("pdftops-renderer-default=pdftops")});
}

bool CupsServer::removeQueue(const QString& name)
{
    return run("lpadmin", {QStringLiteral("-x"), name});
}

bool CupsServer::disable(const QString& name, const QString& reason)
{
    return run("cupsdisable", {QStringLiteral("-r"), reason, name});
}

bool CupsServer::enable(const QString& name)
{
    return run("cupsenable", {name});
}

bool CupsServer::reject(const QString& name, const QString& reason)
{
    return run("cupsreject", {QStringLiteral("-r"), reason, name});
}

bool CupsServer::accept(const QString& name)
{
    return run("cupsaccept", {name});
}

QStringList CupsServer::lines(const QStringList& arguments)
{
    QByteArray output;
    if (!run("lpstat", arguments, &output)) {
        return {QStringLiteral("lpstat failed")};
    }
    return QString::fromLocal8Bit(output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList CupsServer::jobs()
{
    return lines({QStringLiteral("-o")});
}

QStringList CupsServer::endedJobs()
{
    return lines({QStringLiteral("-W"), QStringLiteral("completed"), QStringLiteral("-o")});
}

bool CupsServer::waitForJobs()
{
    return QTest::qWaitFor([this] { return jobs().isEmpty(); }, jobsMilliseconds);
}

QStringList CupsServer::outputs() const
{
    const QDir folder(path("pdf/Out"));
    QStringList files = folder.entryList(QDir::Files | QDir::Hidden);
    QCollator byNumber{QLocale(QLocale::English)};
    byNumber.setNumericMode(true);
    std::sort(files.begin(), files.end(), byNumber);
    for (QString& file : files) {
        file = folder.filePath(file);
    }
    return files;
}

void CupsServer::clearOutputs()
{
    const QStringList files = outputs();
    for (const QString& file : files) {
        QFile::remove(file);
    }
}

QByteArray CupsServer::log() const
{
    QFile file(path("error_log"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().right(2000) : QByteArray();
}
