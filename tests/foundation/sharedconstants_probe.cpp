// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// A library whose only content is its own copy of the shared constants.
#include <printpanels/sharedconstants.h>

extern "C" Q_DECL_EXPORT void translatedConstants(QStringList* texts)
{
    using namespace SharedConstants;
    *texts = {pointsSuffix,  inchesSuffix,    inchMarkSuffix,    millimetersSuffix,
              oshaAuthority, euAuthority,     customAuthority,   oshaLabelType,
              unLabelType,   customLabelType, orientationToolTip};
}
