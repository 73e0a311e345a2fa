// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_DEMODOCUMENT_H
#define SAMPLEHOST_DEMODOCUMENT_H

#include <QtCore/QObject>
#include <QtCore/QTemporaryDir>

namespace SampleHost {

class LabelDesign;

/** A PDF document for demonstration, in a temporary file that is removed with the object. */
class DemoDocument : public QObject
{
    Q_OBJECT

public:
    /** Does not write the file yet. */
    explicit DemoDocument(QObject* parent = nullptr);

    /** The path of the file. */
    QString path() const;

    /** Writes up to twelve pages with a label each. Returns false if that fails. */
    bool write(const LabelDesign& design);

private:
    QTemporaryDir m_folder;
};

} // namespace SampleHost

#endif
