// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// What a server of the test's own finds in its folder.
#include "cups/cupsserver.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <sys/stat.h>

namespace {

const QString systemPrograms = QStringLiteral("/usr/lib/cups");
const QString printerDescription = QStringLiteral("/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd");
const QString pdfBackend = systemPrograms + QStringLiteral("/backend/cups-pdf");

} // namespace

QString CupsServer::missingFile()
{
    for (const QString& file : {pdfBackend, printerDescription}) {
        if (!QFile::exists(file)) {
            return file;
        }
    }
    return QString();
}

QString CupsServer::path(const char* name) const
{
    return m_folder.filePath(QString::fromLatin1(name));
}

bool CupsServer::write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(text) == text.size();
}

bool CupsServer::writeProgram(const QString& path, const QByteArray& text)
{
    // Only a backend that nobody else may run is run as root.
    return write(path, text) &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray CupsServer::serverConfiguration() const
{
    return "Listen 127.0.0.1:" + QByteArray::number(m_port) +
           "\nBrowsing No\nWebInterface No\nLogLevel info\nErrorPolicy abort-job\n"
           "DefaultAuthType None\nDirtyCleanInterval 0\n"
           "<Location />\nOrder allow,deny\nAllow 127.0.0.1\n</Location>\n"
           "<Policy default>\nJobPrivateAccess default\nJobPrivateValues none\n"
           "SubscriptionPrivateAccess default\nSubscriptionPrivateValues default\n"
           "<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n";
}

QByteArray CupsServer::filesConfiguration() const
{
    QByteArray text = "SystemGroup root\nCreateSelfSignedCerts no\n";
    const auto add = [this, &text](const char* key, const char* name) {
        text += QByteArray(key) + ' ' + QFile::encodeName(path(name)) + '\n';
    };
    add("ServerRoot", "root");
    add("ServerBin", "bin");
    add("RequestRoot", "spool");
    add("CacheDir", "cache");
    add("StateDir", "state");
    add("TempDir", "tmp");
    add("AccessLog", "access_log");
    add("ErrorLog", "error_log");
    add("PageLog", "page_log");
    add("Printcap", "printcap");
    return text;
}

// The backend reads its settings from /etc, but those of the queue go before. A value of the queue
// cannot hold a slash, so these folders are relative, and the backend is started where they are. It
// does not make relative ones.
bool CupsServer::writePrinterDescription()
{
    QFile original(printerDescription);
    if (!original.open(QIODevice::ReadOnly)) {
        return false;
    }
    QByteArray text = original.readAll() + "\n*OpenGroup: Folders/Folders\n";
    const QDir folder(path("pdf"));
    for (const char* option : {"Out", "Spool", "Log", "AnonDirName"}) {
        const QByteArray key(option);
        text += "*OpenUI *" + key + ": PickOne\n*Default" + key + ": " + key + "\n*" + key + ' ' +
                key + ": \"\"\n*CloseUI: *" + key + '\n';
        if (!folder.mkpath(QString::fromLatin1(key))) {
            return false;
        }
    }
    return write(path("queue.ppd"), text + "*CloseGroup: Folders\n");
}

bool CupsServer::writeFiles()
{
    const QDir folder(m_folder.path());
    for (const char* name :
         {"root", "root/ppd", "bin/backend", "spool", "cache", "state", "tmp", "pdf"}) {
        if (!folder.mkpath(QString::fromLatin1(name))) {
            return false;
        }
    }
    // Filters run as another user, who has to reach what is theirs below.
    if (::chmod(QFile::encodeName(m_folder.path()).constData(), 0711) != 0 ||
        ::chmod(QFile::encodeName(path("tmp")).constData(), 01777) != 0) {
        return false;
    }
    for (const char* part : {"cgi-bin", "daemon", "driver", "filter", "monitor", "notifier"}) {
        const QString name = QString::fromLatin1(part);
        QFile::link(systemPrograms + QLatin1Char('/') + name,
                    path("bin") + QLatin1Char('/') + name);
    }
    const QByteArray backend = "#!/bin/sh\ncd '" + QFile::encodeName(path("pdf")) + "' && exec " +
                               QFile::encodeName(pdfBackend) + " \"$@\"\n";
    return writeProgram(path("bin/backend/cups-pdf"), backend) && writePrinterDescription() &&
           write(path("cupsd.conf"), serverConfiguration()) &&
           write(path("cups-files.conf"), filesConfiguration());
}
