// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/eventlog.h"

#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QTime>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace SampleHost {

namespace {

QString toText(int value)
{
    return QString::number(value);
}

QString toText(double value)
{
    return QString::number(value, 'g', 12);
}

QString toText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString toText(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString toText(const QSizeF& size)
{
    return toText(size.width()) + QStringLiteral(" x ") + toText(size.height());
}

QString toText(const QStringList& texts)
{
    QStringList parts;
    for (const QString& text : texts) {
        parts.append(toText(text));
    }
    return QLatin1Char('[') + parts.join(QStringLiteral(", ")) + QLatin1Char(']');
}

/** A slot for any arguments that adds "panel: signal(arguments)" to the log. */
auto logger(EventLog* log, const QString& panel, const char* signal)
{
    const QString head = panel + QStringLiteral(": ") + QLatin1String(signal);
    return [log, head](const auto&... arguments) {
        const QStringList parts{toText(arguments)...};
        log->add(head + QLatin1Char('(') + parts.join(QStringLiteral(", ")) + QLatin1Char(')'));
    };
}

} // namespace

EventLog::EventLog(QWidget* parent) : QWidget(parent)
{
    m_list = new QListWidget;
    m_list->setObjectName(QStringLiteral("eventList"));
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

void EventLog::watch(PrintWidget& panel, const QString& name)
{
    watchRequests(panel, name);
    watchSupply(panel, name);
    connect(&panel, &PrintWidget::ammoniaPrintTagChanged, this,
            logger(this, name, "ammoniaPrintTagChanged"));
    connect(&panel, &PrintWidget::testPrintError, this, logger(this, name, "testPrintError"));
}

void EventLog::watch(MultiPagePrintWidget& panel, const QString& name)
{
    using Panel = MultiPagePrintWidget;
    watchRequests(panel, name);
    watchSupply(panel, name);
    connect(&panel, &Panel::printFormFillChangedSignal, this,
            logger(this, name, "printFormFillChangedSignal"));
    connect(&panel, &Panel::fitToPageChangedSignal, this,
            logger(this, name, "fitToPageChangedSignal"));
    connect(&panel, &Panel::startPageChangedSignal, this,
            logger(this, name, "startPageChangedSignal"));
    connect(&panel, &Panel::orientationChangedSignal, this,
            logger(this, name, "orientationChangedSignal"));
}

void EventLog::watch(QuickPrintWidget& panel, const QString& name)
{
    watchRequests(panel, name);
    watchSupply(panel, name);
    connect(&panel, &QuickPrintWidget::resizeSignal, this, logger(this, name, "resizeSignal"));
}

void EventLog::watch(PrintPreviewDialog& preview, const QString& name)
{
    using Preview = PrintPreviewDialog;
    connect(&preview, &Preview::previewPrintSignal, this, logger(this, name, "previewPrintSignal"));
    connect(&preview, &Preview::orientationChangedSignal, this,
            logger(this, name, "orientationChangedSignal"));
    connect(&preview, &Preview::popupHideSignal, this, logger(this, name, "popupHideSignal"));
}

void EventLog::watchRequests(PrintWidgetInterface& panel, const QString& name)
{
    connect(&panel, &PrintWidgetInterface::widgetPrintSignal, this,
            logger(this, name, "widgetPrintSignal"));
    connect(&panel, &PrintWidgetInterface::printPreviewSignal, this,
            logger(this, name, "printPreviewSignal"));
    connect(&panel, &PrintWidgetInterface::openPreferencesSignal, this,
            logger(this, name, "openPreferencesSignal"));
    connect(&panel, &PrintWidgetInterface::currentPrinterSelectionChanged, this,
            logger(this, name, "currentPrinterSelectionChanged"));
    connect(&panel, &PrintWidgetInterface::openModuleSignal, this,
            logger(this, name, "openModuleSignal"));
    connect(&panel, &PrintWidgetInterface::focusLost, this, logger(this, name, "focusLost"));
    connect(&panel, &PrintWidgetInterface::printWidgetShowSignal, this,
            logger(this, name, "printWidgetShowSignal"));
}

void EventLog::watchSupply(PrintWidgetInterface& panel, const QString& name)
{
    connect(&panel, &PrintWidgetInterface::supplyWidthChangedSignal, this,
            logger(this, name, "supplyWidthChangedSignal"));
    connect(&panel, &PrintWidgetInterface::supplyColorsChangedSignal, this,
            logger(this, name, "supplyColorsChangedSignal"));
    connect(&panel, &PrintWidgetInterface::tinyLadderSupplyChangedSignal, this,
            logger(this, name, "tinyLadderSupplyChangedSignal"));
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
