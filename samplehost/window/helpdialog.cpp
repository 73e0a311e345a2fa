// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/helpdialog.h"

#include "samplehost/commandline/hostparts.h"

#include <QtGui/QKeySequence>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QVBoxLayout>

namespace SampleHost {

namespace {

// Fits a screen of 800 x 480 with the frame of the window.
constexpr QSize dialogSize(640, 400);

/** A key and what it does, for the user. */
struct KeyHelp
{
    QKeySequence keys;
    const char* text;
};

} // namespace

HelpDialog::HelpDialog(const HostParts& parts, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("helpDialog"));
    setWindowTitle(tr("Help"));
    auto* text = new QPlainTextEdit;
    text->setObjectName(QStringLiteral("helpText"));
    text->setReadOnly(true);
    // The arrow keys scroll.
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const QString gap = QStringLiteral("\n\n");
    text->setPlainText(steps(parts).join(gap) + gap + keys().join(QLatin1Char('\n')));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(text, 1);
    column->addWidget(buttons);
    resize(dialogSize);
}

QStringList HelpDialog::steps(const HostParts& parts)
{
    QStringList steps{
        tr("To print labels:"),
        tr("1. Choose a record with the buttons below the label."),
        tr("2. Choose in the panel which records are printed: the current one, all, or a list such "
           "as 1,4-5."),
        tr("3. Choose the printer and the number of copies. \"PDF file\" is no printer: it writes "
           "a file, which the preferences name."),
        tr("4. Press Print Preview. The popup shows the first sheet, and you can print from there, "
           "too."),
        tr("5. Press Print."),
        tr("The other tabs have pipe markers and ready-made signs, which are printed likewise."),
    };
    if (parts.documents) {
        steps.append(tr("To print a PDF document, open it in the tab Documents and press Preview "
                        "and Print."));
    }
    steps.append(tr("The preferences in the menu File have the folder and the name of the PDF "
                    "file, the paper, and how many labels are on a sheet."));
    steps.append(tr("The menu View shows a simulated label printer, which reports the loaded "
                    "supply, and the list of all signals of the panels."));
    return steps;
}

QStringList HelpDialog::keys()
{
    const KeyHelp table[] = {
        {QKeySequence::Print, QT_TR_NOOP("print")},
        {Qt::CTRL | Qt::SHIFT | Qt::Key_P, QT_TR_NOOP("print preview")},
        {Qt::CTRL | Qt::Key_1, QT_TR_NOOP("print the current record or page")},
        {Qt::CTRL | Qt::Key_2, QT_TR_NOOP("print all records or pages")},
        {Qt::CTRL | Qt::Key_3, QT_TR_NOOP("type a range or list")},
        {Qt::Key_F4, QT_TR_NOOP("choose the printer")},
        {QKeySequence::Refresh, QT_TR_NOOP("read the records again")},
        {Qt::Key_F11, QT_TR_NOOP("full screen, and back")},
        {QKeySequence::HelpContents, QT_TR_NOOP("this help")},
        {QKeySequence::Quit, QT_TR_NOOP("quit")},
    };
    QStringList lines{tr("Keys:")};
    for (const KeyHelp& key : table) {
        if (!key.keys.isEmpty()) {
            lines.append(tr("%1: %2", "Key and what it does")
                             .arg(key.keys.toString(QKeySequence::NativeText), tr(key.text)));
        }
    }
    return lines;
}

} // namespace SampleHost
