// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CATALOGCOMMAND_H
#define SAMPLEHOST_CATALOGCOMMAND_H

#include <QtCore/QString>

class QCommandLineParser;

namespace SampleHost {

/** What a command line asks for with an item of the catalogue. */
struct CatalogCommand
{
    /** The item's name as it was given; empty without one. */
    QString item;
    /** What to type into the size fields, numbers or not; empty to keep the listed size. */
    QString length;
    QString width;

    /** Whether an item is asked for. */
    bool isGiven() const { return !item.isEmpty(); }
    /** Whether a size is asked for. */
    bool hasSize() const { return !length.isEmpty() || !width.isEmpty(); }
};

/** Adds the options that are about the catalogue. */
void addCatalogOptions(QCommandLineParser& parser);

/** Reads these options; what is wrong with them goes to problem unless something is there. */
CatalogCommand readCatalogCommand(const QCommandLineParser& parser, QString& problem);

} // namespace SampleHost

#endif
