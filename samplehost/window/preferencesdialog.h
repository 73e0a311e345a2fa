// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PREFERENCESDIALOG_H
#define SAMPLEHOST_PREFERENCESDIALOG_H

#include <QtWidgets/QDialog>

class QComboBox;
class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace SampleHost {

class HostSettings;
class NupCombo;

/**
 * Lets the user change the settings: the output file, the paper, the number of labels on a sheet
 * and the unit of sizes.
 */
class PreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    /** Shows the settings; they change only when the user accepts. */
    explicit PreferencesDialog(HostSettings& settings, QWidget* parent = nullptr);

    /** Applies the entries and closes, unless one is invalid. */
    void accept() override;

private:
    void createWidgets();
    void addFolderRow(QFormLayout* form);
    void chooseFolder();
    void checkEntries();

    HostSettings& m_settings;
    QLineEdit* m_folderEdit = nullptr;
    QLineEdit* m_fileEdit = nullptr;
    QComboBox* m_paperCombo = nullptr;
    NupCombo* m_nupCombo = nullptr;
    QComboBox* m_unitCombo = nullptr;
    QLabel* m_problemLabel = nullptr;
    QDialogButtonBox* m_buttons = nullptr;
};

} // namespace SampleHost

#endif
