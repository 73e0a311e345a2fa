// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Compares what every panel looks like in every state with a picture of it. One program for all
// variants, each of which needs a process of its own: GOLDEN_VARIANT=rtl@2x tst_golden
#include "golden/comparison.h"
#include "golden/goldenpictures.h"
#include "golden/pngfile.h"
#include "golden/renderer.h"
#include "golden/textfile.h"
#include "golden/variant.h"
#include "states/panelstate.h"
#include "states/snapshot.h"
#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

using Gallery::PanelState;

namespace {

const QString folder = QStringLiteral(GOLDEN_PICTURES);
const QString recorded = QStringLiteral(GOLDEN_RECORDED);

QStringList stateNames()
{
    QStringList names;
    const QList<PanelState> states = Gallery::panelStates();
    for (const PanelState& state : states)
        names.append(QLatin1String(state.name));
    names.sort();
    return names;
}

} // namespace

class tst_Golden : public StrictTest
{
    Q_OBJECT

public:
    explicit tst_Golden(const Variant& variant)
        : m_variant(variant),
          m_pictures(folder + u'/' + variant.name(), variant.name() == QStringLiteral("ltr")
                                                         ? GoldenPictures::Whole
                                                         : GoldenPictures::Strips)
    {
    }

private Q_SLOTS:
    void initTestCase();
    void namesOfStatesAreUnique();
    void everyPictureBelongsToAState();
    void aStateLooksAsRecorded_data();
    void aStateLooksAsRecorded();

private:
    QString failure(const QString& state, const char* what) const;
    void compareStates(const QString& name, const QImage& actual) const;

    const Variant& m_variant;
    GoldenPictures m_pictures;
    Tolerance m_tolerance = Tolerance::None;
};

QString tst_Golden::failure(const QString& state, const char* what) const
{
    return QStringLiteral(GOLDEN_FAILURES "/%1/%2-%3.png")
        .arg(m_variant.name(), state, QLatin1String(what));
}

void tst_Golden::initTestCase()
{
    QDir(QStringLiteral(GOLDEN_FAILURES "/") + m_variant.name()).removeRecursively();
    const QString renderer = rendererDescription();
    if (isRenewing())
        QVERIFY(renewText(recorded, renderer));
    if (renderer == readText(recorded))
        return;
    m_tolerance = Tolerance::Rough;
    qInfo("The pictures were made with\n%s, so they are compared roughly here, with\n%s",
          qPrintable(readText(recorded)), qPrintable(renderer));
}

void tst_Golden::namesOfStatesAreUnique()
{
    QStringList names = stateNames();
    const qsizetype count = names.size();
    names.removeDuplicates();
    QCOMPARE(names.size(), count);
}

void tst_Golden::everyPictureBelongsToAState()
{
    const QStringList states = stateNames();
    QStringList orphans;
    const QStringList names = m_pictures.names();
    for (const QString& name : names) {
        if (isRenewing() && !states.contains(name))
            QVERIFY(m_pictures.remove(name));
        else if (!states.contains(name))
            orphans.append(m_pictures.file(name));
    }
    if (!orphans.isEmpty())
        QFAIL(qPrintable(QStringLiteral("No state has the pictures %1; scripts/goldens --update "
                                        "removes them")
                             .arg(orphans.join(u' '))));
    const QStringList variants = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : variants)
        QVERIFY2(Variant::all().contains(name), qPrintable(name + QStringLiteral(": no variant")));
}

void tst_Golden::aStateLooksAsRecorded_data()
{
    addColumns<int>("index");
    const QList<PanelState> states = Gallery::panelStates();
    for (int i = 0; i < states.size(); ++i)
        addRow(states.at(i).name, i);
}

void tst_Golden::aStateLooksAsRecorded()
{
    QFETCH(int, index);
    const PanelState state = Gallery::panelStates().at(index);
    const QString name = QLatin1String(state.name);
    const QImage actual = Gallery::snapshot(state);
    QCOMPARE(actual.devicePixelRatio(), m_variant.ratio());
    if (isRenewing())
        QVERIFY(m_pictures.renew(QLatin1String(state.panel), name, actual));
    else
        compareStates(name, actual);
}

void tst_Golden::compareStates(const QString& name, const QImage& actual) const
{
    const QImage expected = m_pictures.load(name);
    const Comparison comparison = compare(expected, actual, m_variant.ratio(), m_tolerance);
    if (comparison.passes)
        return;
    QVERIFY(savePng(actual, failure(name, "actual")));
    if (expected.isNull())
        QFAIL(qPrintable(QStringLiteral("There is no %1. Review %2, then make it with "
                                        "scripts/goldens --update")
                             .arg(m_pictures.file(name), failure(name, "actual"))));
    QVERIFY(savePng(expected, failure(name, "expected")));
    QVERIFY(savePng(comparison.difference, failure(name, "difference")));
    QFAIL(qPrintable(
        QStringLiteral("%1: %2. See %3")
            .arg(m_pictures.file(name), comparison.message, failure(name, "difference"))));
}

int main(int argc, char** argv)
{
    Variant variant;
    if (!variant.isValid())
        qFatal("GOLDEN_VARIANT is none of: %s", qPrintable(Variant::all().join(u' ')));
    variant.prepareEnvironment();
    QApplication application(argc, argv);
    const QString error = variant.apply();
    if (!error.isEmpty())
        qFatal("%s", qPrintable(error));
    tst_Golden test(variant);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_golden.moc"
