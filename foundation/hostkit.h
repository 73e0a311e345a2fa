// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_H
#define PRINTPANELS_HOSTKIT_H

// The one door to the host: everything that the panels use of the host's widget kit and of its
// editor-common library. A host that brings its own kit provides headers of these names.
#include <applicationfont.h>
#include <colormenu.h>
#include <containertitlebar.h>
#include <dragscrollbutton.h>
#include <dragscrollgroupbox.h>
#include <expandingtabbar.h>
#include <jxcombobox.h>
#include <jxlineedit.h>
#include <jxmoduleinfo.h>
#include <jxpushbuttonstyleproxy.h>
#include <jxspinbox.h>
#include <suffixdoublevalidator.h>
#include <whitespace.h>

#endif
