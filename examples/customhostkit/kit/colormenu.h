// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_COLORMENU_H
#define CUSTOMKIT_COLORMENU_H

#include <customkit_export.h>

#include <QtCore/QList>
#include <QtWidgets/QWidget>

class QAbstractButton;

/** A grid of colours to pick from. */
class CUSTOMKIT_EXPORT ColorMenu : public QWidget
{
    Q_OBJECT

public:
    explicit ColorMenu(QWidget* parent = nullptr);

    /** Replaces the colours. The panels give the codes as the only list. */
    void setColorPalette(QList<QString> names, QList<QString> codes);
    /** Marks a colour, without a signal. */
    void updateSelectedColor(QString color);
    /** Shows or hides the entry "transparent". */
    void setTransparentColorVisible(bool visible);

Q_SIGNALS:
    /** The user picked the colour of this code. */
    void colorSignal(QString color);

private:
    QAbstractButton* createSwatch(const QString& code);

    QList<QAbstractButton*> m_swatches;
    bool m_transparentVisible = false;
};

#endif
