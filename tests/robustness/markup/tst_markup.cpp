// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "hostilepanels.h"
#include "support/inputevents.h"
#include "support/stricttest.h"

#include <colormenu.h>
#include <expandingtabbar.h>
#include <printpanels/printwidget.h>

#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>
#include <QtGui/QImage>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabBar>

#include <algorithm>
#include <utility>

/**
 * What a host gives a panel is data: no label, button, tool tip or list follows the markup in it,
 * loads a picture that it names, or makes a mnemonic of an ampersand. Every widget is looked at, so
 * that a new one cannot slip through.
 */
class tst_Markup : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void labelsShowPlainText_data();
    void labelsShowPlainText();
    void nothingElseTakesHostTexts_data();
    void nothingElseTakesHostTexts();
    void toolTipsShowPlainText_data();
    void toolTipsShowPlainText();
    void toolTipOfATabThatTheHostAdds();
    void toolTipThatFollowsMarkupIsNoticed();

private:
    void addRows();
    QString imageText() const;
    void verifyTip(QWidget* widget, const QPoint& position, const QString& text, int& tips);
    QTemporaryDir folder;
};

namespace {

const QColor marker(255, 0, 255);

// Long enough that no label can show all of it, because what is cut off gets a tool tip.
QString lengthened(const QString& markup)
{
    return markup + QStringLiteral(" and so on").repeated(60);
}

QList<QLabel*> labelsWith(const QWidget& panel, const QString& text)
{
    QList<QLabel*> found;
    const QList<QLabel*> labels = panel.findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->text().contains(text))
            found.append(label);
    }
    return found;
}

// Where QLabel keeps the document of a rich text.
bool hasDocument(const QLabel* label)
{
    const QObjectList children = label->children();
    return std::any_of(children.cbegin(), children.cend(),
                       [](const QObject* child) { return child->inherits("QWidgetTextControl"); });
}

QLabel* visibleTip()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->inherits("QTipLabel") && window->isVisible())
            return qobject_cast<QLabel*>(window);
    }
    return nullptr;
}

bool showsPicture(QWidget* widget)
{
    const QImage shot = widget->grab().toImage();
    for (int y = 0; y < shot.height(); ++y) {
        for (int x = 0; x < shot.width(); ++x) {
            if (shot.pixelColor(x, y) == marker)
                return true;
        }
    }
    return false;
}

/** The middle of every part of @p widget that may have a tool tip of its own. */
QList<QPoint> tipPositions(const QWidget* widget)
{
    QList<QPoint> positions = {widget->rect().center()};
    if (const auto* bar = qobject_cast<const QTabBar*>(widget)) {
        for (int i = 0; i < bar->count(); ++i)
            positions.append(bar->tabRect(i).center());
    }
    if (const auto* view = qobject_cast<const QAbstractItemView*>(widget->parentWidget())) {
        for (int row = 0; row < view->model()->rowCount(); ++row)
            positions.append(view->visualRect(view->model()->index(row, 0)).center());
    }
    return positions;
}

} // namespace

void tst_Markup::initTestCase()
{
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(marker);
    QVERIFY(folder.isValid());
    QVERIFY(picture.save(folder.filePath(QStringLiteral("picture.png"))));
}

QString tst_Markup::imageText() const
{
    return QStringLiteral("<img src=\"%1\">").arg(folder.filePath(QStringLiteral("picture.png")));
}

void tst_Markup::addRows()
{
    addColumns<int, QString>("panel", "text");
    const QString file =
        QUrl::fromLocalFile(folder.filePath(QStringLiteral("picture.png"))).toString();
    const QList<std::pair<const char*, QString>> texts = {
        {"bold", QStringLiteral("<b>x</b>")},
        {"picture", imageText()},
        {"picture by address", QStringLiteral("<img src='%1'>").arg(file)},
        {"background", QStringLiteral("<body background=\"%1\">x").arg(file)},
        {"table", QStringLiteral("<table border=1><tr><td>x</td></tr></table>")},
        {"link", QStringLiteral("<a href=\"http://localhost/\">x</a>")},
        {"style", QStringLiteral("<style>*{color:red}</style><p>x")},
        {"document", QStringLiteral("<!DOCTYPE html><html><body>x")},
        {"entity", QStringLiteral("&amp;&lt;b&gt;")},
        {"mnemonic", QStringLiteral("&mnemonic")},
        {"unclosed", QStringLiteral("<b>x")},
    };
    const QList<HostilePanel> panels = hostilePanels();
    for (qsizetype i = 0; i < panels.size(); ++i) {
        for (const auto& [name, text] : texts)
            QTest::addRow("%s, %s", panels.at(i).name, name) << int(i) << text;
    }
}

void tst_Markup::labelsShowPlainText_data()
{
    addRows();
}

void tst_Markup::labelsShowPlainText()
{
    QFETCH(const int, panel);
    QFETCH(const QString, text);
    // How many labels take host texts; a new one has to be counted here.
    static const int expected[] = {1, 1, 0, 1, 0};
    const std::unique_ptr<QWidget> window = hostilePanels().at(panel).create(text);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    const QList<QLabel*> labels = labelsWith(*window, text);
    QCOMPARE(labels.size(), expected[panel]);
    for (QLabel* label : labels) {
        QVERIFY(!label->grab().isNull());
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(!hasDocument(label));
        QVERIFY(label->buddy() == nullptr);
    }
    QVERIFY(!showsPicture(window.get()));
}

void tst_Markup::nothingElseTakesHostTexts_data()
{
    addRows();
}

// A button, a check box or a menu would make a mnemonic of an ampersand.
void tst_Markup::nothingElseTakesHostTexts()
{
    QFETCH(const int, panel);
    QFETCH(const QString, text);
    const std::unique_ptr<QWidget> window = hostilePanels().at(panel).create(text);
    QVERIFY(!window->windowTitle().contains(text));
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        QVERIFY(!widget->whatsThis().contains(text));
        QVERIFY(!widget->statusTip().contains(text));
        QVERIFY(!widget->accessibleName().contains(text));
        const bool plain = qobject_cast<const QLabel*>(widget) != nullptr ||
                           qobject_cast<const QLineEdit*>(widget) != nullptr;
        for (const char* property : {"text", "title", "placeholderText"}) {
            if (!plain && widget->property(property).toString().contains(text))
                QFAIL(widget->metaObject()->className());
        }
    }
}

void tst_Markup::toolTipsShowPlainText_data()
{
    addRows();
}

void tst_Markup::verifyTip(QWidget* widget, const QPoint& position, const QString& text, int& tips)
{
    askForToolTip(widget, position);
    QLabel* tip = visibleTip();
    if (tip == nullptr)
        return;
    QVERIFY(!showsPicture(tip));
    const bool own = widget->toolTip().contains(text);
    if (!own && !visibleToolTip().contains(QStringLiteral("and so on")))
        return;
    ++tips;
    // What is cut off at some length still starts with every letter.
    const QString shown = visibleToolTip();
    QVERIFY2(shown.startsWith(text), qPrintable(shown));
}

void tst_Markup::toolTipsShowPlainText()
{
    QFETCH(const int, panel);
    QFETCH(const QString, text);
    // The location; the box and its list of three; the printer's name; the dialog's title.
    static const int fewestTips[] = {4, 1, 1, 2, 0};
    const std::unique_ptr<QWidget> window = hostilePanels().at(panel).create(lengthened(text));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    const QList<QComboBox*> boxes = window->findChildren<QComboBox*>();
    int tips = 0;
    for (QComboBox* box : boxes) {
        if (!box->isVisible())
            continue;
        box->showPopup();
        for (const QPoint& position : tipPositions(box->view()->viewport()))
            verifyTip(box->view()->viewport(), position, text, tips);
        box->hidePopup();
    }
    QList<QPointer<QWidget>> widgets;
    const QList<QWidget*> children = window->findChildren<QWidget*>();
    for (QWidget* child : children)
        widgets.append(child);
    for (const QPointer<QWidget>& widget : std::as_const(widgets)) {
        // A tool tip that was shown before is a child, too.
        if (!widget || !widget->isVisible() || widget->isWindow())
            continue;
        for (const QPoint& position : tipPositions(widget))
            verifyTip(widget, position, text, tips);
    }
    QVERIFY2(tips >= fewestTips[panel], QByteArray::number(tips).constData());
}

void tst_Markup::toolTipOfATabThatTheHostAdds()
{
    PrintWidget panel(false, nullptr);
    panel.showSupplyInfo({}, true, 4.0, 0, true);
    const QString text = imageText();
    panel.addMenuToStack(0, QStringLiteral("#000000"), QStringLiteral("!"), text,
                         new ColorMenu(nullptr));
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    auto* bar = panel.findChild<ExpandingTabBar*>();
    QCOMPARE(bar->tabToolTip(0), text);
    askForToolTip(bar, bar->tabRect(0).center());
    QVERIFY(visibleTip());
    QCOMPARE(visibleToolTip(), text);
    QVERIFY(!showsPicture(visibleTip()));
}

// Otherwise the tests above could not fail.
void tst_Markup::toolTipThatFollowsMarkupIsNoticed()
{
    QWidget widget;
    widget.setToolTip(imageText());
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    askForToolTip(&widget, widget.rect().center());
    QVERIFY(visibleTip());
    QVERIFY(showsPicture(visibleTip()));
}

QTEST_MAIN(tst_Markup)
#include "tst_markup.moc"
