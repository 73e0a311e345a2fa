// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef QUICKPRINTFIXTURE_H
#define QUICKPRINTFIXTURE_H

#include "support/panelfixture.h"

#include <jxlineedit.h>
#include <jxspinbox.h>
#include <printpanels/quickprintwidget.h>

#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

/** A quick print panel and its parts by name. */
class QuickPrintFixture : public PanelFixture<QuickPrintWidget>
{
public:
    explicit QuickPrintFixture(bool quickPrint = false, QWidget* parent = nullptr)
        : PanelFixture(quickPrint, parent)
    {
    }

    QLabel* nameLabel() const { return part<QLabel>("printerNameLabel"); }
    QFrame* resizeFrame() const { return part<QFrame>("resizeFrame"); }
    JxLineEdit* lengthEdit() const { return part<JxLineEdit>("lengthEdit"); }
    JxLineEdit* widthEdit() const { return part<JxLineEdit>("widthEdit"); }
    JxSpinBox* copies() const { return part<JxSpinBox>("copiesSpinBox"); }
    QGridLayout* grid() const { return qobject_cast<QGridLayout*>(layout()); }
};

#endif
