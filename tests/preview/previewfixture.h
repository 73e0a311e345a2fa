// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PREVIEWFIXTURE_H
#define PREVIEWFIXTURE_H

#include "support/panelfixture.h"

#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QImage>

#include <printpanels/printpreviewdialog.h>

class ContainerTitleBar;
class QAbstractButton;

/** What a host hands to the popup, with values that suit most tests. */
struct PopupContent
{
    QImage image;
    QSizeF designSize = QSizeF(4.0, 2.0);
    QSizeF printedSize = QSizeF(3.5, 1.75);
    bool printedSizeOnly = false;
    bool portrait = true;
    bool metric = false;
    int sequenceStart = 3;
    int sequenceEnd = 8;
    QString recordList;
};

/** A popup with this content, and its parts by name. */
class PreviewFixture : public PanelFixture<PrintPreviewDialog>
{
public:
    explicit PreviewFixture(const PopupContent& content = PopupContent(), QWidget* parent = nullptr,
                            Qt::WindowFlags flags = Qt::FramelessWindowHint);

    /** updatePreview() with this content. */
    void update(const PopupContent& content);
    /** setUpTitleBar() with this content. */
    void title(const PopupContent& content);

    ContainerTitleBar* bar() const;
    /** The title bar's own close button. */
    QAbstractButton* cross() const;
};

#endif
