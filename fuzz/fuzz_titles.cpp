// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Input: a character that says what is tried (see LLVMFuzzerTestOneInput), then as many lines as
// that needs: design width and height, printed width and height of a title; length and width of
// quick print; or two texts that the user types into its size fields.
#include "fuzz/fuzzinput.h"

#include <printpanels/printpreviewdialog.h>
#include <printpanels/quickprintwidget.h>

#include <containertitlebar.h>

#include <QtCore/QSizeF>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <array>
#include <cfenv>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

/** The widgets, made once: an input only changes their texts. */
struct Widgets
{
    PrintPreviewDialog dialog{
        nullptr,  Qt::FramelessWindowHint, QImage(), QSizeF(), QSizeF(), false, true, true, 1, 1,
        QString()};
    QuickPrintWidget panel{false, nullptr};
    ContainerTitleBar* titleBar = dialog.findChild<ContainerTitleBar*>();
    QLineEdit* lengthEdit = panel.findChild<QLineEdit*>(QStringLiteral("lengthEdit"));
    QLineEdit* widthEdit = panel.findChild<QLineEdit*>(QStringLiteral("widthEdit"));
    QSizeF asked;

    Widgets()
    {
        QObject::connect(&panel, &QuickPrintWidget::resizeSignal, &panel,
                         [this](const QSizeF& size) { asked = size; });
    }
};

Widgets* widgets = nullptr;

// Qt warns of scripts that the installed fonts cannot shape, and must not warn of anything else.
void refuseWarnings(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const bool ofFonts = message.contains(QStringLiteral("OpenType support missing"));
    if (type != QtDebugMsg && type != QtInfoMsg && !ofFonts)
        Fuzz::requireEqual(message, QString(), "Qt has nothing to warn of");
}

// Whether two decimals, or none, fall exactly between two texts.
bool isHalf(double number, int decimals)
{
    return std::abs(std::fmod(number * (decimals == 0 ? 2 : 8), 2)) == 1;
}

std::string expectedNumber(double number, int decimals)
{
    if (std::isnan(number))
        return "nan";
    if (std::isinf(number))
        return number < 0 ? "-inf" : "inf";
    if (number == 0)
        number = 0; // without its sign
    // The longest: a sign, 309 digits, a point, two decimals.
    std::array<char, 320> text;
    // By itself the C library rounds halves to even digits; sizes round them away from zero.
    if (isHalf(number, decimals))
        std::fesetround(number < 0 ? FE_DOWNWARD : FE_UPWARD);
    std::snprintf(text.data(), text.size(), "%.*f", decimals, number);
    std::fesetround(FE_TONEAREST);
    return text.data();
}

void checkTitle(const QSizeF& design, const QSizeF& printed, bool printedOnly, bool metric)
{
    const auto size = [metric](const QSizeF& lengths) {
        const char* unit = metric ? " mm" : "\"";
        const int decimals = metric ? 0 : 2;
        return expectedNumber(lengths.width(), decimals) + unit + " X " +
               expectedNumber(lengths.height(), decimals) + unit;
    };
    widgets->dialog.setUpTitleBar(design, printed, printedOnly, metric);
    const std::string expected = printedOnly ? "Print Preview (" + size(printed) + ")"
                                             : "Print Preview (Design: " + size(design) +
                                                   "  Printed: " + size(printed) + ")";
    Fuzz::requireEqual(widgets->titleBar->title(), QString::fromStdString(expected), "title");
}

bool isSame(double one, double other)
{
    return one == other || (std::isnan(one) && std::isnan(other));
}

void checkSignal(const QSizeF& size)
{
    widgets->panel.resizeSlot();
    Fuzz::require(isSame(widgets->asked.width(), size.width()) &&
                      isSame(widgets->asked.height(), size.height()),
                  "resizeSignal() carries getCanvasSize()");
}

void checkCanvasSize(const QSizeF& size)
{
    widgets->panel.setCanvasSize(size);
    const std::string length = expectedNumber(size.width(), 2);
    const std::string width = expectedNumber(size.height(), 2);
    Fuzz::requireEqual(widgets->lengthEdit->text(), QString::fromStdString(length), "length");
    Fuzz::requireEqual(widgets->widthEdit->text(), QString::fromStdString(width), "width");
    const QSizeF read = widgets->panel.getCanvasSize();
    Fuzz::require(isSame(read.width(), std::strtod(length.c_str(), nullptr)), "length read back");
    Fuzz::require(isSame(read.height(), std::strtod(width.c_str(), nullptr)), "width read back");
    checkSignal(read);
}

// A typed text by the C library's reading, of what Qt takes for a number: a decimal one, or one of
// two words in any case.
double expectedLength(const QString& typed)
{
    const std::string text = typed.trimmed().toLower().toStdString();
    const bool isInfinity = text == "inf" || text == "+inf" || text == "-inf";
    const bool isDecimal = text.find_first_not_of("0123456789.e+-") == std::string::npos;
    char* end = nullptr;
    const double number = std::strtod(text.c_str(), &end);
    if (isInfinity || text == "nan")
        return number;
    if (text.empty() || !isDecimal || *end != '\0')
        return -1.0;
    const std::string mantissa = text.substr(0, text.find('e'));
    const bool tooSmall = number == 0 && mantissa.find_first_of("123456789") != std::string::npos;
    return tooSmall || std::isinf(number) ? -1.0 : number;
}

void checkTyped(const QString& length, const QString& width)
{
    widgets->lengthEdit->setText(length);
    widgets->widthEdit->setText(width);
    const QSizeF read = widgets->panel.getCanvasSize();
    Fuzz::require(isSame(read.width(), expectedLength(length)), "length typed");
    Fuzz::require(isSame(read.height(), expectedLength(width)), "width typed");
    checkSignal(read);
}

} // namespace

// The font library keeps what it found for a character that the first font lacks.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\n";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication app(*argc, *argv);
    std::setlocale(LC_NUMERIC, "C");
    qInstallMessageHandler(refuseWarnings);
    static Widgets made;
    widgets = &made;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::Input input(data, size);
    const char kind = input.character();
    input.text();
    switch (kind) {
    case 's': {
        const double length = input.real();
        checkCanvasSize(QSizeF(length, input.real()));
        break;
    }
    case 't': {
        const QString length = input.text();
        checkTyped(length, input.rest());
        break;
    }
    default: {
        const double designWidth = input.real();
        const QSizeF design(designWidth, input.real());
        const double printedWidth = input.real();
        checkTitle(design, QSizeF(printedWidth, input.real()), kind & 1, kind & 2);
        break;
    }
    }
    return 0;
}
