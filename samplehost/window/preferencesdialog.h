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
 * Lets the user change the settings: where files go, on what paper, how many labels on a sheet, in
 * which unit sizes are shown.
 */
class PreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    /** Shows the settings as they are; they change only when the user accepts. */
    explicit PreferencesDialog(HostSettings& settings, QWidget* parent = nullptr);

    /** Takes over what was entered, unless the folder does not exist, and closes. */
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
