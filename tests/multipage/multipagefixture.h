// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MULTIPAGEFIXTURE_H
#define MULTIPAGEFIXTURE_H

#include "support/panelfixture.h"
#include "support/request.h"

#include <printpanels/multipageprintwidget.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>

/** A multi-page panel and its parts by name. */
class MultiPageFixture : public PanelFixture<MultiPagePrintWidget>
{
public:
    explicit MultiPageFixture(bool fitToPage = false, bool interfaceFlag = false,
                              QWidget* parent = nullptr)
        : PanelFixture(fitToPage, interfaceFlag, parent)
    {
    }

    QCheckBox* check(const char* name) const { return part<QCheckBox>(name); }
    QLineEdit* copiesEdit() const { return part<QLineEdit>("copiesEdit"); }
    QLineEdit* pageList() const { return part<QLineEdit>("pageListEdit"); }
};

#endif
