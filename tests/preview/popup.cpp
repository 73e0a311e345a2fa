// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "popup.h"

#include <containertitlebar.h>

#include <QtWidgets/QPushButton>

Popup::Popup(const PopupContent& content, QWidget* parent, Qt::WindowFlags flags)
    : PrintPreviewDialog(parent, flags, content.image, content.designSize, content.printedSize,
                         content.printedSizeOnly, content.portrait, content.metric,
                         content.sequenceStart, content.sequenceEnd, content.recordList)
{
}

void Popup::update(const PopupContent& content)
{
    updatePreview(content.image, content.designSize, content.printedSize, content.printedSizeOnly,
                  content.portrait, content.metric, content.sequenceStart, content.sequenceEnd,
                  content.recordList);
}

void Popup::title(const PopupContent& content)
{
    setUpTitleBar(content.designSize, content.printedSize, content.printedSizeOnly, content.metric);
}

QPushButton* Popup::button(const char* name) const
{
    return findChild<QPushButton*>(QLatin1String(name));
}

QWidget* Popup::view() const
{
    return findChild<QWidget*>(QStringLiteral("PreviewView"));
}

ContainerTitleBar* Popup::bar() const
{
    return findChild<ContainerTitleBar*>();
}

QAbstractButton* Popup::cross() const
{
    return bar() ? bar()->findChild<QAbstractButton*>() : nullptr;
}
