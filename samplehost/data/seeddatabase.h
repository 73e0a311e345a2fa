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

/** A unique connection name. */
QString uniqueConnectionName();

/**
 * Creates a SQLite file with the given table and chemicals, and its folders. The file is created
 * completely or not at all. An existing file is not changed, which counts as success. Returns
 * false, with the reason in error unless that is null, if the file cannot be created.
 */
bool createSeedDatabase(const QString& path, const QString& table, const QList<Chemical>& chemicals,
                        QString* error);

} // namespace SampleHost

#endif
