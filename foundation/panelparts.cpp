// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/panelparts.h"

#include "foundation/stylesheets.h"
#include "foundation/widgets/stoprepeatonhide.h"

#include <printpanels/recordlist.h>

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QRegularExpressionValidator>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <limits>

namespace PrintPanels {

namespace {

constexpr QSize squareButton(35, 35);
constexpr int listEditHeight = 36;

} // namespace

int numberFromIndex(int index)
{
    return index == std::numeric_limits<int>::max() ? index : index + 1;
}

void moveWindow(QWidget* window, int x, int y)
{
    constexpr int farthest = QWIDGETSIZE_MAX;
    window->move(qBound(-farthest, x, farthest), qBound(-farthest, y, farthest));
}

void setUpPrinterSettingsButton(QPushButton* button)
{
    button->setStyleSheet(StyleSheets::printerSettingsButton());
    button->setFixedSize(squareButton);
    button->setIconSize(squareButton);
}

void setUpStepButton(QPushButton* button, const QString& styleSheet)
{
    new StopRepeatOnHide(button);
    button->setStyleSheet(styleSheet);
    button->setFixedSize(squareButton);
    button->setAutoRepeat(true);
}

void setUpRecordListEdit(QLineEdit* edit, const QString& toolTip, const QString& exampleLabel)
{
    const QString example = exampleLabel + QStringLiteral("  1,4-5,11-20,33");
    edit->setValidator(new QRegularExpressionValidator(RecordList::expression(), edit));
    edit->setContextMenuPolicy(Qt::NoContextMenu);
    edit->setFixedHeight(listEditHeight);
    edit->setToolTip(toolTip + u'\n' + example);
    edit->setPlaceholderText(QStringLiteral("   ") + example);
    edit->setEnabled(false);
}

} // namespace PrintPanels
