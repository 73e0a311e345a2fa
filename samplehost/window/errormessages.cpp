// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/errormessages.h"

#include <QtCore/QCoreApplication>

#include <array>

namespace SampleHost {

namespace {

constexpr const char* context = "SampleHost::PrintError";

constexpr std::array<const char*, lastPrintError + 1> messages = {
    QT_TRANSLATE_NOOP("SampleHost::PrintError", "No error."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The printer does not answer. Check that it is switched on and connected."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError", "The cover is open. Close the cover."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError", "The supply has run out. Load a new roll."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError", "The ribbon has run out. Load a new ribbon."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The supply is jammed. Open the cover and remove the jammed labels."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The ribbon is torn. Join its ends with tape or load a new ribbon."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The ribbon wrinkles. Tighten it by turning the take-up spool."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The print head is open. Press it down until it locks."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The print head is too hot. Wait until it has cooled down."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The print head is too cold. Let the printer warm up."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The print head is worn. Clean it, and replace it if that does not help."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The cutter is jammed. Switch the printer off and clear the cutter."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The cutter is missing. Install it or print without cutting."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The gap between two labels was not found. Calibrate the supply sensor."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The label is wider than the loaded supply. Load a wider supply."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The label is longer than the printer can print. Shorten the label."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The loaded ribbon has another colour than the label. Load that colour."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The loaded supply has another colour than the label. Load that colour."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The ribbon does not suit the supply. Load a ribbon made for it."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The supply cannot be recognised. Enter its width and colour."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The printer's memory is full. Print fewer labels at a time."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The printer is busy with another job. Wait until it has ended."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The connection broke while printing. Print the missing labels again."),
    QT_TRANSLATE_NOOP("SampleHost::PrintError",
                      "The printer's software is out of date. Install its update."),
    QT_TRANSLATE_NOOP(
        "SampleHost::PrintError",
        "The job was cancelled at the printer. Print it again if that was a mistake."),
};

} // namespace

QString printErrorMessage(int number)
{
    if (number < 0 || number > lastPrintError) {
        return QCoreApplication::translate("SampleHost::PrintError", "There is no print error %1.")
            .arg(number);
    }
    return QCoreApplication::translate(context, messages.at(size_t(number)));
}

} // namespace SampleHost
