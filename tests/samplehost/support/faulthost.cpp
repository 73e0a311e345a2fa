// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/faulthost.h"

#include "samplehost/pages/catalogpage.h"

#include <printpanels/quickprintwidget.h>

#include <QtCore/QFile>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

namespace {

constexpr int documentPages = 300;

} // namespace

bool FaultHost::choose(Printout printout)
{
    switch (printout) {
    case Printout::Labels:
        typeList(QStringLiteral("7,1-3"));
        panel().setNumberOfCopies(2);
        return true;
    case Printout::Sheets:
        window->settings().setNup(NupLayout{2, 2});
        typeList(QStringLiteral("1-9"));
        click("sequencingRadio");
        return true;
    case Printout::TestFile:
        click("printToFileCheck");
        typeList(QStringLiteral("3"));
        return true;
    case Printout::Item:
        window->setCurrentPage(window->catalogPage());
        window->catalogPage().setCurrentItem(1);
        return InputSimulation::type(
            panelOf(printout).findChild<QWidget*>(QStringLiteral("copiesSpinBox")),
            QStringLiteral("3"));
    case Printout::Document:
        break;
    }
    window->setCurrentPage(page());
    return openNumbered(documentPages) && showDialog() &&
           (typePages(QStringLiteral("300,1-299")), true);
}

std::optional<Outcome> FaultHost::print(Printout printout)
{
    if (printout == Printout::Document) {
        return follow(page().controller(), widget("PrintButton"));
    }
    if (printout == Printout::Item) {
        CatalogPage& catalog = window->catalogPage();
        return follow(catalog.controller(),
                      catalog.panel().findChild<QWidget*>(QStringLiteral("printButton")));
    }
    return follow(labels().controller(), find<QWidget>("PrintButton"));
}

template <typename Controller>
std::optional<Outcome> FaultHost::follow(Controller& controller, QWidget* button)
{
    QSignalSpy ended(&controller, &Controller::jobEnded);
    InputSimulation::processEvents();
    QTest::mouseClick(button, Qt::LeftButton);
    if (ended.isEmpty() && (!controller.isPrinting() || !ended.wait(60000))) {
        return std::nullopt;
    }
    message = ended.at(0).at(1).toString();
    shown = shownMessage();
    if (auto* box = window->findChild<QMessageBox*>(QStringLiteral("messageBox"))) {
        delete box;
    }
    return ended.at(0).at(0).value<Outcome>();
}

QWidget& FaultHost::panelOf(Printout printout) const
{
    switch (printout) {
    case Printout::Item:
        return window->catalogPage().panel();
    case Printout::Document:
        return documentPanel();
    default:
        return panel();
    }
}

QWidget& FaultHost::pageOf(Printout printout) const
{
    switch (printout) {
    case Printout::Item:
        return window->catalogPage();
    case Printout::Document:
        return page();
    default:
        return labels();
    }
}

QString FaultHost::choices(Printout printout) const
{
    const QWidget& panel = panelOf(printout);
    QStringList texts;
    for (const auto* edit : panel.findChildren<QLineEdit*>()) {
        texts.append(edit->text());
    }
    for (const auto* combo : panel.findChildren<QComboBox*>()) {
        texts.append(combo->currentText());
    }
    for (const auto* button : panel.findChildren<QAbstractButton*>()) {
        texts.append(QString::number(int(button->isChecked())) +
                     QString::number(int(button->isEnabled())));
    }
    return texts.join(QLatin1Char('|'));
}

QString FaultHost::outputOf(Printout printout) const
{
    const HostSettings& settings = window->settings();
    return printout == Printout::TestFile
               ? settings.outputFolder() + QStringLiteral("/guest/logs/printTest_001.prn")
               : settings.outputPath();
}

int FaultHost::pagesOf(Printout printout)
{
    switch (printout) {
    case Printout::Labels:
        return 8;
    case Printout::Document:
        return documentPages;
    case Printout::TestFile:
        return 1;
    default:
        return 3;
    }
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}
