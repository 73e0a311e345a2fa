// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/printqueue.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QScopeGuard>

#include <cups/cups.h>

#include <future>
#include <memory>

namespace SampleHost {

namespace {

constexpr int statusTimeout = 5000;
/** How often a request that waits for the server checks its deadline. */
constexpr double checkSeconds = 0.1;

using Connection = std::unique_ptr<http_t, decltype(&httpClose)>;
using Response = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

/** Connects to the user's server; null without one. Requests do not wait beyond the deadline. */
Connection connectToServer(QDeadlineTimer& deadline)
{
    Connection server(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                   int(deadline.remainingTime()), nullptr),
                      &httpClose);
    const auto waitOn = [](http_t*, void* data) {
        return int(!static_cast<QDeadlineTimer*>(data)->hasExpired());
    };
    httpSetTimeout(server.get(), checkSeconds, waitOn, &deadline);
    return server;
}

/**
 * Calls function with a connection to the server, in a thread of its own, which has its own libcups
 * settings: Qt sets those of the main thread to show a dialog when a server asks for a password.
 */
template <typename Function>
bool withServer(QDeadlineTimer& deadline, Function function)
{
    const auto call = [&deadline, &function] {
        cupsSetPasswordCB2([](const char*, http_t*, const char*, const char*,
                              void*) -> const char* { return nullptr; },
                           nullptr);
        const Connection server = connectToServer(deadline);
        return function(server.get());
    };
    return std::async(std::launch::async, call).get();
}

/** Asks whether a queue accepts jobs. Null without a response. */
Response requestStatus(http_t* server, const QByteArray& queue)
{
    if (server == nullptr) {
        return Response(nullptr, &ippDelete);
    }
    ipp_t* request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    const QByteArray uri = "ipp://localhost/printers/" + queue.toPercentEncoding();
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-is-accepting-jobs");
    return Response(cupsDoRequest(server, request, "/"), &ippDelete);
}

const char* textOrNull(const QByteArray& text)
{
    return text.isEmpty() ? nullptr : text.constData();
}

/**
 * Submits a file to a queue, or to an instance of it, which has its own options. Returns false with
 * the reason in cupsLastErrorString().
 */
bool submitFile(http_t* server, const QByteArray& queue, const QByteArray& instance,
                const QByteArray& file, const QByteArray& title, const QByteArray& paper)
{
    // Without a response, libcups would go on to search the network, and ignore the deadline.
    if (!requestStatus(server, queue)) {
        return false;
    }
    cups_dest_t* printer = cupsGetNamedDest(server, queue, textOrNull(instance));
    if (printer == nullptr) {
        return false;
    }
    const auto release = qScopeGuard([printer] { cupsFreeDests(1, printer); });
    if (!paper.isEmpty()) {
        printer->num_options =
            cupsAddOption("media", paper, printer->num_options, &printer->options);
    }
    return cupsPrintFile2(server, queue, file, textOrNull(title), printer->num_options,
                          printer->options) != 0;
}

} // namespace

bool PrintQueue::isSupported()
{
    return true;
}

bool PrintQueue::refusesJobs() const
{
    QDeadlineTimer deadline(statusTimeout);
    const QByteArray queue = m_printerName.section(QLatin1Char('/'), 0, 0).toUtf8();
    return withServer(deadline, [&queue](http_t* server) {
        const Response response = requestStatus(server, queue);
        ipp_attribute_t* accepts =
            ippFindAttribute(response.get(), "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
        return accepts != nullptr && ippGetBoolean(accepts, 0) == 0;
    });
}

bool PrintQueue::submit(const QString& file, const QString& title, const QString& paper,
                        QString& problem) const
{
    QDeadlineTimer deadline(m_submitTimeout);
    const QByteArray queue = m_printerName.section(QLatin1Char('/'), 0, 0).toUtf8();
    const QByteArray instance = m_printerName.section(QLatin1Char('/'), 1).toUtf8();
    QString reason;
    const auto call = [&](http_t* server) {
        const bool submitted = submitFile(server, queue, instance, QFile::encodeName(file),
                                          title.toUtf8(), paper.toUtf8());
        reason = QString::fromUtf8(cupsLastErrorString());
        return submitted;
    };
    if (withServer(deadline, call)) {
        return true;
    }
    problem =
        deadline.hasExpired()
            ? tr("The printer \"%1\" does not answer. Check that it is switched on and connected.")
                  .arg(m_printerName)
            : tr("The printer \"%1\" did not take the job: %2").arg(m_printerName, reason);
    return false;
}

} // namespace SampleHost
