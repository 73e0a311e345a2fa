// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/recordlistedit.h"

#include "foundation/hostkit.h"
#include "foundation/widgets/textdirection.h"

#include <printpanels/recordlist.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QRegularExpressionValidator>

namespace PrintPanels {

namespace {

// Read out when it changes while the user types, and with the edit. Without one, screen readers
// read the tool tip, which says what to enter.
QString listState(const QLineEdit* edit)
{
    if (edit->text().isEmpty())
        return QString();
    return edit->hasAcceptableInput()
               ? QCoreApplication::translate("PrintPanels", "The list is complete.",
                                             "State of a record or page list for screen readers.")
               : QCoreApplication::translate("PrintPanels", "The list is not complete yet.",
                                             "State of a record or page list for screen readers.");
}

} // namespace

JxLineEdit* createRecordListEdit(const QString& name, const QFont& font, const QString& toolTip,
                                 const QString& exampleLabel)
{
    constexpr int height = 36;
    const QString example = exampleLabel + QStringLiteral("  ") +
                            numbersAfter(exampleLabel, QStringLiteral("1,4-5,11-20,33"));
    auto* edit = new JxLineEdit(nullptr);
    edit->setObjectName(name);
    edit->setFont(font);
    edit->setValidator(new QRegularExpressionValidator(RecordList::expression(), edit));
    edit->setContextMenuPolicy(Qt::NoContextMenu);
    edit->setFixedHeight(height);
    edit->setToolTip(toolTip + u'\n' + example);
    edit->setPlaceholderText(QStringLiteral("   ") + example);
    edit->setEnabled(false);
    QObject::connect(edit, &QLineEdit::textChanged, edit,
                     [edit] { edit->setAccessibleDescription(listState(edit)); });
    alignToStart(edit);
    return edit;
}

} // namespace PrintPanels
