// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SEEDDATABASE_H
#define SAMPLEHOST_SEEDDATABASE_H

#include "samplehost/data/chemical.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace SampleHost {

/** The columns of a table of chemicals that hold a record, in the order of Chemical's members. */
QStringList chemicalColumns();

/** A connection name that no other call has returned. */
QString uniqueConnectionName();

/**
 * Creates a SQLite file with the given table and chemicals, folders included. The file appears
 * whole or not at all, and a file that is already there is left as it is, which counts as success.
 * False, with the reason in error unless that is null, when the file cannot be made.
 */
bool createSeedDatabase(const QString& path, const QString& table, const QList<Chemical>& chemicals,
                        QString* error);

} // namespace SampleHost

#endif
