// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_QUICKPRINTWIDGET_P_H
#define PRINTPANELS_QUICKPRINTWIDGET_P_H

#include <printpanels/quickprintwidget.h>

#include <QtCore/QCoreApplication>

class JxLineEdit;
class JxSpinBox;
class QFrame;
class QGridLayout;
class QLabel;
class QLayout;
class QPushButton;

namespace PrintPanels {

class PreviewView;

/** The controls of a QuickPrintWidget. */
class QuickPrintWidgetPrivate
{
    Q_DECLARE_TR_FUNCTIONS(QuickPrintWidget)
    Q_DISABLE_COPY_MOVE(QuickPrintWidgetPrivate)

public:
    QuickPrintWidgetPrivate(QuickPrintWidget* panel, bool quickPrint);

    void createWidgetLayout();

    QLabel* printerNameLabel = nullptr;
    QFrame* resizeFrame = nullptr;
    JxLineEdit* lengthEdit = nullptr;
    JxLineEdit* widthEdit = nullptr;
    PreviewView* preview = nullptr;
    JxSpinBox* copiesSpinBox = nullptr;
    QPushButton* printButton = nullptr;
    QPushButton* openInEditorButton = nullptr;

private:
    QLabel* createPrinterCaption() const;
    void createPrinterNameLabel();
    void createResizeLayout();
    void createPreviewLayout();
    QFrame* createCopyCountLayout();
    void createCopiesSpinBox();
    QLayout* createButtonsLayout();

    QuickPrintWidget* const q;
    // Kept for the interface, without an effect.
    [[maybe_unused]] const bool quickPrintFlag;
    QGridLayout* mainLayout = nullptr;
    QPushButton* resizeButton = nullptr;
    QPushButton* plusButton = nullptr;
    QPushButton* minusButton = nullptr;
};

} // namespace PrintPanels

#endif
