// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PRINTPREVIEWDIALOG_P_H
#define PRINTPANELS_PRINTPREVIEWDIALOG_P_H

#include <printpanels/printpreviewdialog.h>

#include <QtCore/QCoreApplication>

class ContainerTitleBar;
class QBoxLayout;
class QButtonGroup;
class QPushButton;

namespace PrintPanels {

class PreviewView;

/** The controls of a PrintPreviewDialog, and the range that it hands back. */
class PrintPreviewDialogPrivate
{
    Q_DECLARE_TR_FUNCTIONS(PrintPreviewDialog)
    Q_DISABLE_COPY_MOVE(PrintPreviewDialogPrivate)

public:
    explicit PrintPreviewDialogPrivate(PrintPreviewDialog* popup);

    void createTitleBar();
    void createContents(const QImage& image, bool portrait);
    void setTitle(const QSizeF& designSize, const QSizeF& printedSize, bool printedSizeOnly,
                  bool metric);
    void setRange(int firstRecord, int lastRecord, const QString& records);
    void setPortrait(bool portrait);

    PreviewView* preview = nullptr;
    QPushButton* printButton = nullptr;
    int sequenceStart = 0;
    int sequenceEnd = 0;
    QString recordList;

private:
    struct Buttons;
    Buttons createButtons();
    void createOrientationButtons(bool portrait);
    QBoxLayout* createButtonRow(const Buttons& buttons) const;
    void createLayout(QBoxLayout* buttonRow);
    void connectControls(const Buttons& buttons);

    PrintPreviewDialog* const q;
    ContainerTitleBar* titleBar = nullptr;
    QPushButton* portraitButton = nullptr;
    QPushButton* landscapeButton = nullptr;
    QButtonGroup* orientationGroup = nullptr;
};

} // namespace PrintPanels

#endif
