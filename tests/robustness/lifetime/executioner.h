// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef EXECUTIONER_H
#define EXECUTIONER_H

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

/** Deletes its victim when it hears a signal. */
class Executioner : public QObject
{
    Q_OBJECT

public:
    QPointer<QWidget> victim;
    int calls = 0;

public Q_SLOTS:
    void deleteNow()
    {
        ++calls;
        delete victim.data();
    }
    void deleteSoon()
    {
        ++calls;
        if (victim)
            victim->deleteLater();
    }
};

#endif
