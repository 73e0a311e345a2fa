// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "quickpanel.h"

#include <jxlineedit.h>
#include <jxspinbox.h>

#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

QuickPanel::QuickPanel(bool quickPrint, QWidget* parent) : QuickPrintWidget(quickPrint, parent) {}

QPushButton* QuickPanel::button(const char* name) const
{
    return findChild<QPushButton*>(QLatin1String(name));
}

QLabel* QuickPanel::nameLabel() const
{
    return findChild<QLabel*>(QStringLiteral("printerNameLabel"));
}

QFrame* QuickPanel::resizeFrame() const
{
    return findChild<QFrame*>(QStringLiteral("resizeFrame"));
}

JxLineEdit* QuickPanel::lengthEdit() const
{
    return findChild<JxLineEdit*>(QStringLiteral("lengthEdit"));
}

JxLineEdit* QuickPanel::widthEdit() const
{
    return findChild<JxLineEdit*>(QStringLiteral("widthEdit"));
}

JxSpinBox* QuickPanel::copies() const
{
    return findChild<JxSpinBox*>(QStringLiteral("copiesSpinBox"));
}

QWidget* QuickPanel::view() const
{
    return findChild<QWidget*>(QStringLiteral("PreviewView"));
}

QGridLayout* QuickPanel::grid() const
{
    return qobject_cast<QGridLayout*>(layout());
}

QStringList stateOf(const QWidget& panel)
{
    QStringList lines;
    const QList<QWidget*> children = panel.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        lines.append(
            QStringLiteral("%1 '%2' hidden:%3 enabled:%4 text:'%5'")
                .arg(QString::fromLatin1(child->metaObject()->className()), child->objectName())
                .arg(child->isHidden())
                .arg(child->isEnabled())
                .arg(child->property("text").toString()));
    }
    return lines;
}
