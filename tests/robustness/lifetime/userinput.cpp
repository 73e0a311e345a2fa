// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "userinput.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

void click(QWidget* widget)
{
    // At the window, as from a device.
    QWidget* const window = widget->window();
    const QPoint place = widget->mapTo(window, QPoint(12, widget->height() / 2));
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
}

void pressSpace(QWidget* widget)
{
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Space);
}

void clickRow(QComboBox* combo, int row)
{
    combo->showPopup();
    QAbstractItemView* view = combo->view();
    const QPoint place = view->visualRect(combo->model()->index(row, 0)).center();
    QTest::mouseMove(view->viewport(), place);
    // The popup takes no release within the time of a double-click after it opened.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void pickByKeys(QComboBox* combo, Qt::Key way)
{
    combo->showPopup();
    const QPointer<QAbstractItemView> view = combo->view();
    if (way != Qt::Key_Return)
        QTest::keyClick(view, way);
    if (view)
        QTest::keyClick(view, Qt::Key_Return);
}
