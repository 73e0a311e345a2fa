// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_CONTAINERTITLEBAR_H
#define CUSTOMKIT_CONTAINERTITLEBAR_H

#include <customkit_export.h>

#include <QtCore/QPoint>
#include <QtWidgets/QWidget>

class QLabel;

/** The title bar of the frameless windows. The windows move and close themselves. */
class CUSTOMKIT_EXPORT ContainerTitleBar : public QWidget
{
    Q_OBJECT

public:
    /** What the second text and the number mean is the kit's business; here they tell nothing. */
    ContainerTitleBar(QWidget* parent, const QString& title, const QString&, int);

    void setTitle(const QString& title);

Q_SIGNALS:
    void closeButtonClicked();
    /** The user drags the window: where its top left corner is to go. */
    void signalMove(int x, int y);

protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QLabel* m_label;
    QPoint m_grip; // from the pointer to the window's corner
};

#endif
