// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/fulldisk.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <sched.h>
#include <sys/mount.h>

namespace {

constexpr const char* diskOptions = "size=512k,mode=0777";

bool mountDisk(const QString& folder)
{
    return ::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, diskOptions) == 0;
}

/** Whether file systems can be mounted for this process alone; found out once. */
bool canMount()
{
    static const bool can = [] {
        // Nothing of it reaches the rest of the system, and it goes with the process.
        const QTemporaryDir folder;
        return ::unshare(CLONE_NEWNS) == 0 &&
               ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               mountDisk(folder.path()) &&
               ::umount(QFile::encodeName(folder.path()).constData()) == 0;
    }();
    return can;
}

} // namespace

FileSizeLimit::FileSizeLimit(rlim_t bytes)
{
    m_oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_oldLimit);
    rlimit limit = m_oldLimit;
    limit.rlim_cur = bytes;
    m_set = setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

FileSizeLimit::~FileSizeLimit()
{
    setrlimit(RLIMIT_FSIZE, &m_oldLimit);
    std::signal(SIGXFSZ, m_oldHandler);
}

QList<FullDisk::Kind> FullDisk::kinds()
{
    return canMount() ? QList<Kind>{Kind::FileSystem, Kind::SizeLimit}
                      : QList<Kind>{Kind::SizeLimit};
}

const char* FullDisk::name(Kind kind)
{
    return kind == Kind::FileSystem ? "file system" : "size limit";
}

FullDisk::FullDisk(Kind kind, const QString& folder) : m_kind(kind), m_folder(folder)
{
    m_ready =
        QDir().mkpath(folder) && (kind == Kind::SizeLimit || (canMount() && mountDisk(folder)));
}

FullDisk::~FullDisk()
{
    free();
    if (m_ready && m_kind == Kind::FileSystem) {
        // At once, even if something on it is still open.
        ::umount2(QFile::encodeName(m_folder).constData(), MNT_DETACH);
    }
}

QString FullDisk::path(const char* name) const
{
    return QDir(m_folder).filePath(QString::fromLatin1(name));
}

bool FullDisk::fill(qint64 bytesLeft)
{
    if (m_kind == Kind::FileSystem) {
        return fillFileSystem(bytesLeft);
    }
    m_limit.reset();
    m_limit = std::make_unique<FileSizeLimit>(rlim_t(bytesLeft));
    return m_limit->isSet();
}

bool FullDisk::fillFileSystem(qint64 bytesLeft)
{
    QFile filler(path(".filler"));
    if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return false;
    }
    const QByteArray block(4096, 'x');
    while (filler.write(block) == block.size()) {
    }
    return bytesLeft == 0 || filler.resize(filler.size() - bytesLeft);
}

bool FullDisk::setReadOnly(bool readOnly)
{
    if (m_kind == Kind::FileSystem) {
        return ::mount("tmpfs", QFile::encodeName(m_folder).constData(), "tmpfs",
                       MS_REMOUNT | (readOnly ? MS_RDONLY : 0), diskOptions) == 0;
    }
    const QFile::Permissions reading = QFile::ReadOwner | QFile::ExeOwner;
    return QFile::setPermissions(m_folder, readOnly ? reading : reading | QFile::WriteOwner);
}

void FullDisk::free()
{
    m_limit.reset();
    if (m_kind == Kind::FileSystem) {
        QFile::remove(path(".filler"));
    }
}
