// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CHEMICALSEED_H
#define SAMPLEHOST_CHEMICALSEED_H

#include "samplehost/data/chemical.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

namespace SampleHost {

/** The chemicals that a new database starts with, compiled into the program. */
class ChemicalSeed
{
public:
    /** All chemicals, in alphabetical order of their names; prefixes as in "1-Butanol" do not
     * count. */
    static QList<Chemical> load();

    /**
     * Reads a table of chemicals: UTF-8, one line each, eight columns separated by tabs (name, CAS
     * number, formula, UN number, signal word, hazard codes, precaution codes, pictograms), codes
     * separated by spaces, "-" for a column without a value, the titles in the first line. Lines
     * without exactly eight columns are skipped; their 1-based numbers are appended to badLines
     * unless that is null.
     */
    static QList<Chemical> parse(const QByteArray& table, QList<int>* badLines = nullptr);
};

} // namespace SampleHost

#endif
