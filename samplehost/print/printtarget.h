// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTTARGET_H
#define SAMPLEHOST_PRINTTARGET_H

#include "samplehost/print/outputfile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QPageSize>

#include <memory>

class QPagedPaintDevice;
class QPdfWriter;
class QPrinter;
class QTemporaryDir;

namespace SampleHost {

/**
 * The destination of a print job. A job calls open() once, paints, and ends with commit() or
 * discard(); destroying a target that was not committed discards its output.
 */
class PrintTarget
{
public:
    PrintTarget() = default;
    virtual ~PrintTarget();

    /**
     * Prepares the target for pages of sheetMm (millimetres) without margins. Returns the device to
     * paint on, which the target owns, or null with the reason in problem.
     */
    virtual QPagedPaintDevice* open(const QSizeF& sheetMm, QString& problem) = 0;

    /** Whether everything painted so far was written; if not, the reason is in problem. */
    virtual bool isHealthy(QString& problem) = 0;

    /** Completes the output after painting has ended. False with the reason in problem. */
    virtual bool commit(QString& problem) = 0;

    /**
     * Prepares for discard() while painting has not ended. Returns false if pages that were already
     * painted may be printed all the same, which some printing systems cannot prevent.
     */
    virtual bool abort() = 0;

    /** Discards the output after painting has ended. */
    virtual void discard() = 0;

    /** The destination as a text for the user. */
    virtual QString description() const = 0;

    /** The path of the file that commit() makes; empty, the default, if it makes none. */
    virtual QString file() const;

    /** The resolution of the open device in dots per inch. */
    static constexpr int resolution = 600;

private:
    Q_DISABLE_COPY_MOVE(PrintTarget)
};

/** A PDF file, which gets its name only when it is complete. */
class PdfTarget : public PrintTarget
{
public:
    /** Prints to path; title becomes the title of the document. */
    explicit PdfTarget(const QString& path, const QString& title = QString(),
                       ExistingFile existing = ExistingFile::Replaced);
    ~PdfTarget() override;

    QPagedPaintDevice* open(const QSizeF& sheetMm, QString& problem) override;
    bool isHealthy(QString& problem) override;
    bool commit(QString& problem) override;
    bool abort() override;
    void discard() override;
    QString description() const override;
    QString file() const override { return m_file.path(); }

private:
    OutputFile m_file;
    QString m_title;
    std::unique_ptr<QPdfWriter> m_writer;
};

/**
 * A printer of the system. With CUPS, the job is written to a file and submitted as a whole, so
 * that a discarded job never reaches the queue, and the response of the queue is known. Without it,
 * the system gets every page as it is painted.
 */
class PrinterTarget : public PrintTarget
{
    Q_DECLARE_TR_FUNCTIONS(PrinterTarget)

public:
    /** Prints to the printer of that name; title becomes the name of the job in its queue. */
    explicit PrinterTarget(const QString& printerName, const QString& title = QString());
    ~PrinterTarget() override;

    QPagedPaintDevice* open(const QSizeF& sheetMm, QString& problem) override;
    bool isHealthy(QString& problem) override;
    bool commit(QString& problem) override;
    bool abort() override;
    void discard() override;
    QString description() const override;

private:
    bool openSpool(QString& problem);
    QString spoolPath() const;
    bool submit(QString& problem);
    void fitPaperToPage();

    QString m_printerName;
    QString m_title;
    std::unique_ptr<QPrinter> m_printer;
    /** The folder of the file to submit; null if the system gets every page as it is painted. */
    std::unique_ptr<QTemporaryDir> m_spool;
    /** A paper that every page so far fits on; a job has only one. */
    QPageSize m_paper;
    QList<QPageSize> m_knownPapers;
};

} // namespace SampleHost

#endif
