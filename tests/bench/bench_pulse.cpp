// Asks a program's window again and again whether it is alive, as window managers do, and says how
// long it took to answer: as long as its thread was away from its events.
//
//   bench_pulse WINDOW       the window's number
//
// Prints "asking" and then, for each answer that took longer than 1 ms, "TIME MS": when it was
// asked on the monotonic clock, in ns, and how long it took. Runs until its input ends.

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <poll.h>

#include <X11/Xlib.h>

namespace {

constexpr int pause = 1; // ms between an answer and the next question
constexpr long long shortest = 1000000; // ns, that is worth telling
constexpr int patience = 5000; // ms, that an answer is waited for

long long nanosecondsNow()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000 + now.tv_nsec;
}

/// A window manager's question, by its number, which the answer repeats.
class Pulse {
public:
    Pulse(Display *display, Window window)
        : m_display(display)
        , m_window(window)
        , m_protocols(XInternAtom(display, "WM_PROTOCOLS", False))
        , m_ping(XInternAtom(display, "_NET_WM_PING", False))
    {
        // Some toolkits answer to those who watch the root itself, others to those of its children.
        XSelectInput(display, DefaultRootWindow(display),
                     StructureNotifyMask | SubstructureNotifyMask);
    }

    void ask(long number)
    {
        XEvent event = {};
        event.xclient.type = ClientMessage;
        event.xclient.window = m_window;
        event.xclient.message_type = m_protocols;
        event.xclient.format = 32;
        event.xclient.data.l[0] = long(m_ping);
        event.xclient.data.l[1] = number;
        event.xclient.data.l[2] = long(m_window);
        XSendEvent(m_display, m_window, False, NoEventMask, &event);
        XFlush(m_display);
    }

    bool hasAnswered(long number)
    {
        bool found = false;
        while (XPending(m_display) > 0) {
            XEvent event = {};
            XNextEvent(m_display, &event);
            found = found
                || (event.type == ClientMessage && event.xclient.message_type == m_protocols
                    && Atom(event.xclient.data.l[0]) == m_ping
                    && event.xclient.data.l[1] == number);
        }
        return found;
    }

private:
    Display *m_display;
    Window m_window;
    Atom m_protocols;
    Atom m_ping;
};

/// False when the input ended.
bool waitFor(Display *display, int milliseconds)
{
    pollfd inputs[] = {{fileno(stdin), POLLIN, 0},
                       {display ? ConnectionNumber(display) : -1, POLLIN, 0}};
    poll(inputs, 2, milliseconds);
    return inputs[0].revents == 0;
}

void keepAsking(Display *display, Pulse *pulse)
{
    for (long number = 1; waitFor(nullptr, pause); ++number) {
        const long long asked = nanosecondsNow();
        pulse->ask(number);
        bool answered = pulse->hasAnswered(number);
        while (!answered && nanosecondsNow() - asked < patience * 1000000LL) {
            if (!waitFor(display, patience))
                return;
            answered = pulse->hasAnswered(number);
        }
        const long long took = nanosecondsNow() - asked;
        if (took > shortest) {
            std::printf("%lld %.3f\n", asked, double(took) / 1e6);
            std::fflush(stdout);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    Display *display = XOpenDisplay(nullptr);
    const Window window = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 0;
    if (!display || window == 0)
        return 2;
    Pulse pulse(display, window);
    std::printf("asking\n");
    std::fflush(stdout);
    keepAsking(display, &pulse);
    XCloseDisplay(display);
    return 0;
}
