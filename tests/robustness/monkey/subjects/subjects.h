// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_SUBJECTS_H
#define MONKEY_SUBJECTS_H

#include "subject.h"
#include "support/panelfixture.h"

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

namespace Monkey {

// One kind of panel each; see Subject::create().
std::unique_ptr<Subject> createPrintWidgetSubject(World& world);
std::unique_ptr<Subject> createQuickPrintSubject(World& world);
std::unique_ptr<Subject> createMultiPageSubject(World& world);
std::unique_ptr<Subject> createMultiPageDialogSubject(World& world);
std::unique_ptr<Subject> createPreviewPopupSubject(World& world);
std::unique_ptr<Subject> createPreviewViewSubject(World& world);

/** How many of the buttons with these names are checked. */
int countChecked(const QWidget* panel, const QByteArrayList& names);

} // namespace Monkey

#endif
