// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_HELPDIALOG_H
#define SAMPLEHOST_HELPDIALOG_H

#include <QtWidgets/QDialog>

namespace SampleHost {

struct HostParts;

/** Says what a user does first, and lists the keys. */
class HelpDialog : public QDialog
{
    Q_OBJECT

public:
    /** The help for a build with these parts. */
    explicit HelpDialog(const HostParts& parts, QWidget* parent = nullptr);

private:
    static QStringList steps(const HostParts& parts);
    static QStringList keys();
};

} // namespace SampleHost

#endif
