// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/checkedsavefile.h"

namespace SampleHost {

CheckedSaveFile::CheckedSaveFile(const QString& path) : QSaveFile(path) {}

bool CheckedSaveFile::flushChecked()
{
    if (!flush()) {
        remember();
    }
    return !m_failed;
}

bool CheckedSaveFile::commitChecked()
{
    if (!flushChecked()) {
        cancelWriting();
        commit();
        return false;
    }
    if (!commit()) {
        m_failed = true;
        m_failure = errorString();
    }
    return !m_failed;
}

QString CheckedSaveFile::failure() const
{
    return m_failed ? m_failure : errorString();
}

qint64 CheckedSaveFile::writeData(const char* data, qint64 size)
{
    qint64 written = 0;
    while (written < size) {
        const qint64 step = QSaveFile::writeData(data + written, size - written);
        if (step <= 0) {
            remember();
            return -1;
        }
        written += step;
    }
    return written;
}

void CheckedSaveFile::remember()
{
    if (!m_failed) {
        m_failed = true;
        // A full disk first takes a part without saying why it stopped; it refuses the rest with a
        // reason.
        flush();
        m_failure = errorString();
    }
}

} // namespace SampleHost
