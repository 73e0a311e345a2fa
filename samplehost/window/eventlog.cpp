// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/eventlog.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QSizeF>
#include <QtCore/QTime>
#include <QtWidgets/QDialog>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace SampleHost {

namespace {

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
    m_list = new QListWidget;
    m_list->setObjectName(QStringLiteral("eventList"));
    m_list->setAccessibleName(tr("Panel events"));
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setWordWrap(true);
    m_list->setAlternatingRowColors(true);
    auto* clearButton = new QPushButton(tr("Clear"));
    clearButton->setObjectName(QStringLiteral("clearEventsButton"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(m_list, 1);
    column->addWidget(clearButton, 0, Qt::AlignRight);
    connect(clearButton, &QPushButton::clicked, this, &EventLog::clear);
}

void EventLog::watch(const QWidget& panel, const QString& name)
{
    const bool isDialog = qobject_cast<const QDialog*>(&panel) != nullptr;
    const QMetaObject& base = isDialog ? QDialog::staticMetaObject : QWidget::staticMetaObject;
    new SignalReceiver(panel, base.methodCount(), name, *this);
}

QStringList EventLog::lines() const
{
    QStringList lines;
    for (int row = 0; row < m_list->count(); ++row) {
        lines.append(m_list->item(row)->data(Qt::UserRole).toString());
    }
    return lines;
}

void EventLog::add(const QString& line)
{
    auto* item =
        new QListWidgetItem(QTime::currentTime().toString(QStringLiteral("hh:mm:ss  ")) + line);
    item->setData(Qt::UserRole, line);
    m_list->addItem(item);
    while (m_list->count() > capacity) {
        delete m_list->takeItem(0);
    }
    m_list->scrollToBottom();
}

void EventLog::clear()
{
    m_list->clear();
}

} // namespace SampleHost
