// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TESTS_CUPS_CUPSFIXTURE_H
#define TESTS_CUPS_CUPSFIXTURE_H

#include "cups/pagepictures.h"
#include "samplehost/printing/printerdirectory.h"
#include "samplehost/support/hostfixture.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

/** A host whose panel prints to the queues of a server. */
class CupsFixture : public HostFixture
{
public:
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
};

#endif
