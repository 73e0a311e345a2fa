// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_TITLEBARPARTS_H
#define PRINTPANELS_HOSTKIT_TITLEBARPARTS_H

#include <QtCore/QHash>
#include <QtGui/QIcon>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

namespace HostKit {

/**
 * The title: white plain text in the font of the bar. A text that does not fit is shown smaller, or
 * elided if it would become too small. text() returns the full text.
 */
class TitleBarLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TitleBarLabel(const QString& text, QWidget* parent);

    /** Sets the font of the bar, which no style sheet for labels changes. */
    void setTitleFont(const QFont& font);

    /** Returns true if the text does not fit. */
    bool isElided() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString paintedText() const;
    QFont fittedFont() const;

    QFont m_titleFont;
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
    // By file. Kept, because Qt would cache the pixmaps of every new QIcon again.
    QHash<QString, QIcon> m_crosses;
};

} // namespace HostKit

#endif
