// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Shows every widget of the stand-in kit, to be looked at: kitgallery_example [--screenshot
// FILE.png]

#include <printpanels-hostkit/applicationfont.h>
#include <printpanels-hostkit/colormenu.h>
#include <printpanels-hostkit/containertitlebar.h>
#include <printpanels-hostkit/dragscrollbutton.h>
#include <printpanels-hostkit/dragscrollgroupbox.h>
#include <printpanels-hostkit/expandingtabbar.h>
#include <printpanels-hostkit/jxcombobox.h>
#include <printpanels-hostkit/jxlineedit.h>
#include <printpanels-hostkit/jxpushbuttonstyleproxy.h>
#include <printpanels-hostkit/jxspinbox.h>
#include <printpanels-hostkit/suffixdoublevalidator.h>
#include <printpanels/printwidget.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

#include <cstdio>

namespace {
const QList<QString> ribbonCodes = {
    QStringLiteral("#ffffff"), QStringLiteral("#000000"), QStringLiteral("#dc0b0b"),
    QStringLiteral("#f28000"), QStringLiteral("#fedb00"), QStringLiteral("#248d4f"),
    QStringLiteral("#0018a8"), QStringLiteral("#00FFFF"), QStringLiteral("#473333"),
    QStringLiteral("#41b6e6"), QStringLiteral("#7238ab"), QStringLiteral("transparent")};

// The kit is dressed by the panels, so the gallery borrows what a panel gives one of its buttons.
QString sheetOf(const char* button)
{
    const PrintWidget panel(false, nullptr);
    return panel.findChild<QPushButton*>(QLatin1String(button))->styleSheet();
}

ColorMenu* createMenu(const QList<QString>& codes, const QString& selected)
{
    auto* menu = new ColorMenu;
    menu->setColorPalette(codes, {});
    menu->setTransparentColorVisible(true);
    menu->updateSelectedColor(selected);
    return menu;
}

ExpandingTabBar* createTabBar(QWidget* parent)
{
    auto* bar = new ExpandingTabBar(parent);
    bar->setExpanding(true);
    bar->setUsesScrollButtons(false);
    bar->setIconSize(QSize(25, 25));
    return bar;
}

// Tabs over a stack of menus, the way the print settings panel builds them.
QWidget* createColors()
{
    auto* colors = new QWidget;
    auto* layout = new QVBoxLayout(colors);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    ExpandingTabBar* bar = createTabBar(colors);
    auto* group = new DragScrollGroupBox(colors);
    group->setObjectName(QStringLiteral("stackGroup"));
    auto* stack = new QStackedWidget(colors);
    (new QVBoxLayout(group))->addWidget(stack);
    layout->addWidget(bar);
    layout->addWidget(group);

    const QString glyphs[] = {QStringLiteral("!"), QString(QChar(0xe92a)), QString(QChar(0xe917))};
    const QString rects[] = {QStringLiteral("#dc0b0b"), QStringLiteral("blank"),
                             QStringLiteral("transparent")};
    const QString tips[] = {QStringLiteral("Ribbon1"), QStringLiteral("Blank Ribbon2"),
                            QStringLiteral("Supply")};
    for (int i = 0; i < 3; ++i) {
        bar->insertTab(i, glyphs[i]);
        bar->setTabColorRect(i, rects[i]);
        bar->setTabToolTip(i, tips[i]);
        stack->insertWidget(i, createMenu(ribbonCodes, rects[i]));
    }
    QObject::connect(bar, &QTabBar::currentChanged, stack, &QStackedWidget::setCurrentIndex);
    return colors;
}

QWidget* createTextTabs()
{
    ExpandingTabBar* bar = createTabBar(nullptr);
    const char* const rects[] = {"#0018a8", "#f28000", ""};
    for (int i = 0; i < 3; ++i) {
        bar->addTab(QStringLiteral("Tab %1").arg(i + 1));
        bar->setTabColorRect(i, QLatin1String(rects[i]));
    }
    return bar;
}

QWidget* createLongPalette()
{
    QList<QString> codes;
    for (int hue = 0; hue < 360; hue += 9)
        codes.append(QColor::fromHsv(hue, 200, 220).name());
    return createMenu(codes, codes.at(8));
}

QWidget* createStepRow()
{
    auto* row = new QWidget;
    // The sheet makes the box a little higher than its fixed size.
    row->setMinimumHeight(40);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* box = new JxSpinBox;
    box->setRange(1, 999);
    box->setFixedSize(60, 35);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    auto* minus = new DragScrollButton(row);
    auto* plus = new DragScrollButton(row);
    minus->setStyleSheet(sheetOf("minusButton"));
    plus->setStyleSheet(sheetOf("plusButton"));
    QObject::connect(minus, &QPushButton::clicked, box, &QSpinBox::stepDown);
    QObject::connect(plus, &QPushButton::clicked, box, &QSpinBox::stepUp);
    for (DragScrollButton* button : {minus, plus}) {
        button->setFixedSize(35, 35);
        button->setAutoRepeat(true);
    }
    layout->addWidget(box);
    layout->addWidget(minus);
    layout->addWidget(plus);
    layout->addStretch();
    return row;
}

QWidget* createButtons()
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* preview = new DragScrollButton(QStringLiteral("Print Preview"));
    auto* style = new JxPushButtonStyleProxy;
    style->setParent(preview);
    preview->setStyle(style);
    auto* disabled = new DragScrollButton(QStringLiteral("Disabled"));
    disabled->setEnabled(false);
    for (DragScrollButton* button : {preview, disabled}) {
        button->setStyleSheet(sheetOf("PrintButton"));
        layout->addWidget(button);
    }
    return row;
}

QWidget* createControls()
{
    auto* controls = new QWidget;
    auto* form = new QFormLayout(controls);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto* combo = new JxComboBox;
    combo->addItem(QStringLiteral("Label printer on the second floor, next to the kitchen, left"));
    combo->addItem(QStringLiteral("<b>Not bold</b> & not a mnemonic"));
    auto* disabledCombo = new JxComboBox;
    disabledCombo->addItem(QStringLiteral("No printer"));
    disabledCombo->setEnabled(false);
    auto* width = new JxLineEdit;
    width->setText(QStringLiteral("2.25 in"));
    auto* validator = new SuffixDoubleValidator(0.0, 999999.0, 3, width);
    validator->setSuffix(QStringLiteral(" in"));
    width->setValidator(validator);
    width->setFixedSize(80, 35);
    auto* status = new QLabel(QStringLiteral("Online"));
    status->setFont(ApplicationFont::getWidgetFontSmall(false));
    auto* check = new QCheckBox(QStringLiteral("Check box"));
    check->setChecked(true);
    auto* radio = new QRadioButton(QStringLiteral("Radio button"));
    radio->setChecked(true);
    form->addRow(QStringLiteral("Printer:"), combo);
    form->addRow(QString(), disabledCombo);
    form->addRow(QStringLiteral("Status:"), status);
    form->addRow(QStringLiteral("Copies:"), createStepRow());
    form->addRow(QStringLiteral("Tape Width:"), width);
    form->addRow(check, radio);
    return controls;
}

QWidget* createGallery()
{
    auto* contents = new QWidget;
    auto* layout = new QVBoxLayout(contents);
    layout->addWidget(createControls());
    layout->addWidget(createColors());
    layout->addWidget(createTextTabs());
    layout->addWidget(createLongPalette());
    QWidget* disabledMenu = createMenu(ribbonCodes, QStringLiteral("#0018a8"));
    disabledMenu->setEnabled(false);
    layout->addWidget(disabledMenu);
    layout->addWidget(createButtons());
    layout->addStretch();
    for (QWidget* widget : contents->findChildren<QWidget*>()) {
        if (!widget->testAttribute(Qt::WA_SetFont))
            widget->setFont(ApplicationFont::getWidgetFont(true));
    }
    return contents;
}
} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every widget of the stand-in kit."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Saves a picture to <file> and quits."),
                                        QStringLiteral("file"));
    parser.addOption(screenshot);
    parser.process(application);

    QWidget window;
    window.setWindowFlag(Qt::FramelessWindowHint);
    window.resize(360, 1000);
    auto* titleBar = new ContainerTitleBar(
        nullptr, QStringLiteral("Kit gallery with <b>a title</b>"), QStringLiteral("Close"), 14);
    QObject::connect(titleBar, &ContainerTitleBar::closeButtonClicked, &window, &QWidget::close);
    QObject::connect(titleBar, &ContainerTitleBar::signalMove, &window,
                     qOverload<int, int>(&QWidget::move));
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setStyleSheet(PrintWidget(false, nullptr).styleSheet());
    area->setWidget(createGallery());
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(titleBar);
    layout->addWidget(area);
    window.show();
    if (!parser.isSet(screenshot))
        return QApplication::exec();
    // Combo boxes take the width of their contents from a timer.
    QTimer::singleShot(200, &application, &QCoreApplication::quit);
    QApplication::exec();
    const QString file = parser.value(screenshot);
    if (window.grab().save(file))
        return 0;
    std::fprintf(stderr, "Cannot save %s\n", qPrintable(file));
    return 1;
}
