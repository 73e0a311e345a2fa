// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Compares the panels with plain Qt widgets under extreme loads, such as a faulty host may cause.
// Both sides run alternately in one process. Compare the ratios: absolute times depend on what else
// the machine is doing.
#include <printpanels-hostkit/containertitlebar.h>
#include <printpanels-hostkit/jxcombobox.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QElapsedTimer>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int rounds = 5;
constexpr int manyPrinters = 100000;
constexpr int longText = 1000000;
constexpr int largeSide = 30000;

using Work = std::function<void()>;

double medianMs(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void compare(const char* name, const Work& ours, const Work& plain)
{
    std::vector<double> ourTimes;
    std::vector<double> plainTimes;
    for (int round = 0; round < rounds; ++round) {
        for (const bool our : {true, false}) {
            QElapsedTimer timer;
            timer.start();
            our ? ours() : plain();
            (our ? ourTimes : plainTimes).push_back(double(timer.nsecsElapsed()) / 1e6);
        }
    }
    const double our = medianMs(ourTimes);
    const double other = medianMs(plainTimes);
    std::printf("%-34s %10.3f ms %10.3f ms  %8.2f\n", name, our, other, our / other);
}

QStringList printerNames()
{
    QStringList names;
    names.reserve(manyPrinters);
    for (int i = 0; i < manyPrinters; ++i)
        names.append(QStringLiteral("Printer %1").arg(i));
    return names;
}

/** Delivers posted events and paints @p widget, as the event loop would. */
void updateAndPaint(QWidget& widget)
{
    QCoreApplication::sendPostedEvents();
    widget.grab();
}

void benchPrinters()
{
    const QStringList names = printerNames();
    PrintWidget panel(false, nullptr);
    MultiPagePrintWidget pages(true, false, nullptr);
    QComboBox combo;
    for (QWidget* widget : std::initializer_list<QWidget*>{&panel, &pages, &combo})
        widget->show();
    const Work plain = [&] {
        combo.clear();
        combo.addItems(names);
        updateAndPaint(combo);
    };
    const auto fill = [&](auto& target) {
        target.updateListOfPrinters(names, 7);
        updateAndPaint(target);
    };
    compare(
        "100,000 printers, PrintWidget", [&] { fill(panel); }, plain);
    compare(
        "100,000 printers, MultiPage", [&] { fill(pages); }, plain);
    compare(
        "choose the last of them", [&] { panel.setSelectedPrinter(names.constLast()); },
        [&] { combo.setCurrentText(names.constLast()); });
    compare(
        "add one more at the top", [&] { panel.addPrinterToList(QStringLiteral("x"), true); },
        [&] { combo.insertItem(0, QStringLiteral("x")); });
}

void benchTexts()
{
    const QString text(longText, QLatin1Char('W'));
    PrintWidget panel(false, nullptr);
    QuickPrintWidget quick(true, nullptr);
    ContainerTitleBar title(nullptr, QString(), QString(), {});
    JxComboBox box;
    QComboBox plainBox;
    QLabel label;
    QLineEdit edit;
    for (QWidget* widget :
         std::initializer_list<QWidget*>{&panel, &quick, &title, &box, &plainBox, &label, &edit})
        widget->show();
    const Work plainLabel = [&] {
        label.setText(QString());
        label.setText(text);
        updateAndPaint(label);
    };
    const Work plainCombo = [&] {
        plainBox.clear();
        plainBox.addItem(text);
        updateAndPaint(plainBox);
    };
    const auto item = [&] {
        box.clear();
        box.addItem(text);
        updateAndPaint(box);
    };
    compare(
        "1 MB location",
        [&] {
            panel.updatePrinterLocation(QString());
            panel.updatePrinterLocation(text);
            updateAndPaint(panel);
        },
        plainLabel);
    compare(
        "1 MB printer of QuickPrint",
        [&] {
            quick.setCurrentPrinterName(QString());
            quick.setCurrentPrinterName(text);
            updateAndPaint(quick);
        },
        plainLabel);
    compare(
        "1 MB title",
        [&] {
            title.setTitle(QString());
            title.setTitle(text);
            updateAndPaint(title);
        },
        plainLabel);
    compare("1 MB item", item, plainCombo);
    compare(
        "paint a 1 MB item again", [&] { updateAndPaint(box); }, [&] { updateAndPaint(plainBox); });
    compare(
        "1 MB printer of PrintWidget",
        [&] {
            panel.updateListOfPrinters({text}, 0);
            updateAndPaint(panel);
        },
        plainCombo);
    compare(
        "paint the panel again", [&] { updateAndPaint(panel); }, [&] { updateAndPaint(plainBox); });
    auto* list = panel.findChild<QLineEdit*>(QStringLiteral("recordListEdit"));
    QString records = QStringLiteral("1,").repeated(longText / 2);
    compare(
        "1 MB record list set",
        [&] {
            list->clear();
            list->setText(records);
            updateAndPaint(*list);
        },
        [&] {
            edit.clear();
            edit.setText(records);
            updateAndPaint(edit);
        });
    compare(
        "type behind it",
        [&] {
            list->insert(QStringLiteral("2"));
            list->backspace();
            updateAndPaint(*list);
        },
        [&] {
            edit.insert(QStringLiteral("2"));
            edit.backspace();
            updateAndPaint(edit);
        });
}

void benchPictures()
{
    QImage picture(largeSide, largeSide, QImage::Format_Grayscale8);
    picture.fill(0x80);
    const QSizeF size(10, 10);
    PrintPreviewDialog view(nullptr, Qt::Dialog, picture, size, size, false, false, false, 1, -1,
                            QString());
    view.show();
    QuickPrintWidget quick(true, nullptr);
    quick.show();
    QImage screen(832, 381, QImage::Format_ARGB32_Premultiplied);
    const Work plain = [&] {
        QPainter painter(&screen);
        painter.drawImage(screen.rect(), picture);
    };
    compare(
        "paint 30,000 x 30,000 pixels", [&] { view.grab(); }, plain);
    compare(
        "zoom in and paint",
        [&] {
            view.zoomIn();
            view.grab();
        },
        plain);
    compare(
        "set it",
        [&] {
            view.updatePreview(picture, size, size, false, false, false, 1, -1, QString());
            view.grab();
        },
        plain);
    compare(
        "set it in QuickPrint",
        [&] {
            quick.updateQuickPrint(picture);
            quick.grab();
        },
        plain);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    std::printf("%-34s %13s %13s  %8s\n", "", "panel", "plain Qt", "ratio");
    benchPrinters();
    benchTexts();
    benchPictures();
    return 0;
}
