// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/printedfilebar.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolButton>

namespace SampleHost {

PrintedFileBar::PrintedFileBar(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("printedFileBar"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    m_openButton = addButton(QStringLiteral("openFileButton"), tr("Open File"),
                             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O));
    m_folderButton = addButton(QStringLiteral("showInFolderButton"), tr("Show in Folder"),
                               QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F));
    connect(m_openButton, &QToolButton::clicked, this, &PrintedFileBar::openFile);
    connect(m_folderButton, &QToolButton::clicked, this, &PrintedFileBar::showInFolder);
    hide();
}

QToolButton* PrintedFileBar::addButton(const QString& name, const QString& text,
                                       const QKeySequence& keys)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setText(text);
    button->setAccessibleName(text);
    button->setShortcut(keys);
    button->setFocusPolicy(Qt::StrongFocus);
    layout()->addWidget(button);
    return button;
}

void PrintedFileBar::offer(const QString& path)
{
    m_path = QFileInfo(path).absoluteFilePath();
    // A test print is meant for a printer; no program opens its file.
    m_openButton->setVisible(!m_path.endsWith(QLatin1String(".prn")));
    const QString name = QDir::toNativeSeparators(m_path);
    for (QToolButton* button : {m_openButton, m_folderButton}) {
        const QString keys = button->shortcut().toString(QKeySequence::NativeText);
        button->setAccessibleDescription(name);
        button->setToolTip(tr("%1 (%2)").arg(name, keys));
    }
    show();
}

void PrintedFileBar::withdraw()
{
    hide();
}

void PrintedFileBar::openFile()
{
    openUrl(m_path, tr("The system has no program that opens \"%1\". Install a viewer for PDF "
                       "documents."));
}

void PrintedFileBar::showInFolder()
{
    openUrl(QFileInfo(m_path).absolutePath(),
            tr("The system cannot show the folder \"%1\". Open it in a file manager."));
}

void PrintedFileBar::openUrl(const QString& path, const QString& problem)
{
    if (!QFileInfo::exists(path)) {
        withdraw();
        Q_EMIT failed(
            tr("\"%1\" was moved or removed. Print it again.").arg(QDir::toNativeSeparators(path)));
    } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        Q_EMIT failed(problem.arg(QDir::toNativeSeparators(path)));
    }
}

} // namespace SampleHost
