// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/preferencesdialog.h"

#include "samplehost/pages/nupcombo.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/window/combolists.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace SampleHost {

namespace {

constexpr int metricIndex = 1;

} // namespace

PreferencesDialog::PreferencesDialog(HostSettings& settings, QWidget* parent)
    : QDialog(parent), m_settings(settings)
{
    setObjectName(QStringLiteral("preferencesDialog"));
    setWindowTitle(tr("Print Preferences"));
    createWidgets();
    m_folderEdit->setText(QDir::toNativeSeparators(settings.outputFolder()));
    m_fileEdit->setText(settings.outputFileName());
    m_paperCombo->setCurrentIndex(m_paperCombo->findData(int(settings.paper())));
    m_nupCombo->setLayoutChoice(settings.nup());
    m_unitCombo->setCurrentIndex(settings.isMetric() ? metricIndex : 0);
    connect(m_folderEdit, &QLineEdit::textChanged, this, &PreferencesDialog::checkEntries);
    connect(m_fileEdit, &QLineEdit::textChanged, this, &PreferencesDialog::checkEntries);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &PreferencesDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &PreferencesDialog::reject);
    checkEntries();
    nameComboLists(*this);
}

void PreferencesDialog::createWidgets()
{
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addFolderRow(form);
    m_fileEdit = new QLineEdit;
    m_fileEdit->setObjectName(QStringLiteral("fileEdit"));
    form->addRow(tr("PDF file:"), m_fileEdit);
    m_paperCombo = new QComboBox;
    m_paperCombo->setObjectName(QStringLiteral("paperCombo"));
    for (const Paper paper : {Paper::LabelSize, Paper::A4, Paper::Letter}) {
        m_paperCombo->addItem(paperName(paper), int(paper));
    }
    form->addRow(tr("Paper:"), m_paperCombo);
    m_nupCombo = new NupCombo;
    m_nupCombo->setObjectName(QStringLiteral("preferencesNupCombo"));
    form->addRow(tr("Sheet:"), m_nupCombo);
    m_unitCombo = new QComboBox;
    m_unitCombo->setObjectName(QStringLiteral("preferencesUnitCombo"));
    m_unitCombo->addItems({tr("Inches"), tr("Millimetres")});
    form->addRow(tr("Sizes in:"), m_unitCombo);

    m_problemLabel = new QLabel;
    m_problemLabel->setObjectName(QStringLiteral("problemLabel"));
    m_problemLabel->setTextFormat(Qt::PlainText);
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(m_problemLabel);
    column->addStretch(1);
    column->addWidget(m_buttons);
    setMinimumWidth(440);
}

void PreferencesDialog::addFolderRow(QFormLayout* form)
{
    m_folderEdit = new QLineEdit;
    m_folderEdit->setObjectName(QStringLiteral("folderEdit"));
    auto* browse = new QPushButton(tr("Browse..."));
    browse->setObjectName(QStringLiteral("browseButton"));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &PreferencesDialog::chooseFolder);
    auto* row = new QHBoxLayout;
    row->addWidget(m_folderEdit, 1);
    row->addWidget(browse);
    auto* label = new QLabel(tr("Output folder:"));
    label->setBuddy(m_folderEdit);
    form->addRow(label, row);
}

void PreferencesDialog::chooseFolder()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Output Folder"), m_folderEdit->text());
    if (!folder.isEmpty()) {
        m_folderEdit->setText(QDir::toNativeSeparators(folder));
    }
}

void PreferencesDialog::checkEntries()
{
    QString problem;
    const QString name = m_fileEdit->text();
    const QString folder = m_folderEdit->text();
    if (folder.contains(QChar::Null) || !QFileInfo(folder).isDir()) {
        problem = tr("This folder does not exist. Choose another one.");
    } else if (!HostSettings::isFileName(name) || name == QLatin1String(".") ||
               name == QLatin1String("..")) {
        problem = tr("Enter a file name without a folder.");
    }
    m_problemLabel->setText(problem);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty());
}

void PreferencesDialog::accept()
{
    if (m_problemLabel->text().isEmpty()) {
        m_settings.setOutputFolder(QDir::fromNativeSeparators(m_folderEdit->text()));
        m_settings.setOutputFileName(m_fileEdit->text());
        m_settings.setPaper(Paper(m_paperCombo->currentData().toInt()));
        m_settings.setNup(m_nupCombo->layoutChoice());
        m_settings.setMetric(m_unitCombo->currentIndex() == metricIndex);
        QDialog::accept();
    }
}

} // namespace SampleHost
