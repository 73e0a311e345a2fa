// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_SHAREDCONSTANTS_H
#define PRINTPANELS_SHAREDCONSTANTS_H

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QColor>
#include <QtGui/QRgb>

/**
 * Constants that the panels and their host share.
 *
 * Every source file that includes this header has its own copy of each constant, initialised in the
 * order of this file when the library is loaded. The translated ones therefore need a translator
 * that is installed before the library is loaded; one that is installed later does not change them.
 */
namespace SharedConstants {

/** Name of the see-through entry of a colour menu. A key, not a display text or palette entry. */
const QString transparentName = QStringLiteral("transparent");
/** The off-white that stands for a clear supply, as a colour. */
const QColor offWhiteColor = QColor(QStringLiteral("#FFFFFE"));
/** Qt's global transparent colour. */
const QColor transparentColor = QColor(Qt::transparent);
/** Qt's global white. */
const QColor whiteColor = QColor(Qt::white);
/** Qt's global black. */
const QColor blackColor = QColor(Qt::black);
/** Opaque white, 0xFFFFFFFF: the background of off-screen preview images. */
const QRgb whiteRgb = whiteColor.rgb();

/**
 * Hexadecimal codes of the 13 supply colours. Index-aligned with supplyColors and supplyColorNames.
 * Hosts compare codes exactly and case-sensitively, so cyan stays upper case, and "clear" stays the
 * lower-case off-white.
 */
const QStringList supplyColorCodes = {
    QStringLiteral("#ffffff"), QStringLiteral("#000000"), QStringLiteral("#dc0b0b"),
    QStringLiteral("#f28000"), QStringLiteral("#fedb00"), QStringLiteral("#248d4f"),
    QStringLiteral("#0018a8"), QStringLiteral("#00FFFF"), QStringLiteral("#473333"),
    QStringLiteral("#41b6e6"), QStringLiteral("#7238ab"), QStringLiteral("#a0a0a0"),
    QStringLiteral("#fffffe")};

/** Supply colour at index 4. */
const QColor yellowColor = QColor(QStringLiteral("#fedb00"));
/** Supply colour at index 9. */
const QColor skyBlueColor = QColor(QStringLiteral("#41b6e6"));
/** Supply colour at index 2. */
const QColor redColor = QColor(QStringLiteral("#dc0b0b"));
/** Supply colour at index 5. */
const QColor greenColor = QColor(QStringLiteral("#248d4f"));
/** Supply colour at index 3. */
const QColor orangeColor = QColor(QStringLiteral("#f28000"));

/** The 13 supply colours as values. Index-aligned with supplyColorCodes and supplyColorNames. */
const QList<QColor> supplyColors = {whiteColor,
                                    blackColor,
                                    redColor,
                                    orangeColor,
                                    yellowColor,
                                    greenColor,
                                    QColor(QStringLiteral("#0018a8")),
                                    QColor(QStringLiteral("#00FFFF")),
                                    QColor(QStringLiteral("#473333")),
                                    skyBlueColor,
                                    QColor(QStringLiteral("#7238ab")),
                                    QColor(QStringLiteral("#a0a0a0")),
                                    QColor(QStringLiteral("#fffffe"))};

/**
 * Names of the 13 supply colours. Index-aligned with supplyColorCodes and supplyColors.
 * Keys that host and panels exchange, therefore not translated.
 */
const QStringList supplyColorNames = {
    QStringLiteral("white"),    QStringLiteral("black"),  QStringLiteral("red"),
    QStringLiteral("orange"),   QStringLiteral("yellow"), QStringLiteral("green"),
    QStringLiteral("blue"),     QStringLiteral("cyan"),   QStringLiteral("brown"),
    QStringLiteral("sky blue"), QStringLiteral("purple"), QStringLiteral("gray"),
    QStringLiteral("clear")};

/** Names of the host's modules, indexed by JxModuleInfo::JxModuleTypes (0-based). Not translated.
 */
const QStringList moduleTypeNames = {
    QStringLiteral("Unspecified"),  QStringLiteral("JxLabelEditor"), QStringLiteral("GHS"),
    QStringLiteral("ArcFlashMain"), QStringLiteral("PipeMarking"),   QStringLiteral("NFPAMain"),
    QStringLiteral("JxCatalog"),    QStringLiteral("QuickPrint"),    QStringLiteral("PDFViewer"),
    QStringLiteral("JavaScript"),   QStringLiteral("GraphicsViewer")};

/** Unit suffix of points; begins with a blank so that it can follow a number directly. */
const QString pointsSuffix = QObject::tr(" pt", "Abbreviation for Points");
/** Unit suffix of inches; begins with a blank. */
const QString inchesSuffix = QObject::tr(" in", "Abbreviation for Inches");
/** The inch mark, without a leading blank: the short form of inches in titles. */
const QString inchMarkSuffix = QObject::tr("\"", "Abbreviation for Inches");
/** Unit suffix of millimetres; begins with a blank. */
const QString millimetersSuffix = QObject::tr(" mm", "Abbreviation for Millimeters");

// The misspelt comments below are part of the translation keys of existing translations.

/** Abbreviation of the United States' authority. */
const QString oshaAuthority = QObject::tr(
    "OSHA",
    "OSHA Authority Abbreviaton. OSHA stands for: Occupational Safety and Health Adminstration.");
/** Abbreviation of the European authority. */
const QString euAuthority = QObject::tr("EU", "EU Authority Abbreviaton");
/** Stands for the customer's own authority. */
const QString customAuthority = QObject::tr("CUSTOM", "CUSTOM Authority");

/** GHS label type after the United States' rules. */
const QString oshaLabelType = QObject::tr(
    "US/OSHA HazCom 2012", "Option for selecting label type. OSHA stands for: Occupational Safety "
                           "and Health Adminstration.");
/** GHS label type after the United Nations' rules. */
const QString unLabelType =
    QObject::tr("UN/GHS Rev. 7", "Option for selecting label type. Stands for: United "
                                 "Nations/Globally Harmonized System.");
/** GHS label type that the user designs. */
const QString customLabelType = QObject::tr(
    "Custom", "Option for selecting label type. The user selects to create a custom GHS label.");

/** Tool tip of the controls that switch the print orientation. */
const QString orientationToolTip =
    QObject::tr("Switch Print Orientation", "The text on the tooltip to switch print orientation.");

} // namespace SharedConstants

#endif
