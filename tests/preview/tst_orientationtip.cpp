// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"
#include "support/translationrecorder.h"

#include <QtCore/QLibrary>

#include <memory>

class tst_OrientationTip : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void isTranslatedWhenTheLibraryIsLoaded();
};

namespace {

QString tipOf(QLibrary& probe)
{
    using Function = void (*)(QString*);
    const auto function = reinterpret_cast<Function>(probe.resolve("orientationTip"));
    QString tip;
    if (function)
        function(&tip);
    return tip;
}

} // namespace

void tst_OrientationTip::isTranslatedWhenTheLibraryIsLoaded()
{
    const QString expected = TranslationRecorder::marked(
        QStringLiteral("QObject"), QStringLiteral("Switch Print Orientation"),
        QStringLiteral("The text on the tooltip to switch print orientation."));
    QLibrary probe(QStringLiteral(PROBE_LIBRARY));
    auto translator = std::make_unique<TranslationRecorder>(QStringLiteral("QObject"));
    QVERIFY2(probe.load(), qPrintable(probe.errorString()));
    QCOMPARE(tipOf(probe), expected);
    // It stays what it was when the translator goes.
    translator.reset();
    QCOMPARE(tipOf(probe), expected);
}

QTEST_MAIN(tst_OrientationTip)
#include "tst_orientationtip.moc"
