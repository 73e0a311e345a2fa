// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/textfit.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QStyleOptionFrame>
#include <QtWidgets/QTabBar>

#include <optional>

namespace {

/** A text and the place where it is painted. */
struct PaintedText
{
    QString text;
    QSize place;
};

std::optional<PaintedText> labelText(const QLabel* label)
{
    // Elided, with a tool tip: the texts of the host.
    const bool isElided = label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ||
                          label->parentWidget()->inherits("ContainerTitleBar");
    if (label->text().isEmpty() || isElided)
        return {};
    return PaintedText{label->text(), label->contentsRect().size()};
}

std::optional<PaintedText> buttonText(const QAbstractButton* button)
{
    if (button->text().isEmpty())
        return {};
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    auto contents = QStyle::SE_PushButtonContents;
    if (qobject_cast<const QCheckBox*>(button))
        contents = QStyle::SE_CheckBoxContents;
    else if (qobject_cast<const QRadioButton*>(button))
        contents = QStyle::SE_RadioButtonContents;
    return PaintedText{button->text(),
                       button->style()->subElementRect(contents, &option, button).size()};
}

std::optional<PaintedText> placeholder(const QLineEdit* edit)
{
    if (edit->placeholderText().isEmpty() || !edit->text().isEmpty())
        return {};
    QStyleOptionFrame option;
    option.initFrom(edit);
    option.lineWidth = edit->hasFrame()
                           ? edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit)
                           : 0;
    constexpr int sideMargin = 2; // Qt's own, on either side of the text
    const QRect contents = edit->style()
                               ->subElementRect(QStyle::SE_LineEditContents, &option, edit)
                               .marginsRemoved(edit->textMargins())
                               .adjusted(sideMargin, 0, -sideMargin, 0);
    return PaintedText{edit->placeholderText(), contents.size()};
}

std::optional<PaintedText> comboText(const QComboBox* combo)
{
    // The printers are the host's texts.
    if (combo->objectName() == QLatin1String("PrinterListCombo") || combo->currentText().isEmpty())
        return {};
    QStyleOptionComboBox option;
    option.initFrom(combo);
    option.editable = combo->isEditable();
    const QRect field = combo->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                       QStyle::SC_ComboBoxEditField, combo);
    return PaintedText{combo->currentText(), field.adjusted(1, 0, -1, 0).size()};
}

std::optional<PaintedText> groupTitle(const QGroupBox* box)
{
    if (box->title().isEmpty())
        return {};
    return PaintedText{box->title(), box->contentsRect().size()};
}

QList<PaintedText> tabTexts(const QTabBar* bar)
{
    QList<PaintedText> texts;
    for (int i = 0; i < bar->count(); ++i) {
        // A single character stands for a picture.
        if (bar->tabText(i).size() > 1)
            texts.append({bar->tabText(i), bar->tabRect(i).size()});
    }
    return texts;
}

QList<PaintedText> textsOf(const QWidget* widget)
{
    std::optional<PaintedText> text;
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        text = labelText(label);
    else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        text = buttonText(button);
    else if (const auto* edit = qobject_cast<const QLineEdit*>(widget))
        text = placeholder(edit);
    else if (const auto* combo = qobject_cast<const QComboBox*>(widget))
        text = comboText(combo);
    else if (const auto* box = qobject_cast<const QGroupBox*>(widget))
        text = groupTitle(box);
    else if (const auto* bar = qobject_cast<const QTabBar*>(widget))
        return tabTexts(bar);
    return text ? QList<PaintedText>{*text} : QList<PaintedText>();
}

QString describe(const QWidget* widget, const QString& text, const QString& problem)
{
    return QStringLiteral("%1 \"%2\": %3")
        .arg(widget->objectName().isEmpty() ? QString::fromLatin1(widget->metaObject()->className())
                                            : widget->objectName(),
             text, problem);
}

QString sizeText(const QSize& size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

// What a control needs a place for: its text, and a place in all that it lies in.
QStringList problemsOf(const QWidget* widget, const QWidget& window)
{
    QStringList problems;
    for (const PaintedText& text : textsOf(widget)) {
        const QSize needed = widget->fontMetrics().size(Qt::TextShowMnemonic, text.text);
        if (needed.width() > text.place.width() || needed.height() > text.place.height())
            problems.append(describe(
                widget, text.text,
                QStringLiteral("needs %1, has %2").arg(sizeText(needed), sizeText(text.place))));
        for (const QWidget* outer = widget; outer != &window; outer = outer->parentWidget()) {
            const QRect place(widget->mapTo(outer->parentWidget(), QPoint()), widget->size());
            // A control that its sheet makes 37 pixels high may stand out of its row by a pixel.
            if (!outer->parentWidget()->rect().adjusted(0, -1, 0, 1).contains(place))
                problems.append(describe(widget, text.text,
                                         QStringLiteral("stands out of ") +
                                             outer->parentWidget()->objectName()));
        }
    }
    return problems;
}

QList<const QWidget*> visibleParts(const QWidget& window)
{
    QList<const QWidget*> visible;
    const QList<QWidget*> parts = window.findChildren<QWidget*>();
    for (const QWidget* part : parts) {
        if (part->isVisibleTo(&window) && part->window() == window.window())
            visible.append(part);
    }
    return visible;
}

} // namespace

QStringList clippedTexts(const QWidget& window)
{
    QStringList problems;
    for (const QWidget* part : visibleParts(window))
        problems += problemsOf(part, window);
    return problems;
}

int measuredTexts(const QWidget& window)
{
    int count = 0;
    for (const QWidget* part : visibleParts(window))
        count += int(textsOf(part).size());
    return count;
}
