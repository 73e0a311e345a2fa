// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LAMINATOR_H
#define SAMPLEHOST_LAMINATOR_H

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>

class ColorMenu;
class PrintWidget;

namespace SampleHost {

/**
 * Plays a laminator behind the label printer, which the panels know nothing of: it gives each of
 * them a tab of its own for the colour of the film. The film is the same in all of them.
 */
class Laminator : public QObject
{
    Q_OBJECT

public:
    /** A laminator that is not fitted, with clear film. */
    explicit Laminator(QObject* parent = nullptr);
    ~Laminator() override;

    /** Fits the laminator to a panel that knows of its supply. It cannot be taken off. */
    void fit(PrintWidget& panel);

    /** Tells how many ribbons the panels show: two from the start. The film's tab is the last. */
    void setTwoRibbons(bool twoRibbons) { m_twoRibbons = twoRibbons; }

    /** The code of the film's colour; "transparent" for clear film. */
    QString film() const { return m_film; }

Q_SIGNALS:
    /** The user chose another film. */
    void filmChanged(const QString& color);

private:
    struct Fitting
    {
        QPointer<PrintWidget> panel;
        QPointer<ColorMenu> menu;
    };

    void setFilm(const QString& color);
    int tabIndex() const;

    QList<Fitting> m_fittings;
    QString m_film;
    bool m_twoRibbons = true;
};

} // namespace SampleHost

#endif
