// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <colormenu.h>

#include "colorswatch.h"
#include "colortext.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QColor>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

using HostKit::ColorSwatch;

namespace {
constexpr qsizetype maxEntries = 256;
constexpr int columns = 6;
constexpr int maxVisibleRows = 4;
constexpr int gap = 6;
constexpr int margin = 4;

// Without the signal, which then tells of assistive technology only.
void setChecked(ColorSwatch* swatch, bool checked)
{
    const QSignalBlocker blocker(swatch);
    swatch->setChecked(checked);
}

// Returns the name of a colour in a palette without names.
QString knownName(const QString& code)
{
    struct Known
    {
        const char* code;
        const char* name;
    };
    static constexpr Known table[] = {
        {"#ffffff", QT_TRANSLATE_NOOP("ColorMenu", "White")},
        {"#000000", QT_TRANSLATE_NOOP("ColorMenu", "Black")},
        {"#dc0b0b", QT_TRANSLATE_NOOP("ColorMenu", "Red")},
        {"#f28000", QT_TRANSLATE_NOOP("ColorMenu", "Orange")},
        {"#fedb00", QT_TRANSLATE_NOOP("ColorMenu", "Yellow")},
        {"#248d4f", QT_TRANSLATE_NOOP("ColorMenu", "Green")},
        {"#0018a8", QT_TRANSLATE_NOOP("ColorMenu", "Blue")},
        {"#00ffff", QT_TRANSLATE_NOOP("ColorMenu", "Cyan")},
        {"#473333", QT_TRANSLATE_NOOP("ColorMenu", "Brown")},
        {"#41b6e6", QT_TRANSLATE_NOOP("ColorMenu", "Sky Blue")},
        {"#7238ab", QT_TRANSLATE_NOOP("ColorMenu", "Purple")},
        {"#a0a0a0", QT_TRANSLATE_NOOP("ColorMenu", "Gray")},
        {"#fffffe", QT_TRANSLATE_NOOP("ColorMenu", "Clear")},
        {"transparent", QT_TRANSLATE_NOOP("ColorMenu", "Transparent")},
    };
    for (const Known& known : table) {
        if (code.compare(QLatin1String(known.code), Qt::CaseInsensitive) == 0)
            return ColorMenu::tr(known.name);
    }
    return code;
}
} // namespace

ColorMenu::ColorMenu(QWidget* parent) : QWidget(parent), m_scrollArea(new QScrollArea(this))
{
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->viewport()->setAutoFillBackground(false);
    m_scrollArea->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_scrollArea, 0, Qt::AlignTop);
    replaceContents();
    arrangeSwatches();
}

ColorMenu::~ColorMenu() = default;

void ColorMenu::setColorPalette(QList<QString> names, QList<QString> codes)
{
    const bool named = !names.isEmpty() && !codes.isEmpty();
    if (codes.isEmpty())
        codes.swap(names);
    const qsizetype count = named ? qMin(names.size(), codes.size()) : codes.size();
    const bool hadFocus = isAncestorOf(window()->focusWidget());
    const QPointer<QWidget> before = controlBefore();
    // Hiding the old entry would give the focus to an editor of the host for a moment.
    if (hadFocus)
        setFocus(Qt::OtherFocusReason);
    replaceContents();
    for (qsizetype i = 0; i < count && m_swatches.size() < maxEntries; ++i) {
        const QString& code = codes.at(i);
        if (HostKit::isColorText(code))
            addSwatch(named ? names.at(i) : knownName(code), code);
    }
    arrangeSwatches();
    addToTabOrder(before);
    updateSelectedColor(m_selectedColor);
    ColorSwatch* stop = hadFocus ? tabStop(nullptr) : nullptr;
    if (stop)
        stop->setFocus(Qt::OtherFocusReason);
}

void ColorMenu::updateSelectedColor(QString color)
{
    m_selectedColor = color;
    bool found = false;
    for (ColorSwatch* swatch : std::as_const(m_swatches)) {
        const bool checked = !found && swatch->code() == color;
        setChecked(swatch, checked);
        found = found || checked;
    }
    updateTabStop(window()->focusWidget());
}

void ColorMenu::setTransparentColorVisible(bool visible)
{
    if (visible == m_transparentVisible)
        return;
    m_transparentVisible = visible;
    arrangeSwatches();
}

void ColorMenu::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        updateExtent();
}

void ColorMenu::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    updateExtent();
}

bool ColorMenu::eventFilter(QObject* watched, QEvent* event)
{
    auto* swatch = qobject_cast<ColorSwatch*>(watched);
    if (swatch && event->type() == QEvent::FocusIn)
        updateTabStop(swatch);
    if (swatch && event->type() == QEvent::FocusOut)
        updateTabStop(nullptr);
    if (!swatch || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* keyEvent = static_cast<QKeyEvent*>(event);
    if (keyEvent->key() == Qt::Key_Return || keyEvent->key() == Qt::Key_Enter) {
        event->accept();
        if (!keyEvent->isAutoRepeat())
            swatch->click();
        return true;
    }
    return moveFocus(swatch, keyEvent->key());
}

void ColorMenu::addSwatch(const QString& name, const QString& code)
{
    auto* swatch = new ColorSwatch(name, code, m_scrollArea->widget());
    swatch->installEventFilter(this);
    const auto pickSwatch = [this, swatch] { pick(swatch); };
    connect(swatch, &ColorSwatch::clicked, this, pickSwatch);
    // Qt toggles a checkable button for assistive technology instead of clicking it.
    connect(swatch, &ColorSwatch::toggled, this, pickSwatch);
    m_swatches.append(swatch);
}

// The old swatches are deleted later: a press on a swatch may take the focus from an editor, and
// the host may respond to the edited value with a new palette before Qt delivers the press. Until
// then they are hidden children of the menu, so that they do not outlive it, and unnamed and
// unchecked, so that they are not mistaken for entries.
void ColorMenu::replaceContents()
{
    for (ColorSwatch* swatch : std::as_const(m_swatches)) {
        swatch->disconnect(this);
        swatch->setObjectName(QString());
        swatch->setChecked(false);
        swatch->hide();
    }
    m_swatches.clear();
    if (QWidget* old = m_scrollArea->takeWidget()) {
        old->hide();
        old->setParent(this);
        old->deleteLater();
    }
    auto* contents = new QWidget;
    auto* grid = new QGridLayout(contents);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(gap);
    m_scrollArea->setWidget(contents);
    contents->setAutoFillBackground(false);
}

QList<ColorSwatch*> ColorMenu::shownSwatches() const
{
    QList<ColorSwatch*> shown;
    for (ColorSwatch* swatch : m_swatches) {
        if (m_transparentVisible || swatch->code() != HostKit::transparentText())
            shown.append(swatch);
    }
    return shown;
}

void ColorMenu::arrangeSwatches()
{
    auto* grid = static_cast<QGridLayout*>(m_scrollArea->widget()->layout());
    for (ColorSwatch* swatch : std::as_const(m_swatches)) {
        grid->removeWidget(swatch);
        swatch->setVisible(m_transparentVisible || swatch->code() != HostKit::transparentText());
    }
    const QList<ColorSwatch*> shown = shownSwatches();
    int index = 0;
    for (ColorSwatch* swatch : shown) {
        grid->addWidget(swatch, index / columns, index % columns);
        ++index;
    }
    for (int column = 0; column < columns; ++column) {
        grid->setColumnMinimumWidth(column, ColorSwatch::touchSize);
        grid->setColumnStretch(column, 1);
    }
    updateTabStop(window()->focusWidget());
    updateExtent();
}

// Fits the size to the rows that are shown; a longer palette scrolls.
void ColorMenu::updateExtent()
{
    const QList<ColorSwatch*> shown = shownSwatches();
    QSize cell(ColorSwatch::touchSize, ColorSwatch::touchSize);
    if (!shown.isEmpty()) {
        // The host's style sheet for push buttons may add a border.
        shown.first()->ensurePolished();
        cell = cell.expandedTo(shown.first()->minimumSize());
    }
    const int rows = (int(shown.size()) + columns - 1) / columns;
    const int visibleRows = qBound(1, rows, maxVisibleRows);
    const int barWidth =
        rows > visibleRows ? m_scrollArea->verticalScrollBar()->sizeHint().width() : 0;
    m_scrollArea->setFixedHeight(visibleRows * (cell.height() + gap) - gap + 2 * margin);
    m_scrollArea->setMinimumWidth(columns * (cell.width() + gap) - gap + 2 * margin + barWidth);
}

void ColorMenu::pick(ColorSwatch* swatch)
{
    const QString code = swatch->code();
    m_selectedColor = code;
    for (ColorSwatch* other : std::as_const(m_swatches))
        setChecked(other, other == swatch);
    // Must come last: a slot may delete the menu.
    Q_EMIT colorSignal(code);
}

// The control that Tab visits before the menu. Null if there is none.
QWidget* ColorMenu::controlBefore() const
{
    const QWidget* first = m_swatches.isEmpty() ? this : static_cast<QWidget*>(m_swatches.first());
    QWidget* before = first->previousInFocusChain();
    while (before != first && (isAncestorOf(before) || before->focusPolicy() == Qt::NoFocus ||
                               before->window() != window()))
        before = before->previousInFocusChain();
    return before == first || before == this ? nullptr : before;
}

// Otherwise the entries of a new palette would be the last in the window.
void ColorMenu::addToTabOrder(QWidget* before)
{
    for (ColorSwatch* swatch : std::as_const(m_swatches)) {
        if (before)
            setTabOrder(before, swatch);
        before = swatch;
    }
}

// The entry that Tab goes to: the one that has the focus, else the selected one, else the first.
ColorSwatch* ColorMenu::tabStop(const QWidget* focused) const
{
    const QList<ColorSwatch*> shown = shownSwatches();
    ColorSwatch* stop = shown.value(0);
    for (ColorSwatch* swatch : shown) {
        if (swatch == focused)
            return swatch;
        if (swatch->isChecked())
            stop = swatch;
    }
    return stop;
}

void ColorMenu::updateTabStop(const QWidget* focused)
{
    const ColorSwatch* stop = tabStop(focused);
    for (ColorSwatch* swatch : std::as_const(m_swatches))
        swatch->setFocusPolicy(swatch == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

bool ColorMenu::moveFocus(ColorSwatch* from, int key)
{
    const QList<ColorSwatch*> shown = shownSwatches();
    const int forward = isRightToLeft() ? -1 : 1;
    qsizetype step = 0;
    switch (key) {
    case Qt::Key_Left:
        step = -forward;
        break;
    case Qt::Key_Right:
        step = forward;
        break;
    case Qt::Key_Up:
        step = -columns;
        break;
    case Qt::Key_Down:
        step = columns;
        break;
    case Qt::Key_Home:
        step = -shown.indexOf(from);
        break;
    case Qt::Key_End:
        step = shown.size() - 1 - shown.indexOf(from);
        break;
    default:
        return false;
    }
    const qsizetype target = shown.indexOf(from) + step;
    if (target >= 0 && target < shown.size()) {
        shown.at(target)->setFocus(Qt::OtherFocusReason);
        m_scrollArea->ensureWidgetVisible(shown.at(target), gap, gap);
    }
    return true;
}
