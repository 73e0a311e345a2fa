// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_H
#define PRINTPANELS_HOSTKIT_H

// Everything that the panels use of the host's widget kit and of its editor-common library. A host
// with a kit of its own provides headers with these names.
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
