// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <QtCore/QLibrary>
#include <QtCore/QTranslator>

namespace {

/** Gives the units every place marker that a title has. */
class MarkerTranslator : public QTranslator
{
public:
    QString translate(const char*, const char* text, const char*, int) const override
    {
        if (qstrcmp(text, " mm") == 0)
            return QStringLiteral(" mm%1%2%3%4%5");
        if (qstrcmp(text, "\"") == 0)
            return QStringLiteral("\"%1%2%3%4%5");
        return QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_PopupTitle : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void placeMarkersInAUnitStayText_data();
    void placeMarkersInAUnitStayText();

private:
    // The units are translated when the library is loaded, so the translator comes first.
    MarkerTranslator m_translator;
    QLibrary m_probe{QStringLiteral(PROBE_LIBRARY)};
};

void tst_PopupTitle::initTestCase()
{
    QVERIFY(QCoreApplication::installTranslator(&m_translator));
    QVERIFY2(m_probe.load(), qPrintable(m_probe.errorString()));
}

void tst_PopupTitle::placeMarkersInAUnitStayText_data()
{
    addColumns<bool, bool, QString>("printedSizeOnly", "metric", "title");
    addRow("printed size, millimetres", true, true,
           "Print Preview (3 mm%1%2%3%4%5 X 1 mm%1%2%3%4%5)");
    addRow("printed size, inches", true, false,
           "Print Preview (3.00\"%1%2%3%4%5 X 1.00\"%1%2%3%4%5)");
    addRow("both sizes, millimetres", false, true,
           "Print Preview (Design: 4 mm%1%2%3%4%5 X 2 mm%1%2%3%4%5  "
           "Printed: 3 mm%1%2%3%4%5 X 1 mm%1%2%3%4%5)");
    addRow("both sizes, inches", false, false,
           "Print Preview (Design: 4.00\"%1%2%3%4%5 X 2.00\"%1%2%3%4%5  "
           "Printed: 3.00\"%1%2%3%4%5 X 1.00\"%1%2%3%4%5)");
}

void tst_PopupTitle::placeMarkersInAUnitStayText()
{
    QFETCH(const bool, printedSizeOnly);
    QFETCH(const bool, metric);
    using Function = void (*)(bool, bool, QString*);
    const auto popupTitle = reinterpret_cast<Function>(m_probe.resolve("popupTitle"));
    QVERIFY(popupTitle);
    QString title;
    popupTitle(printedSizeOnly, metric, &title);
    QTEST(title, "title");
}

QTEST_MAIN(tst_PopupTitle)
#include "tst_popuptitle.moc"
