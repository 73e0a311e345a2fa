// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/printqueue.h"
#include "support/stricttest.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QSemaphore>
#include <QtCore/QTemporaryFile>
#include <QtCore/QThread>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include <cups/cups.h>

#include <memory>

using namespace SampleHost;

namespace {

/** A server that sends the same response to everyone, or accepts connections and never responds. */
class FakeServer
{
public:
    explicit FakeServer(const QByteArray& response)
        : m_thread(QThread::create([this, response] { run(response); }))
    {
        m_thread->start();
        m_listening.acquire();
        qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(m_port));
    }

    ~FakeServer()
    {
        m_thread->requestInterruption();
        m_thread->wait();
    }

private:
    Q_DISABLE_COPY_MOVE(FakeServer)

    void run(const QByteArray& response)
    {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        m_port = server.serverPort();
        m_listening.release();
        while (!QThread::currentThread()->isInterruptionRequested()) {
            QTcpSocket* client =
                server.waitForNewConnection(20) ? server.nextPendingConnection() : nullptr;
            if (client != nullptr && !response.isEmpty() && client->waitForReadyRead()) {
                client->write(response);
                client->disconnectFromHost();
                client->waitForDisconnected();
            }
        }
    }

    std::unique_ptr<QThread> m_thread;
    QSemaphore m_listening;
    quint16 m_port = 0;
};

} // namespace

/** A queue whose server is gone, hangs or wants a password. */
class TestPrintQueue : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void goneServerIsReported();
    void silentServerIsReported();
    void passwordIsNotAskedFor();

private:
    /** What keeps a file from being submitted within that time; empty if it was submitted. */
    QString submissionProblem(int timeout = 20000);

    QTemporaryFile m_file;
};

void TestPrintQueue::init()
{
    StrictTest::init();
    QVERIFY(m_file.open());
}

QString TestPrintQueue::submissionProblem(int timeout)
{
    QString problem;
    const bool submitted = PrintQueue(QStringLiteral("Hall"), timeout)
                               .submit(m_file.fileName(), QString(), QString(), problem);
    return submitted ? QString() : problem;
}

void TestPrintQueue::goneServerIsReported()
{
    {
        const FakeServer server{QByteArray()};
    }
    QVERIFY(!PrintQueue(QStringLiteral("Hall")).refusesJobs());
    QCOMPARE(submissionProblem(),
             QStringLiteral("The printer \"Hall\" did not take the job: Host is down"));
}

void TestPrintQueue::silentServerIsReported()
{
    const FakeServer server{QByteArray()};
    QElapsedTimer elapsed;
    elapsed.start();
    QVERIFY(!PrintQueue(QStringLiteral("Hall")).refusesJobs());
    QVERIFY2(elapsed.elapsed() < 8000, "The host hung");
    elapsed.start();
    QCOMPARE(
        submissionProblem(1500),
        QStringLiteral(
            "The printer \"Hall\" does not answer. Check that it is switched on and connected."));
    QVERIFY2(elapsed.elapsed() < 4000, "The host hung");
}

// In an application, Qt shows a dialog to ask for it. That stays in place for other requests.
void TestPrintQueue::passwordIsNotAskedFor()
{
    const FakeServer server(
        "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"Hall\"\r\n"
        "Content-Length: 0\r\nConnection: close\r\n\r\n");
    static int questions = 0;
    cupsSetPasswordCB2(
        [](const char*, http_t*, const char*, const char*, void*) -> const char* {
            ++questions;
            return nullptr;
        },
        nullptr);
    QVERIFY(!PrintQueue(QStringLiteral("Hall")).refusesJobs());
    QCOMPARE(submissionProblem(),
             QStringLiteral("The printer \"Hall\" did not take the job: Unauthorized"));
    QCOMPARE(questions, 0);
    cupsGetPassword("");
    QCOMPARE(questions, 1);
}

QTEST_GUILESS_MAIN(TestPrintQueue)

#include "tst_printqueue.moc"
