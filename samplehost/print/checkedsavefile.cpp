// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/checkedsavefile.h"

namespace SampleHost {

CheckedSaveFile::CheckedSaveFile(const QString& path) : QSaveFile(path) {}

bool CheckedSaveFile::flushChecked()
{
    if (!flush()) {
        recordFailure();
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
            recordFailure();
            return -1;
        }
        written += step;
    }
    return written;
}

void CheckedSaveFile::recordFailure()
{
    if (!m_failed) {
        m_failed = true;
        // The system first writes a part to a full disk without an error; only writing the rest
        // fails with a reason.
        flush();
        m_failure = errorString();
    }
}

} // namespace SampleHost
