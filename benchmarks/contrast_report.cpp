// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "support/contrast.h"

#include <QtCore/QTextStream>
#include <QtGui/QPalette>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrintPreviewDialog>
#include <QtPrintSupport/QPrinter>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QStyleFactory>

#include <memory>

// Prints the least contrast of the enabled texts of each window, and of the items of the lists that
// its combo boxes open, as a Markdown table: in a light and in a dark application, ours and Qt's.

namespace {

QPrinter& printer()
{
    static QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    return printer;
}

QWidget* newQtPrintDialog()
{
    return new QPrintDialog(&printer());
}

QWidget* newQtPreviewDialog()
{
    return new QPrintPreviewDialog(&printer());
}

QString measured(const PanelKind& kind)
{
    const std::unique_ptr<QWidget> window(kind.create());
    window->show();
    if (!QTest::qWaitForWindowExposed(window.get()))
        return QStringLiteral("not shown");
    QList<TextContrast> contrasts = textContrasts(window.get());
    const QList<QComboBox*> combos = window->findChildren<QComboBox*>();
    for (QComboBox* combo : combos) {
        if (combo->isVisible() && combo->isEnabled() && combo->count() > 0)
            contrasts += listContrasts(combo);
    }
    const TextContrast least = leastContrast(contrasts);
    QTextStream(stderr) << kind.name << ": " << description(least) << '\n';
    return QStringLiteral("%1:1 (%2 on %3)")
        .arg(least.ratio, 0, 'f', 2)
        .arg(least.text.name(), least.ground.name());
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QPalette light = QApplication::palette();
    QList<PanelKind> kinds = panelKinds();
    kinds.append({"QPrintDialog", newQtPrintDialog});
    kinds.append({"QPrintPreviewDialog", newQtPreviewDialog});

    QTextStream out(stdout);
    out << "| Window | Light application | Dark application |\n|---|---|---|\n";
    for (const PanelKind& kind : std::as_const(kinds)) {
        out << "| " << kind.name;
        for (const QPalette& palette : {light, darkPalette()}) {
            QApplication::setPalette(palette);
            out << " | " << measured(kind);
        }
        out << " |\n";
    }
    return 0;
}
