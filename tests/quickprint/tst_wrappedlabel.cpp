// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "quickprint/wrappedlabel.h"
#include "support/inputevents.h"
#include "support/stricttest.h"

#include <QtCore/QElapsedTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

using PrintPanels::WrappedLabel;

namespace {

/** As high as a plain label with so many lines is. */
int heightOfLines(const QWidget& label, int lines)
{
    QLabel plain(QStringList(lines, QStringLiteral("x")).join(u'\n'));
    plain.setFont(label.font());
    return plain.sizeHint().height();
}

/** Rows of pixels of @p label that show any ink, merged into the lines of text that they make. */
int inkedLines(WrappedLabel& label, int width)
{
    label.setStyleSheet(QStringLiteral("background: white; color: black;"));
    label.resize(width, label.heightForWidth(width));
    const QImage image = label.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    const int line = heightOfLines(label, 2) - heightOfLines(label, 1);
    int lines = 0;
    for (int top = 0; top + heightOfLines(label, 1) <= image.height(); top += line) {
        bool ink = false;
        for (int y = top; y < qMin(top + line, image.height()); ++y) {
            for (int x = 0; x < image.width(); ++x)
                ink = ink || qGray(image.pixel(x, y)) < 128;
        }
        lines += ink ? 1 : 0;
    }
    return lines;
}

/** The tool tip that the label shows when it is asked for one. */
QString toolTipOf(WrappedLabel& label)
{
    askForToolTip(&label, QPoint(1, 1));
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

} // namespace

class tst_WrappedLabel : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void asksForNoWidthAndOneLine();
    void takesTheLinesThatTheTextNeeds_data();
    void takesTheLinesThatTheTextNeeds();
    void widerLabelNeedsFewerLines();
    void shapedLikeAPlainLabel();
    void markupIsShownLetterForLetter();
    void toolTipShowsWhatDoesNotFit();
    void longTextsAreQuick();
    void anyWidthIsFine();
};

void tst_WrappedLabel::asksForNoWidthAndOneLine()
{
    WrappedLabel label;
    const int line = heightOfLines(label, 1);
    for (const QString& text : {QString(), QStringLiteral("name"), QString(5000, u'W')}) {
        label.setText(text);
        QCOMPARE(label.text(), text);
        QCOMPARE(label.sizeHint(), QSize(0, line));
        QCOMPARE(label.minimumSizeHint(), QSize(0, line));
        QVERIFY(label.hasHeightForWidth());
        QVERIFY(label.wordWrap());
        QCOMPARE(label.textFormat(), Qt::PlainText);
    }
}

void tst_WrappedLabel::takesTheLinesThatTheTextNeeds_data()
{
    addColumns<QString, int, int>("text", "lines", "inked");
    addRow("empty", QString(), 1, 0);
    addRow("one word", "MMMM", 1, 1);
    addRow("two words on two lines", "MMMMMM MMMMMM", 2, 2);
    addRow("typed lines", "M\nM\nM", 3, 3);
    addRow("an empty line", "M\n\nM", 3, 2);
    addRow("word that no line holds", QString(12, u'M'), 2, 2);
    addRow("more than four lines", QString(200, u'M'), 4, 4);
    addRow("many typed lines", QString(2000, u'\n'), 4, 0);
}

void tst_WrappedLabel::takesTheLinesThatTheTextNeeds()
{
    QFETCH(const QString, text);
    QFETCH(const int, lines);
    WrappedLabel label;
    label.setText(text);
    const int width = label.fontMetrics().horizontalAdvance(QString(8, u'M'));
    QCOMPARE(label.heightForWidth(width), heightOfLines(label, lines));
    QTEST(inkedLines(label, width), "inked");
}

void tst_WrappedLabel::widerLabelNeedsFewerLines()
{
    WrappedLabel label;
    label.setText(QStringLiteral("one two three four five six"));
    int before = label.heightForWidth(1);
    QCOMPARE(before, heightOfLines(label, 4));
    for (int width = 10; width < 400; width += 10) {
        const int height = label.heightForWidth(width);
        QVERIFY(height <= before);
        before = height;
    }
    QCOMPARE(before, heightOfLines(label, 1));
}

// Where a plain label can show the text, this one shows it in the same way.
void tst_WrappedLabel::shapedLikeAPlainLabel()
{
    WrappedLabel label;
    QLabel plain;
    plain.setWordWrap(true);
    plain.setTextFormat(Qt::PlainText);
    for (const QString& text :
         {QStringLiteral("Label Printer 3 in the warehouse"), QStringLiteral("one\ntwo")}) {
        label.setText(text);
        plain.setText(text);
        for (const int width : {100, 140, 400}) {
            const int height = label.heightForWidth(width);
            QCOMPARE(height, plain.heightForWidth(width));
            label.resize(width, height);
            plain.resize(width, height);
            QCOMPARE(label.grab().toImage(), plain.grab().toImage());
        }
    }
}

void tst_WrappedLabel::markupIsShownLetterForLetter()
{
    WrappedLabel label;
    label.setText(QStringLiteral("<br>M<br>M"));
    const int width = 400;
    QCOMPARE(label.heightForWidth(width), heightOfLines(label, 1));
    QCOMPARE(inkedLines(label, width), 1);
}

void tst_WrappedLabel::toolTipShowsWhatDoesNotFit()
{
    WrappedLabel label;
    label.setText(QStringLiteral("short"));
    label.resize(200, 80);
    label.show();
    QCOMPARE(toolTipOf(label), QString());
    label.setText(QStringLiteral("one two three"));
    label.resize(label.fontMetrics().horizontalAdvance(QStringLiteral("three")) + 2, 80);
    QCOMPARE(toolTipOf(label), QString());
    const QString many = QStringLiteral("<i>M</i> & ") + QString(200, u'M');
    label.setText(many);
    QCOMPARE(toolTipOf(label), QStringLiteral("<p>&lt;i&gt;M&lt;/i&gt; &amp; ") +
                                   QString(200, u'M') + QStringLiteral("</p>"));
    label.setText(QString(1 << 20, u'i'));
    label.resize(100000, 80);
    QVERIFY(toolTipOf(label).size() > 900);
    QVERIFY(toolTipOf(label).size() < 1100);
    QToolTip::hideText();
}

void tst_WrappedLabel::longTextsAreQuick()
{
    WrappedLabel label;
    label.setText(QString(1 << 20, u'W'));
    QElapsedTimer timer;
    timer.start();
    for (int width = 1; width < 100; ++width)
        label.heightForWidth(width);
    label.resize(200, 80);
    QVERIFY(!label.grab().isNull());
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

void tst_WrappedLabel::anyWidthIsFine()
{
    WrappedLabel label;
    label.setText(QStringLiteral("some name of a printer"));
    for (const int width : {-1000, -1, 0, 1, 16777215}) {
        const int height = label.heightForWidth(width);
        QVERIFY(height >= heightOfLines(label, 1));
        QVERIFY(height <= heightOfLines(label, 4));
    }
    label.resize(0, 0);
    QVERIFY(label.grab().isNull());
}

QTEST_MAIN(tst_WrappedLabel)
#include "tst_wrappedlabel.moc"
