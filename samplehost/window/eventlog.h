// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_EVENTLOG_H
#define SAMPLEHOST_EVENTLOG_H

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QListWidget;

class MultiPagePrintWidget;
class PrintPreviewDialog;
class PrintWidget;
class PrintWidgetInterface;
class QuickPrintWidget;

namespace SampleHost {

/** A list of the signals that the panels emitted, newest last. */
class EventLog : public QWidget
{
    Q_OBJECT

public:
    /** The maximum number of lines; the oldest are removed. */
    static constexpr int capacity = 500;

    /** An empty log. */
    explicit EventLog(QWidget* parent = nullptr);

    /**
     * Logs every signal of a panel with its arguments from now on, after the given name of the
     * panel, for example: Labels: widgetPrintSignal(0, 0, "1,4-5").
     */
    void watch(PrintWidget& panel, const QString& name);
    /** Logs the signals of a multi-page panel. */
    void watch(MultiPagePrintWidget& panel, const QString& name);
    /** Logs the signals of a quick print panel. */
    void watch(QuickPrintWidget& panel, const QString& name);
    /** Logs the signals of a preview. */
    void watch(PrintPreviewDialog& preview, const QString& name);

    /** The lines without their times, oldest first. */
    QStringList lines() const;

public Q_SLOTS:
    /** Adds a line. */
    void add(const QString& line);

    /** Removes all lines. */
    void clear();

private:
    void watchRequests(PrintWidgetInterface& panel, const QString& name);
    void watchSupply(PrintWidgetInterface& panel, const QString& name);

    QListWidget* m_list = nullptr;
};

} // namespace SampleHost

#endif
