// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TESTS_SAMPLEHOST_OFFSCREENSCREEN_H
#define TESTS_SAMPLEHOST_OFFSCREENSCREEN_H

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

/** Gives the offscreen platform a screen of another size than its own, 800 x 800. */
class OffscreenScreen
{
public:
    /** Effective for an application object that is created during the life of this one. */
    OffscreenScreen(int width, int height) : m_before(QDir::currentPath())
    {
        QFile file(m_folder.filePath(QStringLiteral("screens.json")));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(QStringLiteral("{\"screens\": [{\"name\": \"screen\", \"x\": 0, \"y\": 0, "
                                      "\"width\": %1, \"height\": %2, \"logicalDpi\": 96, "
                                      "\"logicalBaseDpi\": 96, \"dpr\": 1}]}")
                           .arg(width)
                           .arg(height)
                           .toLatin1());
        }
        // The platform would take the colon of a full path for the end of it.
        QDir::setCurrent(m_folder.path());
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screens.json");
    }
    ~OffscreenScreen()
    {
        QDir::setCurrent(m_before);
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }

private:
    Q_DISABLE_COPY_MOVE(OffscreenScreen)

    QTemporaryDir m_folder;
    QString m_before;
};

/** Runs a test on a screen of that size. */
template <typename Test>
int runOnScreen(int width, int height, int argc, char** argv)
{
    auto screen = std::make_unique<OffscreenScreen>(width, height);
    QApplication application(argc, argv);
    screen.reset();
    Test test;
    return QTest::qExec(&test, argc, argv);
}

#endif
