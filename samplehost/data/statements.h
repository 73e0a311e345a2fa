// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_STATEMENTS_H
#define SAMPLEHOST_STATEMENTS_H

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace SampleHost {

/**
 * The standard wording of a hazard or precautionary statement, for example "Highly flammable liquid
 * and vapour." for "H225". Combined codes ("P305+P351+P338") have their own wording. Text that
 * the standard leaves to the supplier is filled in for laboratory use. Empty for an unknown code.
 */
QString statementWording(const QString& code);

/**
 * One line for each code, in the given order: code, space, wording. An unknown code has no wording.
 */
QStringList statementLines(const QStringList& codes);

} // namespace SampleHost

#endif
