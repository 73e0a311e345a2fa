// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TESTS_CUPS_CUPSHOST_H
#define TESTS_CUPS_CUPSHOST_H

#include "cups/pagepictures.h"
#include "samplehost/printing/printerdirectory.h"
#include "samplehost/support/hostfixture.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>

#include <optional>

/** A host whose panel prints to the queues of a server. */
class CupsHost : public HostFixture
{
public:
    using Outcome = SampleHost::PrintJob::Outcome;

    /** Picks a printer in the panel's list; false when it is not there. */
    bool choosePrinter(const QString& name) const
    {
        return SampleHost::InputSimulation::select(find<QComboBox>("PrinterListCombo"), name);
    }

    bool choosePdfFile() const
    {
        return choosePrinter(SampleHost::PrinterDirectory::pdfFileName());
    }

    /** The printers that the panel offers. */
    QStringList offeredPrinters() const
    {
        const auto* combo = find<QComboBox>("PrinterListCombo");
        QStringList names;
        for (int i = 0; i < combo->count(); ++i) {
            names.append(combo->itemText(i));
        }
        return names;
    }

    QString shownStatus() const { return find<QLabel>("statusLabel")->text(); }
    QString shownLocation() const { return find<QLabel>("locationLabel")->text(); }

    /** The text of the message that the host shows; empty without one. */
    QString shownMessage() const
    {
        const auto* box = window->findChild<QMessageBox*>(QStringLiteral("messageBox"));
        return box != nullptr ? box->text() : QString();
    }

    /** Presses Print and waits for the end of the job; nothing when there was no job. */
    std::optional<Outcome> print()
    {
        QSignalSpy ended(&labels().controller(), &SampleHost::PrintController::jobEnded);
        click("PrintButton");
        if (!labels().controller().isPrinting() && ended.isEmpty()) {
            return std::nullopt;
        }
        if (ended.isEmpty() && !ended.wait(60000)) {
            return std::nullopt;
        }
        message = ended.at(0).at(1).toString();
        return ended.at(0).at(0).value<Outcome>();
    }

    /** How the last job ended, in words. */
    QString message;
};

#endif
