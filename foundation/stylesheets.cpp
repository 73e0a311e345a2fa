// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/stylesheets.h"

#include <QtCore/QLatin1String>

// The texts are exact: hosts compare them, so blanks, line ends and joins stay as they are. Sheets
// that share a block are composed from it.
// clang-format off

namespace {

const char pushButtonBlock[] =
    "QPushButton { border: 1px solid #fd7800; color: white; font: bold; \n"
    "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #5a5959, stop: 1 #060606);\n"
    "border-radius: 6px; outline: 0;\n"
    "padding-left: 2px; padding-right: 2px; min-height: 35px; }\n"
    "QPushButton:pressed { background-color: #fd7800; color: white; }\n"
    "QPushButton:disabled { border: 1px solid #d3d3d3; color: #848484; \n"
    "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #d3d3d3, stop: 1 #a8a8a8);\n"
    "border-radius: 6px; }\n";

const char comboBoxBlock[] =
    "QComboBox { border: 1px solid #c6c6c6; }\n"
    "QComboBox::drop-down { border: 0px; }\n"
    "QComboBox::drop-down:button {width: 32px; background-color: #F5F5F5; }\n"
    "QComboBox::down-arrow { image: url(:/module_icons/ModuleIcons/combobox-down-arrow.png); }\n"
    "QComboBox::down-arrow::disabled { image: url(:/module_icons/ModuleIcons/combobox-down-arrow-disabled.png); }\n"
    "QComboBox QAbstractItemView::item { min-height: 35px; }\n"
    " QComboBox { min-height: 35px; background-color: white; }\n"
    "QScrollBar::add-line:vertical { subcontrol-position: bottom; }\n"
    "QScrollBar::sub-line:vertical { subcontrol-position: top; }\n"
    "QScrollBar::add-line:horizontal { subcontrol-position: right; }\n"
    "QScrollBar::sub-line:horizontal { subcontrol-position: left; }\n"
    "QScrollBar::up-arrow { image: url(:/module_icons/ModuleIcons/edit-arrow-up.png); }\n"
    "QScrollBar::down-arrow { image: url(:/module_icons/ModuleIcons/edit-arrow-down.png); }\n"
    "QScrollBar::left-arrow { image: url(:/module_icons/ModuleIcons/edit-arrow-left.png); }\n"
    "QScrollBar::right-arrow { image: url(:/module_icons/ModuleIcons/edit-arrow-right.png); }\n"
    "QScrollBar { border: 1px solid #fd7800; background: white; width: 30px; height: 35px; }\n"
    "QScrollBar:horizontal { margin: 0 35px 0 35px; }\n"
    "QScrollBar:vertical { margin: 30px 0 30px 0; }\n"
    "QScrollBar::handle { background: #464646; border-radius: 6px; min-height: 35px; min-width: 30px; }\n"
    "QScrollBar::add-line, QScrollBar::sub-line { background: #fd7800; width: 30px; height: 35px; subcontrol-origin: margin; }\n"
    "QSpinBox { min-height: 35px; border: 1px solid #c6c6c6; }\n";

const char checkBoxBlock[] =
    "QCheckBox::indicator { width: 41px; height: 37px; }\n"
    "QCheckBox::indicator:checked { image: url(:/module_icons/ModuleIcons/checkbox_selected.png)}\n"
    "QCheckBox::indicator:unchecked { image: url(:/module_icons/ModuleIcons/checkbox_unselected.png)}\n"
    "QCheckBox::indicator:checked:disabled { image: url(:/module_icons/ModuleIcons/checkbox_checked_disabled.png)}\n"
    "QCheckBox::indicator:unchecked:disabled { image: url(:/module_icons/ModuleIcons/checkbox_unchecked_disabled.png)}\n";

// Two rules stand on the third line with nothing between them; that join is kept.
const char radioButtonBlock[] =
    "QRadioButton::indicator { width: 24px; height: 24px; }\n"
    "QRadioButton::indicator::checked { image: url(:/module_icons/ModuleIcons/radio-button_checked.png); }\n"
    "QRadioButton::indicator::unchecked { image: url(:/module_icons/ModuleIcons/radio-button_unchecked.png); }QRadioButton::indicator::checked::disabled { image: url(:/module_icons/ModuleIcons/radio-button_checked-disabled.png); }\n"
    "QRadioButton::indicator::unchecked::disabled { image: url(:/module_icons/ModuleIcons/radio-button_unchecked-disabled.png); }\n";

const char tabBarBlock[] =
    "QTabBar {  } \n"
    "QTabBar::tab { background-color: qlineargradient(x1:0.5, y1:0, x2:0.5, y2:1, stop:0 #d7d5d4, stop:1 #b4b2b2); \n"
    "   min-height: 40px; \n"
    "   border-top-left-radius: 6px; \n"
    "   border-top-right-radius: 6px; \n"
    "   border: 1px solid #999898; }  \n"
    "QTabBar::tab:selected { background-color: #fafafa; \n"
    "   border-bottom: none; }\n"
    "QWidget#stackGroup { background-color: #fafafa; \n"
    "   border: 1px solid #999898; \n"
    "   border-top: none; \n"
    "   border-bottom-left-radius: 6px; \n"
    "   border-bottom-right-radius: 6px; }\n";

const char printerSettingsIconRule[] =
    "QPushButton { border: 1px solid #fd7800; qproperty-icon: url(:/printicons/printericons/printer_settings.png); }";

} // namespace

namespace StyleSheets {

QString panel()
{
    return QLatin1String(pushButtonBlock) + QLatin1String(comboBoxBlock)
        + QLatin1String(radioButtonBlock);
}

QString printSettingsPanel()
{
    return QLatin1String(comboBoxBlock) + QLatin1String(checkBoxBlock)
        + QLatin1String(radioButtonBlock) + QLatin1String(tabBarBlock);
}

QString primaryPushButton()
{
    return QLatin1String(pushButtonBlock);
}

QString tallPushButton()
{
    return primaryPushButton().replace(QLatin1String("min-height: 35px"),
                                       QLatin1String("min-height: 40px"));
}

QString printerSettingsButton()
{
    return QLatin1String(pushButtonBlock) + QLatin1String(printerSettingsIconRule);
}

QString checkBoxIndicator()
{
    return QLatin1String(checkBoxBlock);
}

QString radioButtonIndicator()
{
    return QLatin1String(radioButtonBlock);
}

QString plusStepButton()
{
    return QStringLiteral(
        "QPushButton { border-image: url(:/Size/SizeIcons/plus.png); }\n"
        "QPushButton::pressed { border-image: url(:/Size/SizeIcons/plus-pressed.png); }\n"
        "QPushButton::disabled { border-image: url(:/Size/SizeIcons/plus-disabled.png); }\n");
}

QString minusStepButton()
{
    return QStringLiteral(
        "QPushButton { border-image: url(:/Size/SizeIcons/minus.png); }\n"
        "QPushButton::pressed { border-image: url(:/Size/SizeIcons/minus-pressed.png); }\n"
        "QPushButton::disabled { border-image: url(:/Size/SizeIcons/minus-disabled.png); }\n");
}

QString replicatingLabel()
{
    return QStringLiteral(
        "QLabel { width: 78px; height: 36px; }\n"
        " QLabel { border-image: url(:/printicons/printericons/replicating.png); }\n"
        " QLabel::disabled { border-image: url(:/printicons/printericons/replicating_disabled.png); }");
}

QString sequencingLabel()
{
    return QStringLiteral(
        "QLabel { width: 78px; height: 36px; }\n"
        " QLabel { border-image: url(:/printicons/printericons/sequencing.png); }\n"
        " QLabel::disabled { border-image: url(:/printicons/printericons/sequencing_disabled.png); }");
}

QString zoomInButton()
{
    return QStringLiteral(
        "QPushButton { height: 46px; width: 46px; }\n"
        "QPushButton { border-image: url(:/printicons/printericons/zoom-in.png); }\n"
        "QPushButton::pressed { border-image: url(:/printicons/printericons/zoom-in_pressed.png); }");
}

QString zoomOutButton()
{
    return QStringLiteral(
        "QPushButton { height: 46px; width: 46px; }\n"
        "QPushButton { border-image: url(:/printicons/printericons/zoom-out.png); }\n"
        "QPushButton::pressed { border-image: url(:/printicons/printericons/zoom-out_pressed.png); }");
}

QString fitButton()
{
    return QStringLiteral(
        "QPushButton { border: 1px solid #fd7800; color: white; font: bold; \n"
        "padding-left: 2px; padding-right: 2px; background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #5a5959, stop: 1 #060606);\n"
        "border-radius: 5px; }\n"
        "QPushButton:pressed { background-color: #fd7800; color: white; }\n"
        "QPushButton { height: 45px; width: 45px; }");
}

QString portraitButton()
{
    return QStringLiteral(
        "QPushButton { height: 45px; width: 45px; }\n"
        "QPushButton { border-image: url(:/printicons/printericons/orientation-portrait.png); }\n"
        "QPushButton::checked { border-image: url(:/printicons/printericons/orientation-portrait_pressed.png); }");
}

QString landscapeButton()
{
    return QStringLiteral(
        "QPushButton { height: 45px; width: 45px; }\n"
        "QPushButton { border-image: url(:/printicons/printericons/orientation-landscape.png); }\n"
        "QPushButton::checked { border-image: url(:/printicons/printericons/orientation-landscape_pressed.png); }");
}

QString previewFrame()
{
    return QStringLiteral(
        "border: 2px solid #C2C1C1; background-color: #C2C1C1;");
}

QString multiPageDialogFrame()
{
    return QStringLiteral(
        "#MultiPagePrintDialog { background-color: #f2f2f2; border: 1px solid #fd7800; } ");
}

QString previewDialogFrame()
{
    return QStringLiteral(
        "#JxPreviewFrame  { background-color: #f2f2f2; border: 1px solid #fd7800; } ");
}

} // namespace StyleSheets
