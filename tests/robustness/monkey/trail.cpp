// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "trail.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstring>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace Monkey {

namespace {

constexpr int lineCount = 24;
constexpr int lineLength = 200;

// Plain memory, to be read in a signal handler.
char lines[lineCount][lineLength];
int written = 0;
char repeatCommand[400];
// To read a whole run.
const bool traces = qEnvironmentVariableIsSet("PRINTPANELS_MONKEY_TRACE");

void store(char* place, int room, const QByteArray& text)
{
    const auto length = std::min<qsizetype>(text.size(), room - 1);
    std::memcpy(place, text.constData(), size_t(length));
    place[length] = '\0';
}

#ifdef Q_OS_UNIX
constexpr int fatalSignals[] = {SIGABRT, SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGTERM, SIGALRM};
struct sigaction oldActions[std::size(fatalSignals)];

[[maybe_unused]] constexpr bool isFault(int number)
{
    return number != SIGABRT && number != SIGTERM && number != SIGALRM;
}

void put(const char* text)
{
    // There is nothing to do about an output that fails while the process dies.
    if (write(STDERR_FILENO, text, std::strlen(text)) < 0 || write(STDERR_FILENO, "\n", 1) < 0)
        return;
}

void tellAndDie(int number)
{
    put("The process dies. What happened last:");
    for (int i = std::max(0, written - lineCount); i < written; ++i)
        put(lines[i % lineCount]);
    put(repeatCommand);
    for (size_t i = 0; i < std::size(fatalSignals); ++i)
        sigaction(fatalSignals[i], &oldActions[i], nullptr);
    raise(number);
}

// The sanitizers' own handlers of a fault say more than we can and then abort; only where there
// are none do we take the signal.
void installHandlers()
{
    for (size_t i = 0; i < std::size(fatalSignals); ++i) {
        struct sigaction action = {};
        action.sa_handler = tellAndDie;
        sigaction(fatalSignals[i], &action, &oldActions[i]);
#ifdef __SANITIZE_ADDRESS__
        if (isFault(fatalSignals[i]))
            sigaction(fatalSignals[i], &oldActions[i], nullptr);
#endif
    }
}

void removeHandlers()
{
    for (size_t i = 0; i < std::size(fatalSignals); ++i)
        sigaction(fatalSignals[i], &oldActions[i], nullptr);
}
#else
void installHandlers() {}
void removeHandlers() {}
#endif

} // namespace

Trail::Trail(const QByteArray& command)
{
    written = 0;
    store(repeatCommand, int(sizeof repeatCommand), "To repeat it: " + command);
    installHandlers();
}

Trail::~Trail()
{
    removeHandlers();
}

void Trail::beginStep(int step)
{
    m_step = step;
}

void Trail::note(const QString& line)
{
    const QByteArray text = QByteArray::number(m_step) + ": " + line.toUtf8();
    store(lines[written % lineCount], lineLength, text);
    ++written;
    if (traces)
        std::fprintf(stderr, "%s\n", text.constData());
    for (const char byte : text)
        m_fingerprint = (m_fingerprint ^ quint8(byte)) * 0x100000001b3ULL;
}

QString Trail::text() const
{
    QStringList texts;
    for (int i = std::max(0, written - lineCount); i < written; ++i)
        texts.append(QString::fromUtf8(lines[i % lineCount]));
    texts.append(QString::fromUtf8(repeatCommand));
    return texts.join(u'\n');
}

} // namespace Monkey

// Faults that the sanitizers find end in SIGABRT, so that the trail is printed after their report.
#if defined(__SANITIZE_ADDRESS__) && defined(Q_OS_UNIX)
extern "C" {
Q_DECL_EXPORT const char* __asan_default_options();
const char* __asan_default_options()
{
    // Freed memory is overwritten, because Qt, which is not instrumented, would read it unnoticed.
    return "abort_on_error=1:quarantine_size_mb=64:malloc_context_size=15:"
           "max_free_fill_size=65536:free_fill_byte=219";
}
Q_DECL_EXPORT const char* __ubsan_default_options();
const char* __ubsan_default_options()
{
    return "abort_on_error=1:print_stacktrace=1";
}
}
#endif
