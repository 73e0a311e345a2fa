// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/designs/requestsheet.h"
#include "samplehost/label/pipemarker.h"
#include "samplehost/pages/catalogpage.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/pdfcontent.h"
#include "support/stricttest.h"

#include <printpanels/quickprintwidget.h>

#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QStyle>

#include <functional>

using namespace SampleHost;

namespace {

/** Prints on each page of a host. */
class PrintFixture : public HostFixture
{
public:
    bool printLabels()
    {
        find<QCheckBox>("backgroundCheck")->setChecked(true);
        typeList(QStringLiteral("1,4-5"));
        return print() == Outcome::Completed;
    }

    bool printSheets()
    {
        window->settings().setNup(NupLayout{2, 2});
        typeList(QStringLiteral("2-6"));
        click("sequencingRadio");
        return print() == Outcome::Completed;
    }

    bool printMarker()
    {
        window->setCurrentPage(pipes());
        return printWith(pipes().controller(),
                         pipes().findChild<QWidget*>(QStringLiteral("PrintButton"))) ==
               Outcome::Completed;
    }

    bool printItem()
    {
        CatalogPage& page = window->catalogPage();
        window->setCurrentPage(page);
        page.setCurrentItem(1);
        return printWith(page.controller(),
                         page.panel().findChild<QWidget*>(QStringLiteral("printButton"))) ==
               Outcome::Completed;
    }
};

using Print = bool (PrintFixture::*)();

struct Printout
{
    const char* name;
    Print print;
};

constexpr Printout printouts[] = {
    {"labels", &PrintFixture::printLabels},
    {"sheets", &PrintFixture::printSheets},
    {"pipe marker", &PrintFixture::printMarker},
    {"catalogue item", &PrintFixture::printItem},
};

/** Another language for every text of the interface. */
class OtherLanguage : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QChar(0x5d0) + QString::fromUtf8(text);
    }
};

QPalette darkPalette()
{
    QPalette palette(QColor(0x20, 0x20, 0x20));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
    }
    palette.setColor(QPalette::Base, Qt::black);
    return palette;
}

QFont otherFont()
{
    QFont font(QStringLiteral("Serif"), 30, QFont::Black, true);
    font.setUnderline(true);
    font.setStretch(150);
    font.setCapitalization(QFont::AllUppercase);
    return font;
}

/** The application as it is without changes to its look and language. */
class Interface
{
public:
    Interface()
        : m_palette(QApplication::palette()),
          m_font(QApplication::font()),
          m_style(QApplication::style()->name())
    {
    }

    void restore() const
    {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QApplication::setStyle(m_style);
        qApp->setStyleSheet(QString());
        QApplication::setPalette(m_palette);
        QApplication::setFont(m_font);
        QLocale::setDefault(QLocale::c());
    }

private:
    QPalette m_palette;
    QFont m_font;
    QString m_style;
};

using Change = std::function<void()>;

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Print)

/** What is printed is the same whatever the interface looks like and speaks. */
class TestPrintedText : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() override;
    void isTheSameInEveryInterface_data();
    void isTheSameInEveryInterface();
    void previewsAreTheSameInEveryInterface_data();
    void previewsAreTheSameInEveryInterface();

private:
    void addInterfaces();

    OtherLanguage m_language;
    Interface m_interface;
    QMap<QString, QByteArray> m_expected;
    QImage m_expectedPreview;
};

namespace {

QImage previewOf(const HostFixture& host)
{
    PrintRequest request;
    request.sequenceEnd = 4;
    request.nup = NupLayout{2, 2};
    request.nupMode = NupMode::Sequencing;
    request.userBackground = true;
    return renderFirstSheet(host.labels().design(), request, QSize(600, 600));
}

} // namespace

void TestPrintedText::initTestCase()
{
    for (const Printout& printout : printouts) {
        PrintFixture host;
        QVERIFY((host.*printout.print)());
        m_expected[QString::fromLatin1(printout.name)] = pdfContent(host.outputPath());
    }
    m_expectedPreview = previewOf(PrintFixture());
}

void TestPrintedText::cleanup()
{
    QCoreApplication::removeTranslator(&m_language);
    m_interface.restore();
}

void TestPrintedText::addInterfaces()
{
    QTest::addColumn<Change>("change");
    const auto add = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
    add("as it is", [] {});
    add("right to left", [] { QGuiApplication::setLayoutDirection(Qt::RightToLeft); });
    add("dark", [] { QApplication::setPalette(darkPalette()); });
    add("style sheet", [] {
        qApp->setStyleSheet(QStringLiteral("* { color: white; background: black; font: 20pt }"));
    });
    add("style", [] { QApplication::setStyle(QStringLiteral("windows")); });
    add("font", [] { QApplication::setFont(otherFont()); });
    add("locale", [] { QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt)); });
    add("language", [this] { QCoreApplication::installTranslator(&m_language); });
}

void TestPrintedText::isTheSameInEveryInterface_data()
{
    addInterfaces();
}

void TestPrintedText::isTheSameInEveryInterface()
{
    QFETCH(Change, change);
    change();
    for (const Printout& printout : printouts) {
        PrintFixture host;
        QVERIFY2((host.*printout.print)(), printout.name);
        QVERIFY2(pdfContent(host.outputPath()) == m_expected[QString::fromLatin1(printout.name)],
                 printout.name);
    }
}

void TestPrintedText::previewsAreTheSameInEveryInterface_data()
{
    addInterfaces();
}

void TestPrintedText::previewsAreTheSameInEveryInterface()
{
    QFETCH(Change, change);
    change();
    QVERIFY(previewOf(PrintFixture()) == m_expectedPreview);
}

QTEST_MAIN(TestPrintedText)

#include "tst_printedtext.moc"
