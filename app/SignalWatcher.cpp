#include "SignalWatcher.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QWidget>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int closingStepMs = 20; // time for the flow behind a closed box to go on

// A signal handler may do next to nothing; writing a byte into a pipe is allowed.
int writeEnd = -1;
volatile std::sig_atomic_t come = 0;

void passOn(int)
{
    come = 1;
    const int interrupted = errno;
    const char byte = 0;
    // The pipe is never full: each of the few signals is passed on once.
    [[maybe_unused]] const ssize_t written = write(writeEnd, &byte, 1);
    errno = interrupted;
}

// The end of the session, an interruption by the keyboard, the end of the terminal.
constexpr int signals[] = {SIGTERM, SIGINT, SIGHUP};

void handleWith(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    sigemptyset(&action.sa_mask);
    for (const int signal : signals) {
        struct sigaction before = {};
        // Whoever started the program may have said that it is to outlive its terminal, as "nohup".
        if (signal == SIGHUP && sigaction(signal, nullptr, &before) == 0
            && before.sa_handler == SIG_IGN)
            continue;
        sigaction(signal, &action, nullptr);
    }
}

} // namespace

SignalWatcher::SignalWatcher(QWidget *window)
    : m_window(window)
{
    come = 0;
    m_closing.setInterval(closingStepMs);
    connect(&m_closing, &QTimer::timeout, this, &SignalWatcher::closeTopmost);
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_readEnd = ends[0];
    writeEnd = ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &SignalWatcher::drain);
    handleWith(passOn);
}

SignalWatcher::~SignalWatcher()
{
    if (m_readEnd < 0)
        return;
    handleWith(SIG_DFL);
    m_notifier.reset();
    close(m_readEnd);
    close(writeEnd);
    writeEnd = -1;
}

bool SignalWatcher::hasCome()
{
    return come != 0;
}

void SignalWatcher::drain()
{
    char byte = 0;
    if (read(m_readEnd, &byte, 1) == 1)
        m_closing.start();
}

void SignalWatcher::closeTopmost()
{
    if (QWidget *box = QApplication::activeModalWidget()) {
        box->close();
        return;
    }
    m_closing.stop();
    m_window->close();
}
