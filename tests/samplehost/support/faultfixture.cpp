// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/faultfixture.h"

#include "samplehost/pages/catalogpage.h"

#include <printpanels/quickprintwidget.h>

#include <QtCore/QFile>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

using namespace SampleHost;

namespace {

constexpr int documentPages = 300;

} // namespace

bool LabelFaultFixture::choose(Printout printout)
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
    return false;
}

std::optional<LabelFaultFixture::Outcome> LabelFaultFixture::print(Printout printout)
{
    const std::optional<Outcome> outcome = printOne(printout);
    if (outcome) {
        shown = shownMessage();
        delete messageBox();
    }
    return outcome;
}

std::optional<LabelFaultFixture::Outcome> LabelFaultFixture::printOne(Printout printout)
{
    if (printout != Printout::Item) {
        return HostFixture::print();
    }
    CatalogPage& catalog = window->catalogPage();
    return printWith(catalog.controller(),
                     catalog.panel().findChild<QWidget*>(QStringLiteral("printButton")));
}

QWidget& LabelFaultFixture::panelOf(Printout printout) const
{
    if (printout == Printout::Item) {
        return window->catalogPage().panel();
    }
    return panel();
}

QWidget& LabelFaultFixture::pageOf(Printout printout) const
{
    if (printout == Printout::Item) {
        return window->catalogPage();
    }
    return labels();
}

QString LabelFaultFixture::choices(Printout printout) const
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

QString LabelFaultFixture::outputOf(Printout printout) const
{
    const HostSettings& settings = window->settings();
    return printout == Printout::TestFile
               ? settings.outputFolder() + QStringLiteral("/guest/logs/printTest_001.prn")
               : settings.outputPath();
}

int LabelFaultFixture::pagesOf(Printout printout)
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
