// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Run by hand: prints the table of docs/accessibility.md that compares the panels with the print
// dialogs of Qt.
#include "accessibility/accessibletree.h"
#include "livepanel.h"

#include <QtCore/QTextStream>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrintPreviewDialog>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <memory>

namespace {

/** A dialog of Qt with the printer that it needs. */
template <typename Dialog>
struct DialogOfQt
{
    DialogOfQt() { printer.setOutputFileName(QStringLiteral("unused.pdf")); }

    QPrinter printer;
    Dialog dialog{&printer};
};

QString line(const QString& name, QWidget* window)
{
    window->show();
    QCoreApplication::processEvents();
    const QList<AccessibleControl> controls = accessibleControls(window);
    const auto onlyValue = [](const AccessibleControl& control) {
        return control.name.trimmed().isEmpty() && control.role == QAccessible::ComboBox &&
               !control.value.isEmpty();
    };
    const qsizetype unnamed = unnamedControls(window).size();
    const qsizetype values = std::count_if(controls.begin(), controls.end(), onlyValue);
    return QStringLiteral("| %1 | %2 | %3 | %4 |")
        .arg(name)
        .arg(controls.size())
        .arg(unnamed - values)
        .arg(values);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    QTextStream out(stdout);
    out << "| window | controls | without a name | combo boxes with only their value |\n"
        << "|---|---|---|---|\n";
    const QList<PanelKind> kinds = panelKinds();
    for (const PanelKind& kind : kinds) {
        const std::unique_ptr<QWidget> panel(kind.create());
        out << line(QString::fromLatin1(kind.name), panel.get()) << '\n';
    }
    DialogOfQt<QPrintDialog> print;
    out << line(QStringLiteral("`QPrintDialog`"), &print.dialog) << '\n';
    DialogOfQt<QPrintPreviewDialog> preview;
    out << line(QStringLiteral("`QPrintPreviewDialog`"), &preview.dialog) << '\n';
    return 0;
}
