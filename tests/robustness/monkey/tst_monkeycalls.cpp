// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "calls/hostcall.h"
#include "preview/previewview.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QFile>
#include <QtCore/QMetaMethod>

Q_DECLARE_METATYPE(Monkey::HostCalls)

/** The monkey knows every operation: those of the meta-objects and those of the headers. */
class tst_MonkeyCalls : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void everySlotIsCalled_data();
    void everySlotIsCalled();
    void everyPublicOperationIsCalled_data();
    void everyPublicOperationIsCalled();
    void noCallIsListedTwice_data();
    void noCallIsListedTwice();
};

namespace {

void addPanels()
{
    addColumns<const QMetaObject*, QByteArrayList, Monkey::HostCalls>("meta", "headers", "calls");
    const QByteArray base = "foundation/printwidgetinterface.h";
    addRow("PrintWidget", &PrintWidget::staticMetaObject,
           QByteArrayList{base, "printpanel/printwidget.h"}, Monkey::printWidgetCalls());
    addRow("QuickPrintWidget", &QuickPrintWidget::staticMetaObject,
           QByteArrayList{base, "quickprint/quickprintwidget.h"}, Monkey::quickPrintWidgetCalls());
    addRow("MultiPagePrintWidget", &MultiPagePrintWidget::staticMetaObject,
           QByteArrayList{base, "multipage/multipageprintwidget.h"},
           Monkey::multiPagePrintWidgetCalls());
    addRow("MultiPagePrintDialog", &MultiPagePrintDialog::staticMetaObject,
           QByteArrayList{"multipage/multipageprintdialog.h"}, Monkey::multiPagePrintDialogCalls());
    addRow("PrintPreviewDialog", &PrintPreviewDialog::staticMetaObject,
           QByteArrayList{"preview/printpreviewdialog.h"}, Monkey::printPreviewDialogCalls());
    addRow("PreviewView", &QWidget::staticMetaObject, QByteArrayList{"preview/previewview.h"},
           Monkey::previewViewCalls());
}

QByteArrayList sorted(QByteArrayList list)
{
    std::sort(list.begin(), list.end());
    list.erase(std::unique(list.begin(), list.end()), list.end());
    return list;
}

/** The names of the functions that a header declares as public, but for constructors. */
QByteArrayList publicOperations(const QByteArray& header)
{
    QFile file(QStringLiteral(SOURCE_FOLDER "/") + QString::fromLatin1(header));
    if (!file.open(QIODevice::ReadOnly))
        return {"no such header"};
    static const QRegularExpression access(
        QStringLiteral("^\\s*(public|protected|private|Q_SIGNALS)(\\s+Q_SLOTS)?:"));
    // A result, a name and parameters, indented by one level.
    static const QRegularExpression operation(
        QStringLiteral("^    (?:virtual )?[A-Za-z][\\w:<>]*[ *&]+(\\w+)\\("));
    QByteArrayList names;
    bool isPublic = false;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine());
        const QRegularExpressionMatch section = access.match(line);
        if (section.hasMatch())
            isPublic = section.captured(1) == QLatin1String("public");
        const QRegularExpressionMatch function = operation.match(line);
        if (isPublic && function.hasMatch())
            names.append(function.captured(1).toLatin1());
    }
    // Makes a widget for the panels themselves.
    names.removeAll("createSeparatorBar");
    // Called by Qt.
    names.removeAll("showEvent");
    return names;
}

} // namespace

void tst_MonkeyCalls::everySlotIsCalled_data()
{
    addPanels();
}

void tst_MonkeyCalls::everySlotIsCalled()
{
    QFETCH(const QMetaObject*, meta);
    QFETCH(const Monkey::HostCalls, calls);
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.methodType() == QMetaMethod::Signal ||
            method.enclosingMetaObject() == &QDialog::staticMetaObject)
            continue;
        const QByteArray signature = method.methodSignature();
        QVERIFY2(std::any_of(calls.cbegin(), calls.cend(),
                             [&](const auto& call) { return call.signature == signature; }),
                 signature.constData());
    }
}

void tst_MonkeyCalls::everyPublicOperationIsCalled_data()
{
    addPanels();
}

void tst_MonkeyCalls::everyPublicOperationIsCalled()
{
    QFETCH(const QMetaObject*, meta);
    QFETCH(const QByteArrayList, headers);
    QFETCH(const Monkey::HostCalls, calls);
    QByteArrayList declared;
    for (const QByteArray& header : headers)
        declared += publicOperations(header);
    // Private slots are in no public section.
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        if (meta->method(i).access() == QMetaMethod::Private)
            declared.append(meta->method(i).name());
    }
    QByteArrayList called;
    for (const Monkey::HostCall& call : calls)
        called.append(call.name());
    QVERIFY(!declared.isEmpty());
    QCOMPARE(sorted(called), sorted(declared));
}

void tst_MonkeyCalls::noCallIsListedTwice_data()
{
    addPanels();
}

void tst_MonkeyCalls::noCallIsListedTwice()
{
    QFETCH(const Monkey::HostCalls, calls);
    QByteArrayList signatures;
    for (const Monkey::HostCall& call : calls)
        signatures.append(call.signature);
    QCOMPARE(sorted(signatures).size(), signatures.size());
}

QTEST_MAIN(tst_MonkeyCalls)
#include "tst_monkeycalls.moc"
