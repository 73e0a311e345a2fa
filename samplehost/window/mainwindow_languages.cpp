// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/languages.h"
#include "samplehost/window/mainwindow.h"
#include "samplehost/window/messagebox.h"

#include <QtCore/QLocale>
#include <QtGui/QAction>
#include <QtGui/QActionGroup>
#include <QtWidgets/QMenu>

namespace SampleHost {

namespace {

/** A language in its own words, for example "Deutsch". */
QString nativeName(const QString& code)
{
    // QLocale calls it "American English".
    const QString name = code == QLatin1String("en") ? QStringLiteral("English")
                                                     : QLocale(code).nativeLanguageName();
    return name.isEmpty() ? code : name;
}

} // namespace

void MainWindow::addLanguageMenu(QMenu& menu)
{
    QMenu* languages = menu.addMenu(tr("&Language"));
    languages->setObjectName(QStringLiteral("languageMenu"));
    auto* group = new QActionGroup(languages);
    const auto add = [&](const QString& text, const QString& code) {
        QAction* action = group->addAction(text);
        action->setCheckable(true);
        action->setData(code);
        languages->addAction(action);
    };
    add(tr("&System"), QString());
    const QStringList codes = Languages::codes();
    for (const QString& code : codes) {
        add(nativeName(code), code);
    }
    const auto showChoice = [this, group] {
        const auto actions = group->actions();
        for (QAction* action : actions) {
            if (action->data().toString() == m_settings.language()) {
                action->setChecked(true);
            }
        }
    };
    showChoice();
    connect(&m_settings, &HostSettings::changed, group, showChoice);
    connect(group, &QActionGroup::triggered, this, [this](const QAction* action) {
        m_settings.setLanguage(action->data().toString());
        // The panels have taken their texts when they were created.
        showMessage(this, tr("Language"), tr("The language changes at the next start."));
    });
}

} // namespace SampleHost
