// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "subjects.h"

#include <QtWidgets/QAbstractButton>

namespace Monkey {

namespace {

struct Kind
{
    const char* name;
    std::unique_ptr<Subject> (*create)(World&);
};

constexpr Kind kinds[] = {
    {"PrintWidget", createPrintWidgetSubject},
    {"QuickPrintWidget", createQuickPrintSubject},
    {"MultiPagePrintWidget", createMultiPageSubject},
    {"MultiPagePrintDialog", createMultiPageDialogSubject},
    {"PrintPreviewDialog", createPreviewPopupSubject},
    {"PreviewView", createPreviewViewSubject},
};

} // namespace

QByteArrayList Subject::names()
{
    QByteArrayList answer;
    for (const Kind& kind : kinds)
        answer.append(kind.name);
    return answer;
}

std::unique_ptr<Subject> Subject::create(const QByteArray& name, World& world)
{
    for (const Kind& kind : kinds) {
        if (name == kind.name)
            return kind.create(world);
    }
    return nullptr;
}

int countChecked(const QWidget* panel, const QByteArrayList& names)
{
    int count = 0;
    for (const QByteArray& name : names) {
        const auto* button = part<QAbstractButton>(*panel, name.constData());
        count += button && button->isChecked() ? 1 : 0;
    }
    return count;
}

} // namespace Monkey
