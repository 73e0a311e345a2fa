// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/catalogpage.h"
#include "samplehost/pages/pdfpage.h"
#include "samplehost/printing/labelpreview.h"
#include "samplehost/printing/pdfpreview.h"
#include "samplehost/support/hostfixture.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QMetaMethod>
#include <QtCore/QRegularExpression>

using namespace SampleHost;

namespace {

/** Counts the receivers of an object's signals, which only its own class is allowed to. */
struct Receivers : QObject
{
    static int count(const QObject& object, const QMetaMethod& signal)
    {
        // The code before the signature is what the macro SIGNAL puts there.
        const QByteArray code = QByteArrayLiteral("2") + signal.methodSignature();
        return (object.*(&Receivers::receivers))(code.constData());
    }
};

QByteArrayList signalsOf(const QMetaObject& metaObject, const QMetaObject& below)
{
    QByteArrayList names;
    for (int i = below.methodCount(); i < metaObject.methodCount(); ++i) {
        if (metaObject.method(i).methodType() == QMetaMethod::Signal) {
            names.append(metaObject.method(i).methodSignature());
        }
    }
    return names;
}

QString sourceText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/** The sources of the host, all in one, with what it shares with the examples. */
QString hostSources()
{
    QString all;
    for (const QString& folder :
         {QStringLiteral("/samplehost"), QStringLiteral("/examples/previewinput")}) {
        QDirIterator files(QStringLiteral(PROJECT_SOURCE_DIR) + folder,
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            all += sourceText(files.next());
        }
    }
    return all;
}

/** The names of a class's public functions and slots, without constructors and destructor. */
QStringList publicOperations(QString header)
{
    header.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"),
                                     QRegularExpression::DotMatchesEverythingOption));
    header.remove(QRegularExpression(QStringLiteral("//[^\n]*")));
    header = header.mid(header.indexOf(QLatin1String("Q_OBJECT")));
    static const QRegularExpression section(
        QStringLiteral("^(public|protected|private|Q_SIGNALS)( Q_SLOTS)?:"),
        QRegularExpression::MultilineOption);
    static const QRegularExpression function(QStringLiteral("\\b([a-z]\\w*)\\("));
    QStringList names;
    QRegularExpressionMatchIterator sections = section.globalMatch(header);
    while (sections.hasNext()) {
        const QRegularExpressionMatch start = sections.next();
        const qsizetype end = sections.hasNext() ? sections.peekNext().capturedStart() : -1;
        if (start.captured(1) != QLatin1String("public")) {
            continue;
        }
        const qsizetype length = end < 0 ? -1 : end - start.capturedEnd();
        auto functions = function.globalMatch(header.mid(start.capturedEnd(), length));
        while (functions.hasNext()) {
            names.append(functions.next().captured(1));
        }
    }
    names.removeDuplicates();
    // Called by Qt.
    names.removeAll(QStringLiteral("showEvent"));
    return names;
}

} // namespace

/** The sample host is to show all of the library at work: every signal answered, every operation
 * used. */
class TestLibraryCoverage : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everySignalIsConnected_data();
    void everySignalIsConnected();
    void signalsAreAnsweredBesidesBeingLogged_data();
    void signalsAreAnsweredBesidesBeingLogged();
    void everyOperationIsUsed_data();
    void everyOperationIsUsed();

private:
    const QObject* object(const QString& name) const;

    std::unique_ptr<HostFixture> m_host;
};

void TestLibraryCoverage::initTestCase()
{
    m_host = std::make_unique<HostFixture>(true);
    // Popups are made when they are needed first.
    m_host->click("PreviewButton");
    m_host->window->setCurrentPage(m_host->pipes());
    QTest::mouseClick(m_host->pipes().panel().findChild<QWidget*>(QStringLiteral("PreviewButton")),
                      Qt::LeftButton);
}

const QObject* TestLibraryCoverage::object(const QString& name) const
{
    const QHash<QString, const QObject*> objects{
        {QStringLiteral("labels"), &m_host->panel()},
        {QStringLiteral("pipes"), &m_host->pipes().panel()},
        {QStringLiteral("labels preview"), m_host->labels().preview().popup()},
        {QStringLiteral("pipes preview"), m_host->pipes().preview().popup()},
        {QStringLiteral("catalogue"), &m_host->window->catalogPage().panel()},
        {QStringLiteral("documents"), &m_host->window->pdfPage().preview().panel()},
        {QStringLiteral("document window"), &m_host->window->pdfPage().preview().dialog()},
    };
    return objects.value(name);
}

void TestLibraryCoverage::everySignalIsConnected_data()
{
    addColumns<QString, int>("name", "signalCount");

    addRow("labels", "labels", 12);
    addRow("pipes", "pipes", 12);
    addRow("labels preview", "labels preview", 3);
    addRow("pipes preview", "pipes preview", 3);
    addRow("catalogue", "catalogue", 11);
    addRow("documents", "documents", 14);
    addRow("document window", "document window", 0);
}

void TestLibraryCoverage::everySignalIsConnected()
{
    QFETCH(QString, name);
    const QObject* sender = object(name);
    QVERIFY(sender != nullptr);
    const QMetaObject& below = qobject_cast<const QDialog*>(sender) != nullptr
                                   ? QDialog::staticMetaObject
                                   : QWidget::staticMetaObject;
    const QByteArrayList signatures = signalsOf(*sender->metaObject(), below);
    QTEST(int(signatures.size()), "signalCount");
    for (const QByteArray& signature : signatures) {
        const QMetaMethod signal =
            sender->metaObject()->method(sender->metaObject()->indexOfSignal(signature));
        QVERIFY2(Receivers::count(*sender, signal) > 0, signature.constData());
    }
}

void TestLibraryCoverage::signalsAreAnsweredBesidesBeingLogged_data()
{
    addColumns<QString, QByteArray>("name", "signature");

    const auto add = [](const char* name, const QByteArrayList& signatures) {
        for (const QByteArray& signature : signatures) {
            QTest::addRow("%s %s", name, signature.constData())
                << QString::fromLatin1(name) << signature;
        }
    };
    const QByteArrayList panelSignals{"widgetPrintSignal(int,int,QString)",
                                      "printPreviewSignal(int,int,QString)",
                                      "openPreferencesSignal()",
                                      "currentPrinterSelectionChanged(QString)",
                                      "printWidgetShowSignal()",
                                      "supplyWidthChangedSignal(double)",
                                      "supplyColorsChangedSignal(QStringList)",
                                      "tinyLadderSupplyChangedSignal(bool)",
                                      "testPrintError(int)"};
    add("labels", panelSignals);
    add("pipes", panelSignals);
    add("pipes", {"ammoniaPrintTagChanged(int)"});
    const QByteArrayList previewSignals{"previewPrintSignal(int,int,QString)",
                                        "orientationChangedSignal(int)", "popupHideSignal()"};
    add("labels preview", previewSignals);
    add("pipes preview", previewSignals);
    add("catalogue",
        {"widgetPrintSignal(int,int,QString)", "openModuleSignal()", "resizeSignal(QSizeF)"});
    add("documents", {"widgetPrintSignal(int,int,QString)", "openPreferencesSignal()",
                      "currentPrinterSelectionChanged(QString)", "startPageChangedSignal(int)",
                      "printFormFillChangedSignal(int)", "fitToPageChangedSignal(int)",
                      "orientationChangedSignal(int)"});
}

void TestLibraryCoverage::signalsAreAnsweredBesidesBeingLogged()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, signature);
    const QObject* sender = object(name);
    const int index = sender->metaObject()->indexOfSignal(signature);
    QVERIFY(index >= 0);
    QVERIFY(Receivers::count(*sender, sender->metaObject()->method(index)) > 1);
}

void TestLibraryCoverage::everyOperationIsUsed_data()
{
    addColumns<QString, int>("header", "least");

    addRow("interface", "foundation/printwidgetinterface.h", 24);
    addRow("print settings", "printpanel/printwidget.h", 30);
    addRow("quick print", "quickprint/quickprintwidget.h", 14);
    addRow("preview", "preview/printpreviewdialog.h", 8);
    addRow("multi-page panel", "multipage/multipageprintwidget.h", 22);
    addRow("multi-page window", "multipage/multipageprintdialog.h", 3);
}

void TestLibraryCoverage::everyOperationIsUsed()
{
    QFETCH(QString, header);
    QFETCH(int, least);
    const QStringList operations =
        publicOperations(sourceText(QStringLiteral(PROJECT_SOURCE_DIR "/") + header));
    QVERIFY2(operations.size() >= least, qPrintable(operations.join(QLatin1Char(' '))));
    const QString host = hostSources();
    QStringList unused;
    for (const QString& operation : operations) {
        // Called on an object, or handed over as what a signal or a shortcut calls.
        const QRegularExpression use(QStringLiteral("(\\.|->)%1\\(|&\\w+::%1\\b").arg(operation));
        if (!use.match(host).hasMatch()) {
            unused.append(operation);
        }
    }
    QCOMPARE(unused, QStringList());
}

QTEST_MAIN(TestLibraryCoverage)

#include "tst_librarycoverage.moc"
