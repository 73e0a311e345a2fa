// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TESTS_SAMPLEHOST_DOCUMENTFIXTURE_H
#define TESTS_SAMPLEHOST_DOCUMENTFIXTURE_H

#include "samplehost/pages/pdfpage.h"
#include "samplehost/pages/recordnavigator.h"
#include "samplehost/printing/pdfpreview.h"
#include "samplehost/printing/pdfprintcontroller.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/pdfoutput.h"
#include "samplehost/support/pdfsamples.h"
#include "samplehost/window/eventlog.h"

#include <printpanels-hostkit/containertitlebar.h>
#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>

/** A host whose page of documents is driven by its widgets. */
class DocumentFixture : public virtual HostFixture
{
public:
    using HostFixture::HostFixture;

    SampleHost::PdfPage& page() const { return window->pdfPage(); }
    SampleHost::RecordNavigator& navigator() const { return page().navigator(); }
    SampleHost::PdfPreview& preview() const { return page().preview(); }
    MultiPagePrintWidget& documentPanel() const { return preview().panel(); }
    MultiPagePrintDialog& dialog() const { return preview().dialog(); }

    /** Writes a document whose pages say their number, and opens it. */
    bool openNumbered(int pages, const char* name = "in.pdf") const
    {
        return PdfSamples::writeNumbered(path(name), pages) && page().open(path(name));
    }

    /** Writes a document and opens it. */
    bool openBytes(const QByteArray& bytes, const char* name = "in.pdf") const
    {
        return PdfSamples::write(path(name), bytes) && page().open(path(name));
    }

    /** Opens the window "Preview and Print" by its button. */
    bool showDialog() const
    {
        press("documentPrintButton");
        return dialog().isVisible();
    }

    /** A widget of the page, or of its window "Preview and Print", by object name. */
    template <typename Widget = QWidget>
    Widget* widget(const char* name) const
    {
        return page().findChild<Widget*>(QString::fromLatin1(name));
    }

    /** Clicks a widget of the page or of its window, where a radio button listens too. */
    void press(const char* name) const { click(widget(name)); }

    /** Chooses "Selection" and types over the list. */
    void typePages(const QString& list) const
    {
        press("selectionRadio");
        widget<QLineEdit>("pageListEdit")->clear();
        QTest::keyClicks(widget("pageListEdit"), list);
    }

    /** The text of the title bar of "Preview and Print". */
    QString title() const { return dialog().findChild<ContainerTitleBar*>()->title(); }

    /** What "Preview and Print" shows of the sheet, with the surround. */
    QImage previewPicture() const
    {
        return dialog().findChild<QWidget*>(QStringLiteral("PreviewView"))->grab().toImage();
    }

    /** Presses Print and waits for the end of the job; nothing when there was no job. */
    std::optional<Outcome> print() { return printWith(page().controller(), widget("PrintButton")); }

    /** The numbers of the pages that were printed, as their texts say, with blanks between. */
    QString printedPages() const
    {
        QStringList numbers;
        const QStringList texts = PdfOutput::texts(outputPath());
        for (const QString& text : texts) {
            const QString head = QStringLiteral("Page ");
            numbers.append(text.startsWith(head) ? text.mid(head.size()) : QStringLiteral("?"));
        }
        return numbers.join(QLatin1Char(' '));
    }
};

#endif
