// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CHECKEDSAVEFILE_H
#define SAMPLEHOST_CHECKEDSAVEFILE_H

#include <QtCore/QSaveFile>

namespace SampleHost {

/**
 * A QSaveFile that remembers its first failure.
 *
 * QSaveFile does not: the next write that only reaches the buffer clears the error, and commit()
 * does not notice that the last flush failed, so that a truncated document would get its final
 * name.
 */
class CheckedSaveFile : public QSaveFile
{
    Q_OBJECT

public:
    explicit CheckedSaveFile(const QString& path);

    /** Writes buffered data to the file. False if that, or any write before, failed. */
    bool flushChecked();

    /** Gives the file its name. If any write failed, removes it and returns false. */
    bool commitChecked();

    /** The reason of the first failure, in the words of the system. */
    QString failure() const;

protected:
    qint64 writeData(const char* data, qint64 size) override;

private:
    void recordFailure();

    QString m_failure;
    bool m_failed = false;
};

} // namespace SampleHost

#endif
