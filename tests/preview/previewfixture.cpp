// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "previewfixture.h"

#include <containertitlebar.h>

#include <QtWidgets/QAbstractButton>

PreviewFixture::PreviewFixture(const PopupContent& content, QWidget* parent, Qt::WindowFlags flags)
    : PanelFixture(parent, flags, content.image, content.designSize, content.printedSize,
                   content.printedSizeOnly, content.portrait, content.metric, content.sequenceStart,
                   content.sequenceEnd, content.recordList)
{
}

void PreviewFixture::update(const PopupContent& content)
{
    updatePreview(content.image, content.designSize, content.printedSize, content.printedSizeOnly,
                  content.portrait, content.metric, content.sequenceStart, content.sequenceEnd,
                  content.recordList);
}

void PreviewFixture::title(const PopupContent& content)
{
    setUpTitleBar(content.designSize, content.printedSize, content.printedSizeOnly, content.metric);
}

ContainerTitleBar* PreviewFixture::bar() const
{
    return findChild<ContainerTitleBar*>();
}

QAbstractButton* PreviewFixture::cross() const
{
    return bar() ? bar()->findChild<QAbstractButton*>() : nullptr;
}
