// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/data/chemicalseed.h"
#include "samplehost/data/statements.h"
#include "support/stricttest.h"

#include <QtCore/QFile>
#include <QtCore/QSet>

#include <algorithm>

using SampleHost::Chemical;
using SampleHost::ChemicalSeed;
using SampleHost::statementLines;
using SampleHost::statementWording;

namespace {

enum class Signal { None, Warning, Danger, WarningOrDanger };

/** What the classification rules attach to a hazard statement. */
struct HazardRule
{
    const char* code;
    Signal signal;
    // Separated by blanks.
    const char* pictograms;
};

// H228 and H272 serve two categories each, hence two possible signal words. A letter after the
// digits only says which part of the wording applies.
const HazardRule hazardRules[] = {
    {"H200", Signal::Danger, "GHS01"},
    {"H201", Signal::Danger, "GHS01"},
    {"H202", Signal::Danger, "GHS01"},
    {"H203", Signal::Danger, "GHS01"},
    {"H204", Signal::Warning, "GHS01"},
    {"H220", Signal::Danger, "GHS02"},
    {"H221", Signal::Warning, ""},
    {"H222", Signal::Danger, "GHS02"},
    {"H223", Signal::Warning, "GHS02"},
    {"H224", Signal::Danger, "GHS02"},
    {"H225", Signal::Danger, "GHS02"},
    {"H226", Signal::Warning, "GHS02"},
    {"H228", Signal::WarningOrDanger, "GHS02"},
    {"H230", Signal::Danger, "GHS02"},
    {"H240", Signal::Danger, "GHS01"},
    {"H241", Signal::Danger, "GHS01 GHS02"},
    {"H250", Signal::Danger, "GHS02"},
    {"H260", Signal::Danger, "GHS02"},
    {"H270", Signal::Danger, "GHS03"},
    {"H271", Signal::Danger, "GHS03"},
    {"H272", Signal::WarningOrDanger, "GHS03"},
    {"H280", Signal::Warning, "GHS04"},
    {"H281", Signal::Warning, "GHS04"},
    {"H290", Signal::Warning, "GHS05"},
    {"H300", Signal::Danger, "GHS06"},
    {"H301", Signal::Danger, "GHS06"},
    {"H302", Signal::Warning, "GHS07"},
    {"H304", Signal::Danger, "GHS08"},
    {"H310", Signal::Danger, "GHS06"},
    {"H311", Signal::Danger, "GHS06"},
    {"H312", Signal::Warning, "GHS07"},
    {"H314", Signal::Danger, "GHS05"},
    {"H315", Signal::Warning, "GHS07"},
    {"H317", Signal::Warning, "GHS07"},
    {"H318", Signal::Danger, "GHS05"},
    {"H319", Signal::Warning, "GHS07"},
    {"H330", Signal::Danger, "GHS06"},
    {"H331", Signal::Danger, "GHS06"},
    {"H332", Signal::Warning, "GHS07"},
    {"H334", Signal::Danger, "GHS08"},
    {"H335", Signal::Warning, "GHS07"},
    {"H336", Signal::Warning, "GHS07"},
    {"H340", Signal::Danger, "GHS08"},
    {"H341", Signal::Warning, "GHS08"},
    {"H350", Signal::Danger, "GHS08"},
    {"H351", Signal::Warning, "GHS08"},
    {"H360", Signal::Danger, "GHS08"},
    {"H361", Signal::Warning, "GHS08"},
    {"H362", Signal::None, ""},
    {"H370", Signal::Danger, "GHS08"},
    {"H371", Signal::Warning, "GHS08"},
    {"H372", Signal::Danger, "GHS08"},
    {"H373", Signal::Warning, "GHS08"},
    {"H400", Signal::Warning, "GHS09"},
    {"H410", Signal::Warning, "GHS09"},
    {"H411", Signal::None, "GHS09"},
    {"H412", Signal::None, ""},
    {"H413", Signal::None, ""},
};

const HazardRule* ruleFor(const QString& code)
{
    const auto found =
        std::find_if(std::begin(hazardRules), std::end(hazardRules), [&](const HazardRule& rule) {
            return code.left(4) == QLatin1String(rule.code);
        });
    return found == std::end(hazardRules) ? nullptr : found;
}

// The signal words that a set of hazard statements allows: the stronger word wins.
QSet<QString> allowedSignalWords(const QStringList& hazards)
{
    bool danger = false;
    bool perhapsDanger = false;
    bool warning = false;
    for (const QString& code : hazards) {
        const Signal signal = ruleFor(code)->signal;
        danger = danger || signal == Signal::Danger;
        perhapsDanger = perhapsDanger || signal == Signal::WarningOrDanger;
        warning = warning || signal == Signal::Warning;
    }
    if (danger) {
        return {QStringLiteral("Danger")};
    }
    if (perhapsDanger) {
        return {QStringLiteral("Danger"), QStringLiteral("Warning")};
    }
    return {warning ? QStringLiteral("Warning") : QString()};
}

bool contains(const QStringList& codes, const QString& code)
{
    return codes.contains(code);
}

// Whether the exclamation mark stands for this statement, given the other statements.
bool keepsExclamationMark(const QString& code, const QStringList& hazards,
                          const QSet<QString>& pictograms)
{
    const bool irritation = code == QLatin1String("H315") || code == QLatin1String("H319");
    const bool skinSensitisation = code == QLatin1String("H317");
    const bool respiratorySensitisation = contains(hazards, QStringLiteral("H334"));
    const bool skull = pictograms.contains(QStringLiteral("GHS06"));
    const bool corrosive =
        contains(hazards, QStringLiteral("H314")) || contains(hazards, QStringLiteral("H318"));
    return !skull && !(irritation && (corrosive || respiratorySensitisation)) &&
           !(skinSensitisation && respiratorySensitisation);
}

QStringList pictogramsFor(const QStringList& hazards)
{
    const QString exclamationMark = QStringLiteral("GHS07");
    QSet<QString> chosen;
    for (const QString& code : hazards) {
        const QStringList names = QString::fromLatin1(ruleFor(code)->pictograms)
                                      .split(QLatin1Char(' '), Qt::SkipEmptyParts);
        chosen.unite(QSet<QString>(names.cbegin(), names.cend()));
    }
    const bool kept = std::any_of(hazards.cbegin(), hazards.cend(), [&](const QString& code) {
        return QLatin1String(ruleFor(code)->pictograms) == exclamationMark &&
               keepsExclamationMark(code, hazards, chosen);
    });
    if (!kept) {
        chosen.remove(exclamationMark);
    }
    QStringList sorted(chosen.cbegin(), chosen.cend());
    sorted.sort();
    return sorted;
}

// Two to seven digits, two digits and the check digit: the digits before it, weighted 1, 2, 3 ...
// from the right, add up to it modulo 10.
bool isCasNumber(const QString& text)
{
    static const QRegularExpression shape(QStringLiteral("^([1-9]\\d{1,6})-(\\d{2})-(\\d)$"));
    const QRegularExpressionMatch match = shape.match(text);
    if (!match.hasMatch()) {
        return false;
    }
    const QString digits = match.captured(1) + match.captured(2);
    int sum = 0;
    for (int weight = 1; weight <= digits.size(); ++weight) {
        sum += weight * digits.at(digits.size() - weight).digitValue();
    }
    return sum % 10 == match.captured(3).toInt();
}

/** Precautions of which at least one must go with a hazard. */
struct PrecautionRule
{
    const char* hazards;
    const char* precautions;
};

const PrecautionRule precautionRules[] = {
    {"H220 H224 H225 H226 H228 H241 H250", "P210"},
    {"H270 H272", "P220"},
    {"H280", "P410+P403"},
    {"H250", "P222"},
    {"H260", "P223"},
    {"H304", "P331"},
    {"H304", "P301+P310"},
    {"H310 H311 H312 H314 H315 H317 H318 H319", "P280"},
    {"H314 H318 H319", "P305+P351+P338"},
    {"H314", "P303+P361+P353 P302+P334"},
    {"H314 H318", "P310 P301+P310"},
    {"H330", "P284 P260"},
    {"H330 H331 H332", "P304+P340"},
    {"H334", "P342+P311"},
    {"H340 H341 H350 H351 H360 H361", "P308+P313"},
    {"H372 H373 H370", "P260"},
    {"H400 H410 H411 H412", "P273"},
};

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

Chemical named(const QString& name)
{
    const QList<Chemical> seed = ChemicalSeed::load();
    const auto found = std::find_if(seed.cbegin(), seed.cend(), [&](const Chemical& chemical) {
        return chemical.name == name;
    });
    return found == seed.cend() ? Chemical() : *found;
}

void addRowPerChemical()
{
    QTest::addColumn<int>("index");
    const QList<Chemical> seed = ChemicalSeed::load();
    for (int i = 0; i < seed.size(); ++i) {
        QTest::newRow(qPrintable(seed.at(i).name)) << i;
    }
}

Chemical currentChemical()
{
    QFETCH(int, index);
    return ChemicalSeed::load().at(index);
}

} // namespace

class TestChemicalSeed : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void holdsAtLeastFortyChemicals();
    void everyLineOfTheTableIsRead();
    void listsEachChemicalOnceInAlphabeticalOrder();
    void knownChemicalsAreComplete();

    void casCheckDigitRejectsWrongNumbers_data();
    void casCheckDigitRejectsWrongNumbers();
    void rulesDeriveKnownLabels_data();
    void rulesDeriveKnownLabels();

    void casNumberHasValidCheckDigit_data() { addRowPerChemical(); }
    void casNumberHasValidCheckDigit();
    void noTextIsMissing_data() { addRowPerChemical(); }
    void noTextIsMissing();
    void codesAreSortedAndUnique_data() { addRowPerChemical(); }
    void codesAreSortedAndUnique();
    void everyStatementHasItsWording_data() { addRowPerChemical(); }
    void everyStatementHasItsWording();
    void signalWordFollowsFromHazards_data() { addRowPerChemical(); }
    void signalWordFollowsFromHazards();
    void pictogramsFollowFromHazards_data() { addRowPerChemical(); }
    void pictogramsFollowFromHazards();
    void precautionsMatchHazards_data() { addRowPerChemical(); }
    void precautionsMatchHazards();

    void everyPictogramIsUsed();
    void statementsHaveTheStandardWording_data();
    void statementsHaveTheStandardWording();
    void unknownCodeHasNoWording();
    void statementLinesJoinCodeAndWording();
    void parseLeavesOutMalformedLines();
    void parseReadsADashAsNoValue();
};

void TestChemicalSeed::holdsAtLeastFortyChemicals()
{
    QVERIFY2(ChemicalSeed::load().size() >= 40,
             qPrintable(QString::number(ChemicalSeed::load().size())));
}

void TestChemicalSeed::everyLineOfTheTableIsRead()
{
    QFile file(QStringLiteral(":/samplehost/seed/chemicals.tsv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray table = file.readAll();
    QList<int> badLines;
    QCOMPARE(ChemicalSeed::parse(table, &badLines), ChemicalSeed::load());
    QCOMPARE(badLines, QList<int>());
    QCOMPARE(ChemicalSeed::load().size(), table.count('\n') - 1);
}

void TestChemicalSeed::listsEachChemicalOnceInAlphabeticalOrder()
{
    static const QRegularExpression uncounted(QStringLiteral("^(\\d+-|n-|N,N-)|,"));
    QStringList keys;
    QSet<QString> casNumbers;
    const QList<Chemical> seed = ChemicalSeed::load();
    for (const Chemical& chemical : seed) {
        keys.append(QString(chemical.name).remove(uncounted).toLower());
        casNumbers.insert(chemical.casNumber);
    }
    QStringList sorted = keys;
    sorted.sort();
    QCOMPARE(keys, sorted);
    QCOMPARE(QSet<QString>(keys.cbegin(), keys.cend()).size(), seed.size());
    QCOMPARE(casNumbers.size(), seed.size());
}

void TestChemicalSeed::knownChemicalsAreComplete()
{
    const Chemical acetone{QStringLiteral("Acetone"),
                           QStringLiteral("67-64-1"),
                           QString::fromUtf8("C\u2083H\u2086O"),
                           QStringLiteral("1090"),
                           QStringLiteral("Danger"),
                           words("H225 H319 H336"),
                           words("P210 P233 P261 P280 P305+P351+P338 P337+P313 P403+P235"),
                           words("GHS02 GHS07")};
    QCOMPARE(named(QStringLiteral("Acetone")), acetone);
    const Chemical dichromate = named(QStringLiteral("Potassium dichromate"));
    QCOMPARE(dichromate.casNumber, QStringLiteral("7778-50-9"));
    QCOMPARE(dichromate.hazardCodes,
             words("H272 H301 H312 H314 H317 H330 H334 H340 H350 H360FD H372 H410"));
    QCOMPARE(dichromate.pictograms, words("GHS03 GHS05 GHS06 GHS08 GHS09"));
    QCOMPARE(named(QStringLiteral("Citric acid")).unNumber, QString());
}

void TestChemicalSeed::casCheckDigitRejectsWrongNumbers_data()
{
    addColumns<QString, bool>("number", "valid");
    addRow("water", "7732-18-5", true);
    addRow("caffeine", "58-08-2", true);
    addRow("wrong check digit", "7732-18-4", false);
    addRow("digits swapped", "7732-81-5", false);
    addRow("no hyphens", "7732185", false);
    addRow("leading zero", "058-08-2", false);
    addRow("empty", QString(), false);
}

void TestChemicalSeed::casCheckDigitRejectsWrongNumbers()
{
    QFETCH(QString, number);
    QTEST(isCasNumber(number), "valid");
}

void TestChemicalSeed::rulesDeriveKnownLabels_data()
{
    addColumns<QStringList, QStringList>("hazards", "pictograms");
    addRow("skull drops the exclamation mark", words("H270 H280 H315 H319 H331 H335 H400"),
           words("GHS03 GHS04 GHS06 GHS09"));
    addRow("corrosion drops it for irritation", words("H225 H315 H318"), words("GHS02 GHS05"));
    addRow("corrosion keeps it for narcotic effects", words("H226 H315 H318 H336"),
           words("GHS02 GHS05 GHS07"));
    addRow("corrosion to metals alone keeps it for irritation", words("H290 H319"),
           words("GHS05 GHS07"));
    addRow("respiratory sensitisation drops it for skin sensitisation",
           words("H315 H317 H319 H334"), words("GHS08"));
    addRow("other health hazards keep it for skin sensitisation", words("H317 H350"),
           words("GHS07 GHS08"));
    addRow("harmful beside corrosive", words("H302 H314"), words("GHS05 GHS07"));
}

void TestChemicalSeed::rulesDeriveKnownLabels()
{
    QFETCH(QStringList, hazards);
    QTEST(pictogramsFor(hazards), "pictograms");
}

void TestChemicalSeed::casNumberHasValidCheckDigit()
{
    const QString number = currentChemical().casNumber;
    QVERIFY2(isCasNumber(number), qPrintable(number));
}

void TestChemicalSeed::noTextIsMissing()
{
    static const QRegularExpression formula(
        QString::fromUtf8("^[A-Z(][A-Za-z()\u2080-\u2089\u00b70-9]*$"));
    static const QRegularExpression unNumber(QStringLiteral("^(\\d{4})?$"));
    const Chemical chemical = currentChemical();
    QVERIFY(!chemical.name.trimmed().isEmpty());
    QCOMPARE(chemical.name, chemical.name.simplified());
    QVERIFY2(formula.match(chemical.formula).hasMatch(), qPrintable(chemical.formula));
    QVERIFY2(unNumber.match(chemical.unNumber).hasMatch(), qPrintable(chemical.unNumber));
    QVERIFY(chemical.signalWord == QLatin1String("Danger") ||
            chemical.signalWord == QLatin1String("Warning"));
    QVERIFY(!chemical.hazardCodes.isEmpty());
    QVERIFY(!chemical.precautionCodes.isEmpty());
    QVERIFY(!chemical.pictograms.isEmpty());
}

void TestChemicalSeed::codesAreSortedAndUnique()
{
    const Chemical chemical = currentChemical();
    for (const QStringList& codes :
         {chemical.hazardCodes, chemical.precautionCodes, chemical.pictograms}) {
        QStringList sorted = codes;
        sorted.sort();
        sorted.removeDuplicates();
        QCOMPARE(codes, sorted);
    }
}

void TestChemicalSeed::everyStatementHasItsWording()
{
    static const QRegularExpression hazard(QStringLiteral("^H[234]\\d\\d[DdFf]{0,2}$"));
    static const QRegularExpression precaution(
        QStringLiteral("^P[2345]\\d\\d(\\+P[2345]\\d\\d)*$"));
    const Chemical chemical = currentChemical();
    for (const QString& code : chemical.hazardCodes + chemical.precautionCodes) {
        const auto& shape = chemical.hazardCodes.contains(code) ? hazard : precaution;
        QVERIFY2(shape.match(code).hasMatch(), qPrintable(code));
        const QString wording = statementWording(code);
        QVERIFY2(!wording.isEmpty(), qPrintable(code));
        QCOMPARE(wording, wording.simplified());
        QVERIFY2(wording.endsWith(QLatin1Char('.')), qPrintable(code));
        QVERIFY2(!wording.contains(QLatin1String("..")), qPrintable(code));
    }
}

void TestChemicalSeed::signalWordFollowsFromHazards()
{
    const Chemical chemical = currentChemical();
    for (const QString& code : chemical.hazardCodes) {
        QVERIFY2(ruleFor(code), qPrintable(code));
    }
    const QSet<QString> allowed = allowedSignalWords(chemical.hazardCodes);
    QVERIFY2(allowed.contains(chemical.signalWord), qPrintable(chemical.signalWord));
}

void TestChemicalSeed::pictogramsFollowFromHazards()
{
    const Chemical chemical = currentChemical();
    for (const QString& code : chemical.hazardCodes) {
        QVERIFY2(ruleFor(code), qPrintable(code));
    }
    QCOMPARE(chemical.pictograms, pictogramsFor(chemical.hazardCodes));
}

void TestChemicalSeed::precautionsMatchHazards()
{
    const Chemical chemical = currentChemical();
    for (const PrecautionRule& rule : precautionRules) {
        const QStringList hazards = words(rule.hazards);
        const QStringList precautions = words(rule.precautions);
        const bool applies =
            std::any_of(chemical.hazardCodes.cbegin(), chemical.hazardCodes.cend(),
                        [&](const QString& code) { return hazards.contains(code.left(4)); });
        const bool met =
            std::any_of(precautions.cbegin(), precautions.cend(), [&](const QString& code) {
                return chemical.precautionCodes.contains(code);
            });
        QVERIFY2(!applies || met, rule.precautions);
    }
}

void TestChemicalSeed::everyPictogramIsUsed()
{
    QSet<QString> used;
    const QList<Chemical> seed = ChemicalSeed::load();
    for (const Chemical& chemical : seed) {
        used.unite(QSet<QString>(chemical.pictograms.cbegin(), chemical.pictograms.cend()));
    }
    QStringList sorted(used.cbegin(), used.cend());
    sorted.sort();
    QCOMPARE(sorted, words("GHS01 GHS02 GHS03 GHS04 GHS05 GHS06 GHS07 GHS08 GHS09"));
}

void TestChemicalSeed::statementsHaveTheStandardWording_data()
{
    QTest::addColumn<QString>("wording");
    addRow("H225", "Highly flammable liquid and vapour.");
    addRow("H314", "Causes severe skin burns and eye damage.");
    addRow("H334", "May cause allergy or asthma symptoms or breathing "
                   "difficulties if inhaled.");
    addRow("H360FD", "May damage fertility. May damage the unborn child.");
    addRow("H410", "Very toxic to aquatic life with long lasting effects.");
    addRow("P210", "Keep away from heat, hot surfaces, sparks, open flames "
                   "and other ignition sources. No smoking.");
    addRow("P301+P330+P331", "IF SWALLOWED: Rinse mouth. Do NOT induce vomiting.");
    addRow("P305+P351+P338", "IF IN EYES: Rinse cautiously with water for several minutes. Remove "
                             "contact lenses, if present and easy to do. Continue rinsing.");
}

void TestChemicalSeed::statementsHaveTheStandardWording()
{
    QTEST(statementWording(QString::fromLatin1(QTest::currentDataTag())), "wording");
}

void TestChemicalSeed::unknownCodeHasNoWording()
{
    QCOMPARE(statementWording(QStringLiteral("H999")), QString());
    QCOMPARE(statementWording(QString()), QString());
    // The table's own title line is no statement.
    QCOMPARE(statementWording(QStringLiteral("code")), QString());
}

void TestChemicalSeed::statementLinesJoinCodeAndWording()
{
    const QStringList lines = statementLines(words("P405 X1 H302"));
    const QStringList expected{QStringLiteral("P405 Store locked up."), QStringLiteral("X1"),
                               QStringLiteral("H302 Harmful if swallowed.")};
    QCOMPARE(lines, expected);
    QCOMPARE(statementLines({}), QStringList());
    Chemical chemical;
    chemical.hazardCodes = words("H302");
    chemical.precautionCodes = words("P405");
    QCOMPARE(chemical.hazardLines(), expected.mid(2));
    QCOMPARE(chemical.precautionLines(), expected.mid(0, 1));
}

void TestChemicalSeed::parseLeavesOutMalformedLines()
{
    QList<int> badLines;
    const QList<Chemical> chemicals =
        ChemicalSeed::parse("titles\nonly\tthree\tcolumns\n\nA\t1\tF\t2\tDanger\tH1 H2\tP1\tG1\r\n"
                            "A\t1\tF\t2\tDanger\tH1\tP1\tG1\tnine\n",
                            &badLines);
    QCOMPARE(chemicals.size(), 1);
    QCOMPARE(chemicals.first().hazardCodes, words("H1 H2"));
    QCOMPARE(chemicals.first().pictograms, words("G1"));
    QCOMPARE(badLines, QList<int>({2, 5}));
    QVERIFY(ChemicalSeed::parse(QByteArray()).isEmpty());
}

void TestChemicalSeed::parseReadsADashAsNoValue()
{
    const QList<Chemical> chemicals = ChemicalSeed::parse("titles\nA\t-\t-\t-\t-\t-\t-\t-");
    Chemical expected;
    expected.name = QStringLiteral("A");
    QCOMPARE(chemicals, QList<Chemical>{expected});
}

QTEST_GUILESS_MAIN(TestChemicalSeed)
#include "tst_chemicalseed.moc"
