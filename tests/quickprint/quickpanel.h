// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef QUICKPANEL_H
#define QUICKPANEL_H

#include <QtCore/QStringList>

#include <printpanels/quickprintwidget.h>

#include <memory>

class JxLineEdit;
class JxSpinBox;
class QGridLayout;
class QLabel;
class QPushButton;

/** A panel and its parts by name. */
class QuickPanel : public QuickPrintWidget
{
public:
    explicit QuickPanel(bool quickPrint = false, QWidget* parent = nullptr);

    QPushButton* button(const char* name) const;
    QLabel* nameLabel() const;
    QFrame* resizeFrame() const;
    JxLineEdit* lengthEdit() const;
    JxLineEdit* widthEdit() const;
    JxSpinBox* copies() const;
    QWidget* view() const;
    QGridLayout* grid() const;
};

/** One line per child: class, name, hidden or not, enabled or not, text. */
QStringList stateOf(const QWidget& panel);

#endif
