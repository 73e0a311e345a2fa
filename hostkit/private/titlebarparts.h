// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_TITLEBARPARTS_H
#define PRINTPANELS_HOSTKIT_TITLEBARPARTS_H

#include <QtGui/QIcon>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

namespace HostKit {

/** The title: white, plain text, elided where it does not fit; text() stays whole. */
class TitleBarLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TitleBarLabel(const QString& text, QWidget* parent);

    /** True while the label has too little room for its text. */
    bool isElided() const;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/** The close button. It paints itself, so a style sheet for push buttons does not change it. */
class TitleBarButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit TitleBarButton(QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // Kept, because Qt caches the picture of every new icon anew.
    QIcon m_cross;
    QIcon m_pressedCross;
};

} // namespace HostKit

#endif
