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
 * Where a print job goes. A job calls open() once, paints, and ends with commit() or discard();
 * destroying a target that was not committed discards it.
 */
class PrintTarget
{
public:
    PrintTarget() = default;
    virtual ~PrintTarget();

    /**
     * Makes the target ready for pages of sheetMm (millimetres) without margins. Returns the device
     * to paint on, which stays the target's own, or null with the reason in problem.
     */
    virtual QPagedPaintDevice* open(const QSizeF& sheetMm, QString& problem) = 0;

    /** Whether everything painted so far arrived; if not, the reason is in problem. */
    virtual bool isHealthy(QString& problem) = 0;

    /** Completes the output. Painting has ended. False with the reason in problem if that failed.
     */
    virtual bool commit(QString& problem) = 0;

    /**
     * Told before painting ends that the output is to be given up. Returns false when pages that
     * were already painted may come out all the same, which some printing systems cannot prevent.
     */
    virtual bool abort() = 0;

    /** Gives the output up. Painting has ended. */
    virtual void discard() = 0;

    /** Where the output went, as a text for the user. */
    virtual QString description() const = 0;

    /** Dots per inch that the open device paints with. */
    static constexpr int resolution = 600;

private:
    Q_DISABLE_COPY_MOVE(PrintTarget)
};

/** A PDF file, which takes its name only when it is complete. */
class PdfTarget : public PrintTarget
{
public:
    /** Prints to path; title becomes the title of the document. */
    explicit PdfTarget(const QString& path, const QString& title = QString());
    ~PdfTarget() override;

    QPagedPaintDevice* open(const QSizeF& sheetMm, QString& problem) override;
    bool isHealthy(QString& problem) override;
    bool commit(QString& problem) override;
    bool abort() override;
    void discard() override;
    QString description() const override;

private:
    OutputFile m_file;
    QString m_title;
    std::unique_ptr<QPdfWriter> m_writer;
};

/**
 * A printer of the system, by its name. Where there are queues the job is put together in a file
 * first and handed over as a whole, so a job that is given up never gets there, and what the queue
 * answers is known. Elsewhere the system gets every page as it is painted.
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
    void findRoomForPage();

    QString m_printerName;
    QString m_title;
    std::unique_ptr<QPrinter> m_printer;
    /** Where the job is put together; null where the system gets the pages at once. */
    std::unique_ptr<QTemporaryDir> m_spool;
    /** A paper that every page so far finds room on; a job has only one. */
    QPageSize m_paper;
    QList<QPageSize> m_knownPapers;
};

} // namespace SampleHost

#endif
