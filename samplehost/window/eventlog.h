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

/** A list of what the panels told the host, newest last. */
class EventLog : public QWidget
{
    Q_OBJECT

public:
    /** How many lines are kept; older ones go. */
    static constexpr int capacity = 500;

    /** An empty log. */
    explicit EventLog(QWidget* parent = nullptr);

    /**
     * Lists every signal of a panel with its arguments from now on, under the given name of the
     * panel, for example: Labels: widgetPrintSignal(0, 0, "1,4-5").
     */
    void watch(PrintWidget& panel, const QString& name);
    /** Likewise for a panel of documents. */
    void watch(MultiPagePrintWidget& panel, const QString& name);
    /** Likewise for a panel that prints one label. */
    void watch(QuickPrintWidget& panel, const QString& name);
    /** Likewise for a preview. */
    void watch(PrintPreviewDialog& preview, const QString& name);

    /** The lines, oldest first, without the time that is shown before each. */
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
