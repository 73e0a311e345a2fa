// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef FULLDISK_H
#define FULLDISK_H

#include <QtCore/QList>
#include <QtCore/QString>

#include <csignal>
#include <memory>
#include <sys/resource.h>

/** Lets no file of this process, and of its children, grow beyond a size, as a full disk would,
 * until it goes away. */
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes);
    ~FileSizeLimit();
    bool isSet() const { return m_set; }

private:
    Q_DISABLE_COPY_MOVE(FileSizeLimit)
    rlimit m_oldLimit = {};
    void (*m_oldHandler)(int) = nullptr;
    bool m_set = false;
};

/**
 * A folder on a disk that can be filled up. Where the system lets this process mount, it is a small
 * file system of its own that only this process and its children see; elsewhere a limit on the size
 * of files stands in for it.
 */
class FullDisk
{
public:
    enum class Kind { FileSystem, SizeLimit };

    /** The kinds that work here: a limit on the size of files always does. */
    static QList<Kind> kinds();
    static const char* name(Kind kind);

    /** Makes the folder, which must not exist yet. */
    FullDisk(Kind kind, const QString& folder);
    /** Frees the disk and takes it away with everything on it. */
    ~FullDisk();

    bool isReady() const { return m_ready; }
    /** The path of a file in the folder. */
    QString path(const char* name) const;

    /** Fills the disk up to a number of bytes. False if that failed. */
    bool fill(qint64 bytesLeft = 0);
    /** Lets nothing be written, or be written again. */
    bool setReadOnly(bool readOnly);
    /** Makes room again. */
    void free();

private:
    Q_DISABLE_COPY_MOVE(FullDisk)
    bool fillFileSystem(qint64 bytesLeft);

    Kind m_kind;
    QString m_folder;
    std::unique_ptr<FileSizeLimit> m_limit;
    bool m_ready = false;
};

#endif
