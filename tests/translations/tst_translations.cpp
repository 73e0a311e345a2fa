// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTranslator>
#include <QtCore/QXmlStreamReader>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    bool finished = true;
};

QList<Message> messagesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Message> messages;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            messages.append({context, xml.readElementText(), QString(), true});
        } else if (xml.name() == QLatin1String("translation")) {
            messages.last().finished = !xml.attributes().hasAttribute(QLatin1String("type"));
            messages.last().translation = xml.readElementText();
        }
    }
    return messages;
}

QStringList translationFiles()
{
    QStringList patterns{QStringLiteral("printpanels_*.ts")};
    if (WITH_SAMPLE_HOST)
        patterns.append(QStringLiteral("samplehost_*.ts"));
    return QDir(QStringLiteral(SOURCE_DIR "/translations")).entryList(patterns);
}

QString blanksAround(const QString& text)
{
    qsizetype begin = 0;
    while (begin < text.size() && text[begin] == u' ')
        ++begin;
    qsizetype end = text.size();
    while (end > begin && text[end - 1] == u' ')
        --end;
    return QStringLiteral("%1+%2").arg(begin).arg(text.size() - end);
}

QStringList placeholdersOf(const QString& text)
{
    QStringList found;
    auto matches = QRegularExpression(QStringLiteral("%\\d")).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    found.sort();
    return found;
}

} // namespace

class TranslationsTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsTranslatedWithItsBlanksAndPlaceholders_data();
    void everyTextIsTranslatedWithItsBlanksAndPlaceholders();
    void filesHoldExactlyTheTextsOfTheSources_data();
    void filesHoldExactlyTheTextsOfTheSources();
    void panelFollowsTheTranslatorInstalledBeforeIt();
};

void TranslationsTest::everyTextIsTranslatedWithItsBlanksAndPlaceholders_data()
{
    addColumns<QString, QString, bool>("source", "translation", "finished");
    int row = 0;
    for (const QString& file : translationFiles()) {
        const QList<Message> messages =
            messagesOf(QStringLiteral(SOURCE_DIR "/translations/") + file);
        QVERIFY2(!messages.isEmpty(), qPrintable(file));
        for (const Message& message : messages) {
            QTest::addRow("%s %d %s", qPrintable(file), ++row, qPrintable(message.source))
                << message.source << message.translation << message.finished;
        }
    }
    QVERIFY(row > 0);
}

void TranslationsTest::everyTextIsTranslatedWithItsBlanksAndPlaceholders()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QFETCH(bool, finished);
    QVERIFY(finished);
    QVERIFY(!translation.trimmed().isEmpty());
    QCOMPARE(blanksAround(translation), blanksAround(source));
    QCOMPARE(placeholdersOf(translation), placeholdersOf(source));
    QCOMPARE(translation.count(u'\n'), source.count(u'\n'));
}

void TranslationsTest::filesHoldExactlyTheTextsOfTheSources_data()
{
    QTest::addColumn<QString>("file");
    for (const QString& file : translationFiles())
        QTest::newRow(qPrintable(file)) << file;
}

void TranslationsTest::filesHoldExactlyTheTextsOfTheSources()
{
    QFETCH(QString, file);
    const QString path = QStringLiteral(SOURCE_DIR "/translations/") + file;
    const bool host = file.startsWith(QStringLiteral("samplehost_"));
    const QString fresh = QStringLiteral(COLLECTED_DIR "/") +
                          (host ? QStringLiteral("translations_collect_host/")
                                : QStringLiteral("translations_collect/")) +
                          file;
    QStringList kept;
    for (const Message& message : messagesOf(path))
        kept.append(message.context + u'/' + message.source);
    QStringList current;
    for (const Message& message : messagesOf(fresh))
        current.append(message.context + u'/' + message.source);
    QCOMPARE(kept, current);
}

void TranslationsTest::panelFollowsTheTranslatorInstalledBeforeIt()
{
    QTranslator german;
    QVERIFY(german.load(QStringLiteral(QM_DIR "/printpanels_de.qm")));
    QVERIFY(QCoreApplication::installTranslator(&german));
    PrintWidget translated(false, nullptr);
    QCoreApplication::removeTranslator(&german);
    PrintWidget plain(false, nullptr);

    const auto textOf = [](const PrintWidget& panel, const QString& button) {
        return panel.findChild<QAbstractButton*>(button)->text();
    };
    QCOMPARE(textOf(translated, QStringLiteral("PrintButton")), QStringLiteral(" Drucken "));
    QCOMPARE(textOf(translated, QStringLiteral("allRecordsRadio")),
             QStringLiteral("Alle Datensätze"));
    QCOMPARE(textOf(plain, QStringLiteral("PrintButton")), QStringLiteral(" Print "));
}

QTEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
