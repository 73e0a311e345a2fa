// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_STATEMENTS_H
#define SAMPLEHOST_STATEMENTS_H

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace SampleHost {

/**
 * The standard wording of a hazard or precautionary statement, for example "Highly flammable liquid
 * and vapour." for "H225". Combined codes ("P305+P351+P338") have a wording of their own. Where the
 * standard leaves a place for the supplier to fill in, it is filled in for laboratory use. A code
 * that is not known gives an empty string.
 */
QString statementWording(const QString& code);

/**
 * One line for each code, in the given order: code, blank, wording. A code that is not known stands
 * alone.
 */
QStringList statementLines(const QStringList& codes);

} // namespace SampleHost

#endif
