// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_TITLEBARPARTS_H
#define PRINTPANELS_HOSTKIT_TITLEBARPARTS_H

#include <QtGui/QIcon>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

namespace HostKit {

/** The title: white plain text, elided if it does not fit. text() returns the full text. */
class TitleBarLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TitleBarLabel(const QString& text, QWidget* parent);

    /** Returns true if the text does not fit. */
    bool isElided() const;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/** The close button. Not a QPushButton, so that style sheets for push buttons do not affect it. */
class TitleBarButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit TitleBarButton(QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // Kept, because Qt would cache the pixmaps of every new QIcon again.
    QIcon m_cross;
    QIcon m_pressedCross;
};

} // namespace HostKit

#endif
