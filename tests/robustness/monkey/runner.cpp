// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "runner.h"

#include "subjects/subject.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QThread>
#include <QtWidgets/QApplication>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace Monkey {

namespace {

// Each kind of panel has its own numbers also with the same seed.
quint64 mixed(const Plan& plan)
{
    quint64 answer = plan.seed;
    for (const char letter : plan.panel)
        answer = answer * 1099511628211ULL + quint8(letter);
    return answer;
}

QByteArray commandOf(const Plan& plan)
{
    return "PRINTPANELS_MONKEY_SEED=" + QByteArray::number(plan.seed) +
           " PRINTPANELS_MONKEY_STEPS=" + QByteArray::number(plan.steps) +
           " PRINTPANELS_MONKEY_PANEL=" + plan.panel + " QT_QPA_PLATFORM=offscreen " +
           QCoreApplication::applicationFilePath().toLocal8Bit() + " walks";
}

// A run that hangs dies with its trail.
void expectProgress()
{
#ifdef Q_OS_UNIX
    alarm(120);
#endif
}

} // namespace

Runner::Runner(const Plan& plan)
    : m_plan(plan), m_world(mixed(plan), commandOf(plan)), m_user(m_world)
{
    // Some menus wait for an answer in a loop of their own.
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &m_nestedLoops, [this] { answerNestedLoop(); });
}

Runner::~Runner()
{
#ifdef Q_OS_UNIX
    alarm(0);
#endif
}

void Runner::run(const std::function<bool()>& isFine)
{
    for (int i = 1; i <= m_plan.steps; ++i) {
        if (i % 100 == 1)
            expectProgress();
        m_world.trail.beginStep(i);
        step();
        ++m_world.tally.steps;
        if (!isFine())
            m_world.fail(QStringLiteral("the test is fine"), QStringLiteral("see above"));
        if (m_world.hasFailed())
            return;
    }
    endLife();
}

QString Runner::report() const
{
    return m_world.hasFailed() ? m_world.failure() + u'\n' + m_world.trail.text() : QString();
}

void Runner::step()
{
    m_idleLoops = 0;
    if (!m_subject || !m_subject->panel() || --m_stepsToLive <= 0) {
        endLife();
        beginLife();
    } else if (m_world.random.below(100) < 60) {
        m_user.act(*m_subject);
    } else {
        m_world.target = nullptr;
        m_subject->hostActs();
    }
    settle();
    checkApplication();
    if (m_subject->panel())
        m_subject->check();
}

void Runner::beginLife()
{
    ++m_world.tally.panels;
    m_subject = Subject::create(m_plan.panel, m_world);
    m_stepsToLive = m_world.random.between(20, 400);
}

void Runner::endLife()
{
    if (!m_subject)
        return;
    // A panel may also end under an open list or a button that is held.
    const bool inTheMiddle = m_world.random.oneIn(4);
    m_world.trail.note(QStringLiteral("END"));
    if (!inTheMiddle)
        m_user.finish();
    m_subject.reset();
    m_user.finish();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    checkNothingLeft();
}

// Sooner or later everything that was posted is done; deferred deletion is never done by itself
// outside of an event loop.
void Runner::settle()
{
    if (m_world.random.oneIn(3))
        QCoreApplication::processEvents();
    if (m_world.random.oneIn(6))
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool Runner::isExpected(const QWidget* window) const
{
    const Qt::WindowFlags kind = window->windowFlags() & Qt::WindowType_Mask;
    return window == m_subject->window() || kind == Qt::Popup || kind == Qt::ToolTip ||
           window->objectName() == QLatin1String("desk");
}

void Runner::checkApplication()
{
    const bool mayDrag = m_user.holdsButton() && m_subject->panel();
    // A release that reached no widget is noticed in the next round of the event loop.
    if (QGuiApplication::overrideCursor() && !mayDrag)
        QCoreApplication::processEvents();
    if (QGuiApplication::overrideCursor() && !mayDrag)
        m_world.fail(QStringLiteral("no drag leaves its cursor"),
                     QStringLiteral("override cursor"));
    if (QApplication::activeModalWidget())
        m_world.fail(QStringLiteral("nothing is modal"),
                     QApplication::activeModalWidget()->objectName());
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (window->isVisible() && !isExpected(window))
            m_world.fail(QStringLiteral("no window of its own appears"),
                         QString::fromLatin1(window->metaObject()->className()));
    }
}

void Runner::checkNothingLeft()
{
    if (QGuiApplication::overrideCursor())
        m_world.fail(QStringLiteral("no panel leaves its cursor"), QString());
    if (QApplication::activePopupWidget())
        m_world.fail(
            QStringLiteral("no panel leaves its popup"),
            QString::fromLatin1(QApplication::activePopupWidget()->metaObject()->className()));
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        const bool toolTip = (window->windowFlags() & Qt::WindowType_Mask) == Qt::ToolTip;
        if (!toolTip && window->objectName() != QLatin1String("desk"))
            m_world.fail(QStringLiteral("no panel leaves a window"),
                         QString::fromLatin1(window->metaObject()->className()));
    }
}

void Runner::answerNestedLoop()
{
    if (m_answering || QThread::currentThread()->loopLevel() == 0)
        return;
    m_answering = true;
    QMetaObject::invokeMethod(
        &m_nestedLoops,
        [this] {
            m_answering = false;
            // Once or twice is no wonder: the loop may be over and not have noticed yet.
            m_idleLoops = QApplication::activePopupWidget() ? 0 : m_idleLoops + 1;
            if (m_idleLoops > 5)
                m_world.fail(QStringLiteral("nothing waits for ever"), QString());
            if (m_subject && m_subject->panel() && m_world.random.oneIn(3))
                m_subject->hostActs();
            else
                m_user.answerMenu();
        },
        Qt::QueuedConnection);
}

} // namespace Monkey
