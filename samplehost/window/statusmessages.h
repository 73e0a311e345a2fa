// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_STATUSMESSAGES_H
#define SAMPLEHOST_STATUSMESSAGES_H

#include <QtCore/QObject>
#include <QtCore/QString>

class QStatusBar;

namespace SampleHost {

/** Messages in a status bar. One of an error leaves as soon as the user does something else. */
class StatusMessages : public QObject
{
    Q_OBJECT

public:
    /** Shows messages in a status bar, which must outlive this. */
    explicit StatusMessages(QStatusBar& bar, QObject* parent = nullptr);

    /** Shows a text until the next one. */
    void show(const QString& text);

    /** Shows why something failed, until the next text or clearError(). */
    void showError(const QString& text);

    /** Removes the text of an error; does nothing if another text is shown. */
    void clearError();

private:
    QStatusBar& m_bar;
    // Empty if the text in the status bar is not about an error.
    QString m_error;
};

} // namespace SampleHost

#endif
