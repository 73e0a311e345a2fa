// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/contrast.h"

#include <QtCore/QMap>
#include <QtGui/QImage>
#include <QtGui/QPalette>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStyleOptionComboBox>

#include <algorithm>
#include <cmath>

namespace {

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

QRect buttonTextPlace(const QAbstractButton* button)
{
    // A tool button has a text and shows its picture.
    if (button->text().trimmed().isEmpty() || button->inherits("QToolButton"))
        return QRect();
    QStyleOptionButton option;
    option.initFrom(button);
    if (qobject_cast<const QPushButton*>(button) != nullptr)
        return button->rect().adjusted(6, 6, -6, -6);
    const bool isRadio = button->inherits("QRadioButton");
    const QRect contents = button->style()->subElementRect(
        isRadio ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents, &option, button);
    return contents.adjusted(2, 0, -2, 0);
}

QRect editTextPlace(const QLineEdit* edit)
{
    const bool hasText = !edit->text().isEmpty() || !edit->placeholderText().isEmpty();
    return hasText ? edit->rect().adjusted(4, 4, -4, -4) : QRect();
}

QRect comboTextPlace(const QComboBox* combo)
{
    if (combo->currentText().isEmpty())
        return QRect();
    QStyleOptionComboBox option;
    option.initFrom(combo);
    return combo->style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
        .adjusted(3, 3, -3, -3);
}

QString nameOf(const QWidget* control)
{
    const QString kind = QString::fromLatin1(control->metaObject()->className());
    const QString text = control->property("text").toString().simplified();
    return QStringLiteral("%1 %2 '%3'").arg(kind, control->objectName(), text);
}

bool isText(const QWidget* control)
{
    // Part of a control that is looked at as a whole.
    const QWidget* parent = control->parentWidget();
    return qobject_cast<const QAbstractSpinBox*>(parent) == nullptr &&
           qobject_cast<const QComboBox*>(parent) == nullptr && !textPlace(control).isEmpty();
}

} // namespace

double contrastRatio(const QColor& a, const QColor& b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

QString description(const TextContrast& contrast)
{
    return QStringLiteral("%1: %2 on %3, %4:1")
        .arg(contrast.control.simplified(), contrast.text.name(), contrast.ground.name())
        .arg(contrast.ratio, 0, 'f', 2);
}

TextContrast contrastIn(const QImage& picture, const QRect& place, const QString& control)
{
    QMap<QRgb, int> counts; // in order, for a tie
    const QRect inside = place & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    TextContrast result;
    result.control = control;
    int most = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > most) {
            most = it.value();
            result.ground = QColor(it.key());
        }
    }
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        const double ratio = contrastRatio(QColor(it.key()), result.ground);
        if (ratio > result.ratio) {
            result.ratio = ratio;
            result.text = QColor(it.key());
        }
    }
    return result;
}

QRect textPlace(const QWidget* control)
{
    if (const auto* label = qobject_cast<const QLabel*>(control))
        return label->text().trimmed().isEmpty() ? QRect() : label->contentsRect();
    if (const auto* button = qobject_cast<const QAbstractButton*>(control))
        return buttonTextPlace(button);
    if (const auto* edit = qobject_cast<const QLineEdit*>(control))
        return editTextPlace(edit);
    if (const auto* spinBox = qobject_cast<const QAbstractSpinBox*>(control))
        return spinBox->rect().adjusted(4, 4, -4, -4);
    if (const auto* combo = qobject_cast<const QComboBox*>(control))
        return comboTextPlace(combo);
    return QRect();
}

TextContrast textContrast(QWidget* window, const QWidget* control)
{
    const QRect place = textPlace(control).translated(control->mapTo(window, QPoint()));
    return contrastIn(window->grab().toImage(), place, nameOf(control));
}

QList<TextContrast> textContrasts(QWidget* window)
{
    const QImage picture = window->grab().toImage();
    QList<TextContrast> contrasts;
    const QList<QWidget*> controls = window->findChildren<QWidget*>();
    for (const QWidget* control : controls) {
        if (!control->isVisible() || !control->isEnabled() || control->window() != window ||
            !isText(control))
            continue;
        // A hidden part of a scrolled page is not looked at.
        const QRect place = textPlace(control) & control->visibleRegion().boundingRect();
        if (place.size() == textPlace(control).size())
            contrasts.append(contrastIn(picture, place.translated(control->mapTo(window, QPoint())),
                                        nameOf(control)));
    }
    return contrasts;
}

QList<TextContrast> listContrasts(QComboBox* combo)
{
    combo->showPopup();
    const QAbstractItemView* view = combo->view();
    const bool shown = QTest::qWaitForWindowExposed(view->window());
    QList<TextContrast> contrasts;
    const QImage picture = view->viewport()->grab().toImage();
    for (int row = 0; shown && row < combo->count(); ++row) {
        const QModelIndex index = combo->model()->index(row, combo->modelColumn());
        const QString name = nameOf(combo) + QStringLiteral(" item ") + combo->itemText(row);
        const TextContrast contrast =
            contrastIn(picture, view->visualRect(index).adjusted(2, 2, -2, -2), name);
        if (row == combo->currentIndex())
            contrasts.prepend(contrast);
        else
            contrasts.append(contrast);
    }
    combo->hidePopup();
    return contrasts;
}

TextContrast leastContrast(const QList<TextContrast>& contrasts)
{
    const auto least = std::min_element(
        contrasts.begin(), contrasts.end(),
        [](const TextContrast& a, const TextContrast& b) { return a.ratio < b.ratio; });
    return least == contrasts.end() ? TextContrast() : *least;
}

QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    }
    palette.setColor(QPalette::Base, QColor(0x25, 0x25, 0x25));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}
