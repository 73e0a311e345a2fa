// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_SIGNALLOG_H
#define GALLERY_SIGNALLOG_H

#include <QtWidgets/QPlainTextEdit>

namespace Gallery {

/** Lists what a panel tells its host. */
class SignalLog : public QPlainTextEdit
{
public:
    explicit SignalLog(QWidget* parent = nullptr);

    /** Listens to all signals of a panel or dialog, and of the panel in a dialog. */
    void listenTo(QWidget* panel);

private:
    template <class Sender, typename... Arguments>
    void add(Sender* panel, const char* name, void (Sender::*signal)(Arguments...));
};

} // namespace Gallery

#endif
