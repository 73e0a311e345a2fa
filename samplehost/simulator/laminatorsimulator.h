// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LAMINATORSIMULATOR_H
#define SAMPLEHOST_LAMINATORSIMULATOR_H

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>

class ColorMenu;
class PrintWidget;

namespace SampleHost {

/**
 * Simulates a laminator behind the label printer. The panels have no support for one, so it adds a
 * tab for the colour of the film to each of them. All panels show the same film.
 */
class LaminatorSimulator : public QObject
{
    Q_OBJECT

public:
    /** A laminator with clear film, which no panel shows yet. */
    explicit LaminatorSimulator(QObject* parent = nullptr);

    /** Adds the tab to a panel that already has its supply section. It cannot be removed. */
    void connectPanel(PrintWidget& panel);

    /** Sets whether the panels show two ribbons, as by default. The tab follows the others. */
    void setTwoRibbons(bool twoRibbons) { m_twoRibbons = twoRibbons; }

    /** The code of the film's colour; "transparent" for clear film. */
    QString film() const { return m_film; }

Q_SIGNALS:
    /** The user chose another film. */
    void filmChanged(const QString& color);

private:
    struct Connection
    {
        QPointer<PrintWidget> panel;
        QPointer<ColorMenu> menu;
    };

    void setFilm(const QString& color);
    int tabIndex() const;

    QList<Connection> m_connections;
    QString m_film;
    bool m_twoRibbons = true;
};

} // namespace SampleHost

#endif
