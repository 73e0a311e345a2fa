// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/recordlistedit.h"

#include "foundation/hostkit.h"

#include <printpanels/recordlist.h>

#include <QtGui/QRegularExpressionValidator>

namespace PrintPanels {

JxLineEdit* createRecordListEdit(const QString& name, const QFont& font, const QString& toolTip,
                                 const QString& exampleLabel)
{
    constexpr int height = 36;
    const QString example = exampleLabel + QStringLiteral("  1,4-5,11-20,33");
    auto* edit = new JxLineEdit(nullptr);
    edit->setObjectName(name);
    edit->setFont(font);
    edit->setValidator(new QRegularExpressionValidator(RecordList::expression(), edit));
    edit->setContextMenuPolicy(Qt::NoContextMenu);
    edit->setFixedHeight(height);
    edit->setToolTip(toolTip + u'\n' + example);
    edit->setPlaceholderText(QStringLiteral("   ") + example);
    edit->setEnabled(false);
    return edit;
}

} // namespace PrintPanels
