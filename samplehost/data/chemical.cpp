// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/data/chemical.h"

#include "samplehost/data/statements.h"

#include <tuple>

namespace SampleHost {

QStringList Chemical::hazardLines() const
{
    return statementLines(hazardCodes);
}

QStringList Chemical::precautionLines() const
{
    return statementLines(precautionCodes);
}

static auto fields(const Chemical& chemical)
{
    return std::tie(chemical.name, chemical.casNumber, chemical.formula, chemical.unNumber,
                    chemical.signalWord, chemical.hazardCodes, chemical.precautionCodes,
                    chemical.pictograms);
}

bool operator==(const Chemical& left, const Chemical& right)
{
    return fields(left) == fields(right);
}

} // namespace SampleHost
