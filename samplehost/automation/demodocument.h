// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_DEMODOCUMENT_H
#define SAMPLEHOST_DEMODOCUMENT_H

#include <QtCore/QObject>
#include <QtCore/QTemporaryDir>

namespace SampleHost {

class LabelDesign;

/** A PDF document for a first look, made anew; its file goes with the object. */
class DemoDocument : public QObject
{
    Q_OBJECT

public:
    /** Nothing is written yet. */
    explicit DemoDocument(QObject* parent = nullptr);

    /** The file. */
    QString path() const;

    /** Writes a document with a label on each page, a dozen at most. False if that failed. */
    bool write(const LabelDesign& design);

private:
    QTemporaryDir m_folder;
};

} // namespace SampleHost

#endif
