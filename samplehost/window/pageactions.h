// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PAGEACTIONS_H
#define SAMPLEHOST_PAGEACTIONS_H

#include <QtCore/QList>
#include <QtCore/QObject>

class QKeySequence;
class QMenu;
class QToolBar;

namespace SampleHost {

class ControlAction;
class HostPage;

/** The actions that operate the controls of the current page. */
class PageActions : public QObject
{
    Q_OBJECT

public:
    /** Creates the actions, disabled. */
    explicit PageActions(QObject* parent);

    /** Lets the user type as soon as the list of a page is chosen. */
    void addPage(const HostPage& page);

    /** Operates the controls of another page from now on. */
    void setPage(const HostPage& page);

    /** Adds Print and Print Preview. */
    void addPrintActions(QMenu& menu) const;
    void addPrintActions(QToolBar& toolBar) const;

    /** Adds the choice of records and of the printer. */
    void addChoices(QMenu& menu) const;

private:
    ControlAction* add(const char* name, const QString& text, const QKeySequence& keys);

    ControlAction* m_print = nullptr;
    ControlAction* m_preview = nullptr;
    ControlAction* m_current = nullptr;
    ControlAction* m_all = nullptr;
    ControlAction* m_list = nullptr;
    ControlAction* m_printer = nullptr;
};

} // namespace SampleHost

#endif
