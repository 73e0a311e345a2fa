// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CHECKEDSAVEFILE_H
#define SAMPLEHOST_CHECKEDSAVEFILE_H

#include <QtCore/QSaveFile>

namespace SampleHost {

/**
 * A QSaveFile that remembers its first failure.
 *
 * A plain one forgets: the next write that merely reaches the buffer clears the error, and commit()
 * does not notice that the last flush failed, so that a cut-off document would take its final name.
 */
class CheckedSaveFile : public QSaveFile
{
    Q_OBJECT

public:
    explicit CheckedSaveFile(const QString& path);

    /** Hands buffered data to the system. False if that, or any write before, failed. */
    bool flushChecked();

    /** Completes the file under its name. False, with nothing left behind, if any write failed. */
    bool commitChecked();

    /** The reason of the first failure, as the system words it. */
    QString failure() const;

protected:
    qint64 writeData(const char* data, qint64 size) override;

private:
    void remember();

    QString m_failure;
    bool m_failed = false;
};

} // namespace SampleHost

#endif
