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

    /** The names, as they are now. */
    QStringList names() const;

    /**
     * Adds a printer that the system does not list, as one in another network. An empty name, or
     * one that is there already, is not added and answers false.
     */
    bool add(const QString& name);

    /**
     * The state of an entry, asked anew each time. A system printer that has gone is offline and
     * unavailable; so is a stopped one, and the PDF file while its folder cannot be written to. A
     * printer that refuses jobs is unavailable.
     */
    PrinterState state(const QString& name) const;

    /** Fills a panel with all printers; the one it had stays selected, else the PDF file is. */
    void fill(PrintWidgetInterface& panel) const;

    /** Shows location and status of the panel's selected printer in the panel. */
    void showState(PrintWidgetInterface& panel) const;

private:
    PrinterState pdfFileState() const;

    const HostSettings& m_settings;
    QStringList m_added;
};

} // namespace SampleHost

#endif
