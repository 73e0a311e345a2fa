// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <jxlineedit.h>

#include <QtGui/QIntValidator>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QVBoxLayout>

class TestJxLineEdit : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void emitsWhenItLosesTheFocus();
    void emitsAlsoWhenTheValidatorIsNotSatisfied();
    void emitsAfterEditingFinished();
    void emitsWhenItIsHiddenOrDisabledWithTheFocus_data();
    void emitsWhenItIsHiddenOrDisabledWithTheFocus();
    void connectsByText();
};

namespace {
struct Window
{
    Window()
    {
        auto* layout = new QVBoxLayout(&widget);
        layout->addWidget(edit = new JxLineEdit(nullptr));
        layout->addWidget(other = new QLineEdit);
        widget.show();
        widget.activateWindow();
    }

    bool focusEdit()
    {
        if (!QTest::qWaitForWindowActive(&widget))
            return false;
        edit->setFocus();
        return edit->hasFocus();
    }

    QWidget widget;
    JxLineEdit* edit = nullptr;
    QLineEdit* other = nullptr;
};
} // namespace

void TestJxLineEdit::emitsWhenItLosesTheFocus()
{
    Window window;
    QSignalSpy lost(window.edit, SIGNAL(focusLost()));
    QVERIFY(window.focusEdit());
    QCOMPARE(lost.count(), 0);
    window.other->setFocus();
    QCOMPARE(lost.count(), 1);
    window.other->clearFocus();
    QCOMPARE(lost.count(), 1);
    QVERIFY(window.focusEdit());
    QTest::keyClick(window.edit, Qt::Key_Tab);
    QCOMPARE(lost.count(), 2);
}

void TestJxLineEdit::emitsAlsoWhenTheValidatorIsNotSatisfied()
{
    Window window;
    window.edit->setValidator(new QIntValidator(10, 20, window.edit));
    QVERIFY(window.focusEdit());
    QTest::keyClicks(window.edit, QStringLiteral("1"));
    QSignalSpy finished(window.edit, SIGNAL(editingFinished()));
    QSignalSpy lost(window.edit, SIGNAL(focusLost()));
    window.other->setFocus();
    QCOMPARE(finished.count(), 0);
    QCOMPARE(lost.count(), 1);
}

void TestJxLineEdit::emitsAfterEditingFinished()
{
    Window window;
    QVERIFY(window.focusEdit());
    QTest::keyClicks(window.edit, QStringLiteral("1"));
    QStringList order;
    connect(window.edit, &JxLineEdit::focusLost, this, [&] { order << QStringLiteral("lost"); });
    connect(window.edit, &QLineEdit::editingFinished, this,
            [&] { order << QStringLiteral("finished"); });
    window.other->setFocus();
    QCOMPARE(order, QStringList({QStringLiteral("finished"), QStringLiteral("lost")}));
}

void TestJxLineEdit::emitsWhenItIsHiddenOrDisabledWithTheFocus_data()
{
    QTest::addColumn<bool>("hide");
    addRow("hidden", true);
    addRow("disabled", false);
}

void TestJxLineEdit::emitsWhenItIsHiddenOrDisabledWithTheFocus()
{
    QFETCH(bool, hide);
    Window window;
    QVERIFY(window.focusEdit());
    QSignalSpy lost(window.edit, SIGNAL(focusLost()));
    if (hide)
        window.edit->hide();
    else
        window.edit->setEnabled(false);
    QCOMPARE(lost.count(), 1);
}

void TestJxLineEdit::connectsByText()
{
    JxLineEdit edit(nullptr);
    QLineEdit target;
    QVERIFY(connect(&edit, SIGNAL(textChanged(QString)), &target, SLOT(setText(QString))));
    QVERIFY(connect(&edit, SIGNAL(editingFinished()), &target, SLOT(clear())));
    QVERIFY(connect(&edit, SIGNAL(focusLost()), &target, SLOT(clear())));
    edit.setText(QStringLiteral("1,4-5"));
    QCOMPARE(target.text(), QStringLiteral("1,4-5"));
}

QTEST_MAIN(TestJxLineEdit)
#include "tst_jxlineedit.moc"
