// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTREQUEST_H
#define SAMPLEHOST_PRINTREQUEST_H

#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QStringView>

#include <optional>

namespace SampleHost {

/** The arrangement of several labels on one sheet. One row and one column means one label a page.
 */
struct NupLayout
{
    /** The largest number of rows, and of columns, that fromText() accepts. */
    static constexpr int maximumSide = 10;

    int rows = 1;
    int columns = 1;

    /** This layout with both sides limited to 1 to maximumSide. */
    NupLayout bounded() const;

    /** The number of labels that fill a sheet of the bounded layout. */
    int labelsPerPage() const;

    /** The layout as a text such as "2x3": rows first. */
    QString text() const;

    /**
     * Parses a text such as "2x3" (rows first, "x" in either case). Returns nothing for any other
     * text and for a side outside 1 to maximumSide.
     */
    static std::optional<NupLayout> fromText(QStringView text);

    bool operator==(const NupLayout& other) const
    {
        return rows == other.rows && columns == other.columns;
    }
};

/** How the labels of an N-up sheet are chosen. */
enum class NupMode {
    Replicating, ///< Every label of a sheet shows the same record.
    Sequencing   ///< The labels of a sheet show successive records of the selection.
};

/** Everything a user requested by pressing Print or Print Preview in a panel. */
struct PrintRequest
{
    /** First record, 1-based; 0 when customRecordsList decides. */
    int sequenceStart = 1;
    /** Last record, 1-based; -1 for the single record sequenceStart. */
    int sequenceEnd = -1;
    /** A list such as "1,4-5"; if it is not empty, it alone selects the records. */
    QString customRecordsList;
    /** The number of copies; less than 1 counts as 1. */
    int copies = 1;
    NupLayout nup;
    NupMode nupMode = NupMode::Replicating;
    /** Whether the user's background layer is printed behind the labels. */
    bool userBackground = false;
    /** 0 for the label itself, or the bit of the ammonia tag to print instead. */
    int ammoniaItem = 0;
    /** The paper in millimetres; empty for a sheet as large as its labels. */
    QSizeF paperMm;
    /** Whether each label is turned, so that its designed height becomes its width. */
    bool labelTurned = false;

    /** Whether it asks for the one record sequenceStart. */
    bool isSingleRecord() const { return customRecordsList.isEmpty() && sequenceEnd == -1; }
};

} // namespace SampleHost

#endif
