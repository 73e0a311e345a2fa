// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Input: a character that selects the test (see LLVMFuzzerTestOneInput) on the first line, then its
// arguments, one per line: design width and height and printed width and height of a title; length
// and width of the quick print panel; or two texts typed into that panel's size fields.
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

/** The widgets under test, created only once: an input just changes their texts. */
struct Widgets
{
    PrintPreviewDialog dialog{
        nullptr,  Qt::FramelessWindowHint, QImage(), QSizeF(), QSizeF(), false, true, true, 1, 1,
        QString()};
    QuickPrintWidget panel{false, nullptr};
    ContainerTitleBar* titleBar = dialog.findChild<ContainerTitleBar*>();
    QLineEdit* lengthEdit = panel.findChild<QLineEdit*>(QStringLiteral("lengthEdit"));
    QLineEdit* widthEdit = panel.findChild<QLineEdit*>(QStringLiteral("widthEdit"));
    QSizeF requestedSize;

    Widgets()
    {
        QObject::connect(&panel, &QuickPrintWidget::resizeSignal, &panel,
                         [this](const QSizeF& size) { requestedSize = size; });
    }
};

Widgets* widgets = nullptr;

// Allows only the warnings of Qt about scripts that the installed fonts do not support.
void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const bool isFontWarning = message.contains(QStringLiteral("OpenType support missing"));
    if (type != QtDebugMsg && type != QtInfoMsg && !isFontWarning)
        Fuzz::requireEqual(message, QString(), "Qt has nothing to warn of");
}

// Returns true if number is exactly halfway between two numbers with that many decimals, 0 or 2.
bool isHalfway(double number, int decimals)
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
        number = 0; // removes the sign
    // Enough for a sign, 309 digits, a decimal point and two decimals.
    std::array<char, 320> text;
    // snprintf() rounds halves to even, the widgets round them away from zero.
    if (isHalfway(number, decimals))
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
    Fuzz::require(isSame(widgets->requestedSize.width(), size.width()) &&
                      isSame(widgets->requestedSize.height(), size.height()),
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

// Returns the value of a typed text according to strtod() if it is in a format that Qt accepts: a
// decimal number, or "inf" or "nan" in any case. Otherwise returns -1.
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

// fontconfig keeps what it finds for characters that are missing in the first font.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\n";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication app(*argc, *argv);
    std::setlocale(LC_NUMERIC, "C");
    qInstallMessageHandler(failOnWarning);
    static Widgets instance;
    widgets = &instance;
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
