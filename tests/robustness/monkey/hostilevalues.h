// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_HOSTILEVALUES_H
#define MONKEY_HOSTILEVALUES_H

#include "randomsource.h"

#include <jxmoduleinfo.h>

#include <QtCore/QSizeF>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtGui/QImage>

class ColorMenu;

namespace Monkey {

/**
 * What a host may hand to an operation: mostly sensible values, so that the panels get somewhere,
 * and among them everything that should not be. What is slow to take is rare.
 */
namespace Hostile {

bool flag(RandomSource& random);
int number(RandomSource& random);
/** A bit mask of ammonia tags. */
int tagMask(RandomSource& random);
unsigned char byte(RandomSource& random);
double real(RandomSource& random);
QSizeF size(RandomSource& random);
QString text(RandomSource& random);
/** The name of a printer, often one of the few that printers() gives. */
QString printer(RandomSource& random);
QStringList printers(RandomSource& random);
/** A colour code, or something that should be one. */
QString color(RandomSource& random);
QStringList colors(RandomSource& random);
/** What users type into a list of records. */
QString recordList(RandomSource& random);
QImage image(RandomSource& random);
JxModuleInfo::JxModuleTypes module(RandomSource& random);
/** Null or a new menu that the panel is to own. */
ColorMenu* menu(RandomSource& random);

} // namespace Hostile

/** A value in a few words, whatever its size. */
QString describe(const QVariant& value);
/** describe() of every value, separated by commas. */
QString describe(const QVariantList& values);

} // namespace Monkey

#endif
