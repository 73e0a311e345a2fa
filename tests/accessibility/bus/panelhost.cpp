// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// A host for drivepanels.py: shows a print panel and a preview popup, and writes what they report
// to the standard output, until the standard input ends.
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>

#include <QtCore/QSocketNotifier>
#include <QtCore/QTextStream>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <unistd.h>

namespace {

void report(const QString& line)
{
    QTextStream(stdout) << line << Qt::endl;
}

void setUpPanel(PrintWidget& panel)
{
    panel.setWindowTitle(QStringLiteral("Panel"));
    panel.updateListOfPrinters({QStringLiteral("Alpha"), QStringLiteral("Beta")}, 0);
    panel.setRangeValues(0, 9, true);
    panel.showSupplyInfo({QStringLiteral("#000000"), QStringLiteral("#ffffff")}, false, 4.0, 0,
                         true);
    panel.enableAllButtons();
    QObject::connect(&panel, &PrintWidget::widgetPrintSignal, &panel,
                     [&panel](int start, int end, const QString& list) {
                         report(QStringLiteral("print %1 %2 '%3' copies %4")
                                    .arg(start)
                                    .arg(end)
                                    .arg(list)
                                    .arg(panel.getNumberOfCopies()));
                     });
    QObject::connect(&panel, &PrintWidget::tinyLadderSupplyChangedSignal, &panel,
                     [](bool tiny) { report(QStringLiteral("ladder %1").arg(tiny)); });
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QSocketNotifier end(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&end, &QSocketNotifier::activated, &app, &QCoreApplication::quit);

    PrintWidget panel(true, nullptr);
    setUpPanel(panel);
    panel.show();
    PrintPreviewDialog popup(nullptr, Qt::Window, QImage(300, 100, QImage::Format_RGB32),
                             QSizeF(3, 1), QSizeF(3, 1), true, true, false, 1, 1, QString());
    popup.setWindowTitle(QStringLiteral("Popup"));
    QObject::connect(&popup, &PrintPreviewDialog::orientationChangedSignal, &popup,
                     [](int id) { report(QStringLiteral("orientation %1").arg(id)); });
    popup.show();
    report(QStringLiteral("ready"));
    return QApplication::exec();
}
