// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef DOCUMENTFAULTFIXTURE_H
#define DOCUMENTFAULTFIXTURE_H

#include "samplehost/support/documentfixture.h"
#include "samplehost/support/faultfixture.h"

/** A host in which something goes wrong while it prints anything, a document too. */
class FaultFixture : public LabelFaultFixture, public DocumentFixture
{
public:
    FaultFixture() : HostFixture(true) {}

    using LabelFaultFixture::print;

    bool choose(Printout printout) override
    {
        if (printout != Printout::Document) {
            return LabelFaultFixture::choose(printout);
        }
        window->setCurrentPage(page());
        return openNumbered(pagesOf(printout)) && showDialog() &&
               (typePages(QStringLiteral("300,1-299")), true);
    }

    QWidget& pageOf(Printout printout) const override
    {
        return printout == Printout::Document ? page() : LabelFaultFixture::pageOf(printout);
    }

protected:
    QWidget& panelOf(Printout printout) const override
    {
        return printout == Printout::Document ? documentPanel()
                                              : LabelFaultFixture::panelOf(printout);
    }

    std::optional<Outcome> printOne(Printout printout) override
    {
        return printout == Printout::Document ? DocumentFixture::print()
                                              : LabelFaultFixture::printOne(printout);
    }
};

#endif
