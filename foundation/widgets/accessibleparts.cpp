// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/accessibleparts.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

namespace PrintPanels {

namespace {

QAccessibleInterface* createInterface(const QString&, QObject* object)
{
    auto* part = dynamic_cast<AccessiblePart*>(object);
    return part != nullptr ? part->createAccessible() : nullptr;
}

/** Removes the function when the library is unloaded: Qt would call it afterwards. */
struct Factory
{
    Factory() { QAccessible::installFactory(createInterface); }
    ~Factory() { QAccessible::removeFactory(createInterface); }
};

} // namespace

AccessiblePart::AccessiblePart()
{
    static const Factory factory;
}

void setCaption(QWidget* control, QLabel* caption)
{
    caption->setBuddy(control);
}

void setCaption(QComboBox* control, QLabel* caption)
{
    caption->setBuddy(control);
    control->view()->setAccessibleName(caption->text());
}

} // namespace PrintPanels
