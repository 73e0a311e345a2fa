// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_JXMODULEINFO_H
#define PRINTPANELS_HOSTKIT_JXMODULEINFO_H

#include <hostkit_export.h>

#include <QtCore/QObject>

/** Identifies the modules of the host application. */
class HOSTKIT_EXPORT JxModuleInfo
{
    Q_GADGET

public:
    /** The module that shows a panel. The values are part of the host's interface. */
    enum JxModuleTypes {
        Unspecified = 0,
        JxLabelEditor = 1,
        GHS = 2,
        ArcFlashMain = 3,
        PipeMarking = 4,
        NFPAMain = 5,
        JxCatalog = 6,
        QuickPrint = 7,
        PDFViewer = 8,
        JavaScript = 9,
        GraphicsViewer = 10
    };
    Q_ENUM(JxModuleTypes)
};

#endif
