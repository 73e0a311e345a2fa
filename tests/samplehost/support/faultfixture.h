// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef FAULTFIXTURE_H
#define FAULTFIXTURE_H

#include "samplehost/support/hostfixture.h"

/** What the host can print, each by the widgets of its own page. */
enum class Printout { Labels, Sheets, TestFile, Item, Document };

/** A host in which something goes wrong while it prints anything but a document. */
class LabelFaultFixture : public virtual HostFixture
{
public:
    LabelFaultFixture() : HostFixture(true) {}
    virtual ~LabelFaultFixture() = default;

    /** Chooses and types what is to be printed. False if that failed. */
    virtual bool choose(Printout printout);

    /** Presses Print, waits for the end of the job and closes the message that the user gets. */
    std::optional<Outcome> print(Printout printout);

    /** The text of the message that the user got; empty if there was none. */
    QString shown;

    /** Everything that stands in the fields of the panel, and what is checked. */
    QString choices(Printout printout) const;

    /** The page of the host that prints it. */
    virtual QWidget& pageOf(Printout printout) const;

    /** The file that is printed to. */
    QString outputOf(Printout printout) const;

    /** How many pages it has then. */
    static int pagesOf(Printout printout);

protected:
    virtual QWidget& panelOf(Printout printout) const;
    /** Presses Print and waits for the end of the job. */
    virtual std::optional<Outcome> printOne(Printout printout);

private:
    Q_DISABLE_COPY_MOVE(LabelFaultFixture)
};

/** The contents of a file; empty if it cannot be read. */
QByteArray contentsOf(const QString& path);

/** The names of everything in a folder, hidden ones too. */
QStringList namesIn(const QString& folder);

#endif
