// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTERDIRECTORY_H
#define SAMPLEHOST_PRINTERDIRECTORY_H

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>

class PrintWidgetInterface;

namespace SampleHost {

class HostSettings;

/** What a panel shows of a printer. */
struct PrinterState
{
    QString location;
    bool offline = false;
    bool remote = false;
    bool unavailable = false;
};

/** The printers that the host can print to: a PDF file first, then those of the system. */
class PrinterDirectory
{
    Q_DECLARE_TR_FUNCTIONS(PrinterDirectory)

public:
    /** The settings must outlive the directory. */
    explicit PrinterDirectory(const HostSettings& settings);

    /** The name of the entry that prints to a PDF file. */
    static QString pdfFileName();

    /** The current names. */
    QStringList names() const;

    /**
     * Adds a printer that the system does not list, such as one in another network. Returns false
     * for an empty name and for one that exists.
     */
    bool add(const QString& name);

    /**
     * The current state of an entry. A printer that no longer exists or is stopped is offline and
     * unavailable, and so is the PDF file if its folder is not writable. A printer that rejects
     * jobs is unavailable.
     */
    PrinterState state(const QString& name) const;

    /** Fills a panel with all printers. Its selection is kept, or becomes the PDF file. */
    void fill(PrintWidgetInterface& panel) const;

    /** Shows location and status of the selected printer in a panel. */
    void showState(PrintWidgetInterface& panel) const;

private:
    PrinterState pdfFileState() const;

    const HostSettings& m_settings;
    QStringList m_added;
};

} // namespace SampleHost

#endif
