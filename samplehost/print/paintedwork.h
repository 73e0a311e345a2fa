// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PAINTEDWORK_H
#define SAMPLEHOST_PAINTEDWORK_H

#include "samplehost/print/printtarget.h"
#include "samplehost/print/printwork.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSizeF>
#include <QtGui/QPainter>

#include <memory>

namespace SampleHost {

/** The pages of a print job that are painted, one after another. */
class PageSource
{
public:
    PageSource() = default;
    virtual ~PageSource();

    /** The number of pages. It does not change. */
    virtual qint64 pageCount() const = 0;

    /** Why there is no page, in words for the user; empty, the default, for no special reason. */
    virtual QString problemText() const;

    /** The size of the sheet, in millimetres, that the target is opened with. */
    virtual QSizeF sheetSizeMm() const = 0;

    /**
     * Told before page, 0-based, is started on device, which may be given another page layout now.
     * Leaves the device as it is by default.
     */
    virtual void prepareDevice(QPagedPaintDevice& device, qint64 page);

    /**
     * Paints page, 0-based, on the device that painter is active on; the coordinates are the
     * device's dots from the top left corner of the sheet. False with the reason in problem.
     */
    virtual bool paint(QPainter& painter, QPagedPaintDevice& device, qint64 page,
                       QString& problem) = 0;

private:
    Q_DISABLE_COPY_MOVE(PageSource)
};

/** Paints pages on a target. */
class PaintedWork : public PrintWork
{
    Q_DECLARE_TR_FUNCTIONS(PaintedWork)

public:
    /** Without pages or without a target open() fails, with a reason. */
    PaintedWork(std::unique_ptr<PageSource> pages, std::unique_ptr<PrintTarget> target);
    ~PaintedWork() override;

    qint64 pageCount() const override;
    QString targetDescription() const override;
    QString file() const override;
    bool open(QString& problem) override;
    bool printPage(qint64 page, QString& problem) override;
    Completion complete(QString& problem) override;
    bool cancel() override;

private:
    std::unique_ptr<PageSource> m_pages;
    std::unique_ptr<PrintTarget> m_target;
    QPainter m_painter;
    QPagedPaintDevice* m_device = nullptr;
};

} // namespace SampleHost

#endif
