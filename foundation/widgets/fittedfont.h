// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_FITTEDFONT_H
#define PRINTPANELS_FITTEDFONT_H

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QFont>

class QWidget;

namespace PrintPanels {

/** Controls side by side, and the width that they have together. */
struct TextLine
{
    QList<QWidget*> controls;
    int width = 0;
    /** The gaps of a layout that are part of the width. */
    int gaps = 0;
};

/**
 * Gives controls of a fixed width a smaller font if their texts do not fit, as those of some
 * languages do not.
 *
 * The controls keep their fonts if all lines fit with them. Otherwise none has a larger font than
 * the first size that fits, so that buttons of one row look alike; sizes that nobody can read are
 * not tried. Follows changes of the controls' fonts and of their style.
 */
class FittedFont : public QObject
{
    Q_DISABLE_COPY_MOVE(FittedFont)

public:
    /** Watches the labels, buttons and edits of @p lines. The first of them becomes the parent. */
    explicit FittedFont(const QList<TextLine>& lines);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Control
    {
        QPointer<QWidget> widget;
        /** The font that the control has if all texts fit. */
        QFont font;
        /** In pixels; 0 while the control has its own font. */
        int reducedTo = 0;
    };
    struct Line
    {
        QList<qsizetype> controls;
        int width;
        int gaps;
    };

    void addLine(const TextLine& line);
    void rememberFont(QWidget* widget);
    void fit();
    bool fits(const Line& line, int largest) const;
    bool fits(int largest) const;
    void reduceTo(int largest);

    QList<Control> m_controls;
    QList<Line> m_lines;
};

/** Gives @p control a smaller font if its text does not fit into @p width, with @p gaps. */
void fitText(QWidget* control, int width, int gaps = 0);

} // namespace PrintPanels

#endif
