// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CHEMICAL_H
#define SAMPLEHOST_CHEMICAL_H

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace SampleHost {

/** One record: the contents of the GHS label of a substance or solution. */
struct Chemical
{
    /** The product's name as shown on the label. */
    QString name;
    /** The CAS registry number, for example "67-64-1". */
    QString casNumber;
    /** The formula with subscript digits, for example "C₃H₆O". May be empty. */
    QString formula;
    /** The four digits of the UN number, for example "1090"; empty when transport is not regulated.
     */
    QString unNumber;
    /** "Danger", "Warning" or empty. */
    QString signalWord;
    /** Codes of the hazard statements, for example "H225". */
    QStringList hazardCodes;
    /** Codes of the precautionary statements, single or combined: "P210", "P305+P351+P338". */
    QStringList precautionCodes;
    /** Names of the pictograms, "GHS01" to "GHS09". */
    QStringList pictograms;

    /** The hazard statements in order, each as code and wording. See statementLines(). */
    QStringList hazardLines() const;

    /** The precautionary statements in order, each as code and wording. See statementLines(). */
    QStringList precautionLines() const;
};

/** Whether all fields of two records are equal. */
bool operator==(const Chemical& left, const Chemical& right);

/** Whether any field of two records differs. */
inline bool operator!=(const Chemical& left, const Chemical& right)
{
    return !(left == right);
}

} // namespace SampleHost

#endif
