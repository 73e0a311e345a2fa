// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LABELTYPEBAR_H
#define SAMPLEHOST_LABELTYPEBAR_H

#include <QtWidgets/QWidget>

class QCheckBox;

namespace SampleHost {

class HostSettings;
class NupCombo;

/** The properties of a label type that determine what its print panel offers. */
class LabelTypeBar : public QWidget
{
    Q_OBJECT

public:
    /** A bar bound to the settings, which must outlive it. */
    explicit LabelTypeBar(HostSettings& settings, QWidget* parent = nullptr);

    /** Whether the length of the label follows its contents. */
    bool isDynamicLength() const;
    /** Whether the label takes its contents from the data source. */
    bool isBound() const;
    void setBound(bool bound);
    /** Whether the user has put a background layer under the label. */
    bool hasUserBackground() const;

Q_SIGNALS:
    /** One of the properties changed. The layout of sheets belongs to HostSettings. */
    void changed();

private:
    void createWidgets();
    QCheckBox* addCheck(const QString& name, const QString& text, const QString& toolTip,
                        bool checked);
    void showSettings();

    HostSettings& m_settings;
    NupCombo* m_nupCombo = nullptr;
    QCheckBox* m_dynamicCheck = nullptr;
    QCheckBox* m_boundCheck = nullptr;
    QCheckBox* m_backgroundCheck = nullptr;
};

} // namespace SampleHost

#endif
