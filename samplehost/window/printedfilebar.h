// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTEDFILEBAR_H
#define SAMPLEHOST_PRINTEDFILEBAR_H

#include <QtWidgets/QWidget>

class QToolButton;

namespace SampleHost {

/** Buttons that open the file of the last job, or its folder, with the programs of the system. */
class PrintedFileBar : public QWidget
{
    Q_OBJECT

public:
    /** A hidden bar. */
    explicit PrintedFileBar(QWidget* parent = nullptr);

    /** Shows the buttons for a file. */
    void offer(const QString& path);

    /** Hides the buttons. */
    void withdraw();

Q_SIGNALS:
    /** The system cannot open the file; reason says why, for the user. */
    void failed(const QString& reason);

private:
    QToolButton* addButton(const QString& name, const QString& text, const QKeySequence& keys);
    void openFile();
    void showInFolder();
    void openUrl(const QString& path, const QString& problem);

    QString m_path;
    QToolButton* m_openButton = nullptr;
    QToolButton* m_folderButton = nullptr;
};

} // namespace SampleHost

#endif
