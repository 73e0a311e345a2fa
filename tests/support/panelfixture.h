// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PANELFIXTURE_H
#define PANELFIXTURE_H

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QLabel>

class QAbstractButton;
class QPushButton;

/** The part of @p window with this object name, or null when there is none of this kind. */
template <typename Part>
Part* part(const QWidget& window, const char* name)
{
    return window.findChild<Part*>(QLatin1String(name));
}

/** The label of @p window that shows exactly @p text, or null. */
QLabel* labelWithText(const QWidget& window, const QString& text);

/** Shows @p panel and waits until it is on the screen. */
bool showPanel(QWidget& panel);

/** Shows @p window, activates it and waits until it has the keyboard. */
bool showActive(QWidget& window);

/** A user's click on the left end of a button, where a radio button or check box has its indicator.
 */
void clickOn(QAbstractButton* button);

/** Code of the entry that a colour menu marks as selected; empty without one. */
QString selectedColor(const QWidget* menu);

/** @p widget and all that it consists of. */
QList<QPointer<QObject>> partsOf(QWidget* widget);

/** Returns true if all @p parts are deleted. */
bool areGone(const QList<QPointer<QObject>>& parts);

/** One line per child: class, name, hidden or not, enabled or not, text, checked or not, tool tip.
 */
QStringList stateOf(const QWidget& window);

/** A panel that finds its parts by name: the base of the fixtures for the kinds of panels. */
template <typename Panel>
class PanelFixture : public Panel
{
public:
    using Panel::Panel;

    template <typename Part>
    Part* part(const char* name) const
    {
        return ::part<Part>(*this, name);
    }
    QPushButton* button(const char* name) const { return part<QPushButton>(name); }
    /** The canvas of a panel that has a preview. */
    QWidget* view() const { return part<QWidget>("PreviewView"); }
};

#endif
