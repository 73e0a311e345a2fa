// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_JXMODULEINFO_H
#define CUSTOMKIT_JXMODULEINFO_H

/** The modules of the host application. The panels rely on the values, 0 to 10. */
class JxModuleInfo
{
public:
    enum JxModuleTypes {
        Unspecified,
        JxLabelEditor,
        GHS,
        ArcFlashMain,
        PipeMarking,
        NFPAMain,
        JxCatalog,
        QuickPrint,
        PDFViewer,
        JavaScript,
        GraphicsViewer
    };
};

#endif
