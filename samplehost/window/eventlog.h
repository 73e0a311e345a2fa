// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_EVENTLOG_H
#define SAMPLEHOST_EVENTLOG_H

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QTextEdit;

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
     * Logs every signal of a panel or preview, without those of Qt's base classes, with its
     * arguments from now on, after the given name. For example:
     * Labels: widgetPrintSignal(0, 0, "1,4-5").
     */
    void watch(const QWidget& panel, const QString& name);

    /** The lines without their times, oldest first. */
    QStringList lines() const { return m_lines; }

public Q_SLOTS:
    /** Adds a line. */
    void add(const QString& line);

    /** Removes all lines. */
    void clear();

private:
    QStringList m_lines;
    QTextEdit* m_view = nullptr;
};

} // namespace SampleHost

#endif
