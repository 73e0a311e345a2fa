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

/** What happens before a job would replace a file of an earlier one. */
enum class ReplacePolicy {
    Ask,     ///< The user is asked.
    Replace, ///< The file is replaced.
    Refuse   ///< The job fails.
};

/** The settings for the output of all pages. */
class HostSettings : public QObject
{
    Q_OBJECT

public:
    /** Settings for a PDF file "labels.pdf" in the user's documents folder, one label per page. */
    explicit HostSettings(QObject* parent = nullptr);

    /** The folder of the output files. */
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
    /** The code of the language for the next start; empty for that of the system. */
    QString language() const { return m_language; }
    /** The printer that was selected last in any panel. */
    QString printer() const { return m_printer; }
    /** The printer that load() found, which may be gone; empty if there is none. */
    QString rememberedPrinter() const { return m_rememberedPrinter; }
    /** The document that was opened last; empty if there is none. */
    QString recentDocument() const { return m_recentDocument; }

    /** Whether a text is a valid file name without a folder. */
    static bool isFileName(const QString& name);

    /** Sets the folder; an empty one is ignored. A relative path is resolved. */
    void setOutputFolder(const QString& folder);
    /** Sets the file name; an empty one, or one with a folder, is ignored. */
    void setOutputFileName(const QString& fileName);
    /** Sets folder and file name from a path; an empty one is ignored. */
    void setOutputPath(const QString& path);
    void setPaper(Paper paper) { set(m_paper, paper); }
    /** Sets the layout of sheets, bounded. */
    void setNup(const NupLayout& nup) { set(m_nup, nup.bounded()); }
    void setMetric(bool metric) { set(m_metric, metric); }
    void setLanguage(const QString& code) { set(m_language, code); }
    void setPrinter(const QString& printer);
    /** Sets the document that was opened last, without a signal. */
    void setRecentDocument(const QString& path);

    /** Sets the file of the records, which must not be overwritten; empty for none. */
    void setDataFile(const QString& path) { m_dataFile = path; }
    /** Sets the open document, which must not be overwritten; empty for none. */
    void setOpenDocument(const QString& path) { m_openDocument = path; }
    QString openDocument() const { return m_openDocument; }
    /** Why a file must not be overwritten, for the user; empty if it may. */
    QString overwriteProblem(const QString& path) const;

    /** What happens to files of earlier jobs. It is not stored. */
    ReplacePolicy replacePolicy() const { return m_replacePolicy; }
    void setReplacePolicy(ReplacePolicy policy) { m_replacePolicy = policy; }
    /** Why a file of an earlier job is not replaced, for the user of the command line. */
    static QString refusal(const QString& path);

    /** Loads what save() stored for this user. The selected printer stays. */
    void load();
    /** Stores the settings. Returns false, without a change to the stored ones, if that fails. */
    bool save() const;

Q_SIGNALS:
    /** A setting other than the printer changed. */
    void changed();
    /** The printer that was selected last changed. */
    void printerChanged(const QString& printer);

private:
    template <typename Value>
    void set(Value& member, const Value& value)
    {
        if (!(value == member)) {
            member = value;
            Q_EMIT changed();
        }
    }

    QString m_outputFolder;
    QString m_outputFileName;
    Paper m_paper = Paper::LabelSize;
    NupLayout m_nup;
    QString m_language;
    QString m_printer;
    QString m_rememberedPrinter;
    QString m_recentDocument;
    QString m_dataFile;
    QString m_openDocument;
    bool m_metric = false;
    ReplacePolicy m_replacePolicy = ReplacePolicy::Ask;
};

} // namespace SampleHost

#endif
