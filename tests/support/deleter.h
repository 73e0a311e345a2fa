// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef DELETER_H
#define DELETER_H

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

/** A host that deletes a widget when it receives a signal. */
class Deleter : public QObject
{
    Q_OBJECT

public:
    enum When { AtOnce, Soon };

    explicit Deleter(QWidget* widget = nullptr) : target(widget) {}

    /** SLOT() text of the slot that deletes then. */
    static const char* slot(When when)
    {
        return when == AtOnce ? SLOT(deleteAtOnce()) : SLOT(deleteSoon());
    }

    QPointer<QWidget> target;
    int calls = 0;

public Q_SLOTS:
    void deleteAtOnce()
    {
        ++calls;
        delete target.data();
    }
    void deleteSoon()
    {
        ++calls;
        if (target)
            target->deleteLater();
    }
};

#endif
