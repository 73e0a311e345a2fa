// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// The hands of a user for programs that know nothing of being tested. Qt loads the plugin into the
// program where QT_QPA_GENERIC_PLUGINS names it; once the program's window is shown, the steps in
// EXAMPLE_STEPS are done one by one. A step that cannot be done ends the program with an error, and
// so does a warning of Qt's.
//
// Steps are separated by "|", their words by blanks; widgets are named by their object names:
//   click <button>         clicks in the middle of a button
//   type <field> <text>    replaces what a field holds
//   show <widget>          checks that the user sees a widget
//   read <field> <text>    checks that a field shows a text, among others
//   picture <file>         saves what the window looks like
//   close                  closes every window

#include <QtCore/QTimer>
#include <QtGui/QGenericPlugin>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollArea>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const QString& step, const char* why)
{
    std::fprintf(stderr, "Step \"%s\": %s\n", qPrintable(step), why);
    // Not by way of the event loop: the program would answer with an exit code of its own.
    std::_Exit(EXIT_FAILURE);
}

// A program that shows how it is done has nothing to warn of. What the platform without a screen
// says of itself does not count, nor what a system without scaled window frames answers.
void listen(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    const bool excused = message.startsWith(QStringLiteral("This plugin does not support ")) ||
                         message.startsWith(QStringLiteral("EnableNonClientDpiScaling() failed"));
    if (type != QtDebugMsg && type != QtInfoMsg && !excused)
        std::_Exit(EXIT_FAILURE);
}

QWidget* shownWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            return window;
    }
    return nullptr;
}

bool isSeen(const QWidget* widget)
{
    return widget->isVisible();
}

bool isUsable(const QWidget* widget)
{
    return widget->isVisible() && widget->isEnabled();
}

void scrollTo(QWidget* widget)
{
    for (QWidget* parent = widget; parent != nullptr; parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent))
            area->ensureWidgetVisible(widget);
    }
}

// The widget of this name and kind, scrolled into view.
template <typename Widget>
Widget* findWidget(const QString& step, bool (*suits)(const QWidget*))
{
    const QString name = step.section(u' ', 1, 1);
    for (QWidget* candidate : QApplication::allWidgets()) {
        auto* widget = qobject_cast<Widget*>(candidate);
        if (widget == nullptr || widget->objectName() != name || !suits(widget))
            continue;
        scrollTo(widget);
        if (widget->visibleRegion().isEmpty())
            fail(step, "the widget is out of sight");
        return widget;
    }
    fail(step, "no widget of this name and kind is shown and ready");
}

void typeText(QWidget* field, const QString& text)
{
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, text);
}

void readText(const QString& step)
{
    const QString shown = findWidget<QWidget>(step, isSeen)->property("plainText").toString();
    if (!shown.contains(step.section(u' ', 2)))
        fail(step, qPrintable(QStringLiteral("the field shows: ") + shown));
}

void savePicture(const QString& step)
{
    if (!shownWindow()->grab().save(step.section(u' ', 1)))
        fail(step, "the picture cannot be saved");
}

void closeWindows()
{
    while (QWidget* window = shownWindow())
        window->close();
}

void perform(const QString& step)
{
    const QString verb = step.section(u' ', 0, 0);
    if (verb == QStringLiteral("click"))
        QTest::mouseClick(findWidget<QAbstractButton>(step, isUsable), Qt::LeftButton);
    else if (verb == QStringLiteral("type"))
        typeText(findWidget<QWidget>(step, isUsable), step.section(u' ', 2));
    else if (verb == QStringLiteral("show"))
        findWidget<QWidget>(step, isSeen);
    else if (verb == QStringLiteral("read"))
        readText(step);
    else if (verb == QStringLiteral("picture"))
        savePicture(step);
    else if (verb == QStringLiteral("close"))
        closeWindows();
    else
        fail(step, "there is no such step");
}

class Driver : public QObject
{
    Q_DISABLE_COPY_MOVE(Driver)

public:
    Driver() : m_steps(qEnvironmentVariable("EXAMPLE_STEPS").split(u'|'))
    {
        qInstallMessageHandler(listen);
        // Each step from the event loop, as a user's clicks come.
        QObject::connect(&m_timer, &QTimer::timeout, this, [this] { proceed(); });
        m_timer.start(50);
    }
    ~Driver() override
    {
        if (!m_steps.isEmpty())
            fail(m_steps.first(), "the program ended before");
    }

private:
    void proceed()
    {
        // Before the first window is shown and after the last one has gone.
        if (shownWindow() != nullptr && !m_steps.isEmpty())
            perform(m_steps.takeFirst());
    }

    QStringList m_steps;
    QTimer m_timer;
};

} // namespace

class ExampleDriverPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "exampledriver.json")

public:
    QObject* create(const QString&, const QString&) override { return new Driver; }
};

#include "exampledriver.moc"
