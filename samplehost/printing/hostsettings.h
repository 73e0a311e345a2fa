// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_HOSTSETTINGS_H
#define SAMPLEHOST_HOSTSETTINGS_H

#include "samplehost/print/printrequest.h"

#include <QtCore/QObject>
#include <QtCore/QSizeF>
#include <QtCore/QString>

namespace SampleHost {

/** The paper that sheets are laid out on. */
enum class Paper {
    LabelSize, ///< As large as the label, or as the labels of an N-up sheet.
    A4,
    Letter
};

/** The name of a paper for the user. */
QString paperName(Paper paper);

/** The size of a paper in millimetres; empty for Paper::LabelSize. */
QSizeF paperSizeMm(Paper paper);

/** What the user decided about the output, for all pages of the host. */
class HostSettings : public QObject
{
    Q_OBJECT

public:
    /** Settings for a PDF file "labels.pdf" in the user's documents folder, one label a page. */
    explicit HostSettings(QObject* parent = nullptr);

    /** The folder that files are printed into. */
    QString outputFolder() const { return m_outputFolder; }
    /** The name of the PDF file in that folder. */
    QString outputFileName() const { return m_outputFileName; }
    /** Folder and file name together. */
    QString outputPath() const;
    Paper paper() const { return m_paper; }
    /** How many labels go on a sheet. */
    NupLayout nup() const { return m_nup; }
    /** Whether sizes are shown in millimetres instead of inches. */
    bool isMetric() const { return m_metric; }
    /** The printer that was chosen last, in whichever panel. Not kept for the next start. */
    QString printer() const { return m_printer; }
    /** The document that was opened last; empty if none was. */
    QString recentDocument() const { return m_recentDocument; }

    /** Whether a text can be the name of a file, without a folder in it. */
    static bool isFileName(const QString& name);

    /** Sets the folder; an empty one changes nothing. A relative one counts from the current
     * folder. */
    void setOutputFolder(const QString& folder);
    /** Sets the file name; an empty one, or one with a folder in it, changes nothing. */
    void setOutputFileName(const QString& fileName);
    /** Sets folder and file name from one path; an empty one changes nothing. */
    void setOutputPath(const QString& path);
    void setPaper(Paper paper);
    /** Sets the layout of sheets, brought into its bounds. */
    void setNup(const NupLayout& nup);
    void setMetric(bool metric);
    void setPrinter(const QString& printer);
    /** Keeps an opened document in mind; nobody is told. */
    void setRecentDocument(const QString& path);

    /** Names the file of the records; empty for none. */
    void setDataFile(const QString& path) { m_dataFile = path; }
    /** Names the document that is open; empty for none. */
    void setOpenDocument(const QString& path) { m_openDocument = path; }
    /** Why nothing may be written in the place of a file, in words for the user: the host reads
     * it. Empty for any other. */
    QString whyNotReplace(const QString& path) const;

    /** Reads what save() wrote for this user; what was never saved stays. */
    void load();
    /** Keeps the settings for the next start of the program. False, with those kept before as they
     * were, if they cannot be written. */
    bool save() const;

Q_SIGNALS:
    /** Any of the settings but the printer has a new value. */
    void changed();
    /** Another printer is the one chosen last. */
    void printerChanged(const QString& printer);

private:
    QString m_outputFolder;
    QString m_outputFileName;
    Paper m_paper = Paper::LabelSize;
    NupLayout m_nup;
    QString m_printer;
    QString m_recentDocument;
    QString m_dataFile;
    QString m_openDocument;
    bool m_metric = false;
};

} // namespace SampleHost

#endif
