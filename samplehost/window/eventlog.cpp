// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/eventlog.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QSizeF>
#include <QtCore/QTime>
#include <QtGui/QTextBlockFormat>
#include <QtGui/QTextCursor>
#include <QtWidgets/QDialog>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QVBoxLayout>

namespace SampleHost {

namespace {

constexpr int continuationIndent = 12;

/** A text without line breaks, each of which would begin a new line of the log. */
QString oneLine(QString text)
{
    for (const char16_t lineBreak : {u'\n', u'\r', u'\u2028', u'\u2029'}) {
        text.replace(QChar(lineBreak), QLatin1Char(' '));
    }
    return text;
}

QString toText(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', 12);
    case QMetaType::QString:
        return QLatin1Char('"') + value.toString() + QLatin1Char('"');
    case QMetaType::QSizeF:
        return toText(value.toSizeF().width()) + QStringLiteral(" x ") +
               toText(value.toSizeF().height());
    case QMetaType::QStringList: {
        QStringList parts;
        for (const QString& text : value.toStringList()) {
            parts.append(toText(text));
        }
        return QLatin1Char('[') + parts.join(QStringLiteral(", ")) + QLatin1Char(']');
    }
    default:
        return value.toString();
    }
}

/** Receives signals with any arguments, which a slot that moc knows cannot. */
class SignalReceiver : public QObject
{
public:
    SignalReceiver(const QObject& sender, int firstMethod, const QString& name, EventLog& log)
        : QObject(&log), m_name(name), m_log(log)
    {
        const int ownMethods = QObject::staticMetaObject.methodCount();
        for (int i = firstMethod; i < sender.metaObject()->methodCount(); ++i) {
            const QMetaMethod method = sender.metaObject()->method(i);
            if (method.methodType() == QMetaMethod::Signal) {
                QMetaObject::connect(&sender, i, this, ownMethods + int(m_signals.size()));
                m_signals.append(method);
            }
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (call != QMetaObject::InvokeMetaMethod || id < 0 || id >= m_signals.size()) {
            return id;
        }
        const QMetaMethod& signal = m_signals.at(id);
        QStringList parts;
        for (int i = 0; i < signal.parameterCount(); ++i) {
            parts.append(toText(QVariant(signal.parameterMetaType(i), arguments[i + 1])));
        }
        m_log.add(m_name + QStringLiteral(": ") + QString::fromLatin1(signal.name()) +
                  QLatin1Char('(') + parts.join(QStringLiteral(", ")) + QLatin1Char(')'));
        return -1;
    }

private:
    QString m_name;
    EventLog& m_log;
    QList<QMetaMethod> m_signals;
};

} // namespace

EventLog::EventLog(QWidget* parent) : QWidget(parent)
{
    m_view = new QTextEdit;
    m_view->setObjectName(QStringLiteral("eventList"));
    m_view->setAccessibleName(tr("Panel events"));
    m_view->setReadOnly(true);
    m_view->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->setFrameShape(QFrame::NoFrame);
    // A list of records has no blank at which it could be wrapped.
    m_view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_view->document()->setMaximumBlockCount(capacity);
    auto* clearButton = new QPushButton(tr("Clear"));
    clearButton->setObjectName(QStringLiteral("clearEventsButton"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(m_view, 1);
    column->addWidget(clearButton, 0, Qt::AlignRight);
    connect(clearButton, &QPushButton::clicked, this, &EventLog::clear);
}

void EventLog::watch(const QWidget& panel, const QString& name)
{
    const bool isDialog = qobject_cast<const QDialog*>(&panel) != nullptr;
    const QMetaObject& base = isDialog ? QDialog::staticMetaObject : QWidget::staticMetaObject;
    new SignalReceiver(panel, base.methodCount(), name, *this);
}

void EventLog::add(const QString& line)
{
    m_lines.append(line);
    while (m_lines.size() > capacity) {
        m_lines.removeFirst();
    }
    // Shows where a line begins that is wrapped.
    QTextBlockFormat format;
    format.setLeftMargin(continuationIndent);
    format.setTextIndent(-continuationIndent);
    QTextCursor cursor(m_view->document());
    cursor.movePosition(QTextCursor::End);
    if (m_view->document()->isEmpty()) {
        cursor.setBlockFormat(format);
    } else {
        cursor.insertBlock(format);
    }
    cursor.insertText(QTime::currentTime().toString(QStringLiteral("hh:mm:ss  ")) + oneLine(line));
    m_view->verticalScrollBar()->setValue(m_view->verticalScrollBar()->maximum());
}

void EventLog::clear()
{
    m_lines.clear();
    m_view->clear();
}

} // namespace SampleHost
