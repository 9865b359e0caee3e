#include "ScreenWake.h"

#include "DesktopLog.h"

#include <QX11Info>

#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

// Xlib defines macros as common as Bool and None: it comes after every header of Qt.
#include <X11/Xlib.h>
#include <X11/extensions/scrnsaver.h>

static constexpr int quietTime = 2000; // ms

// The X server takes the suspension back by itself when the connection ends.
static void suspendServersSaver(bool isSuspended)
{
    Display *display = QX11Info::isPlatformX11() ? QX11Info::display() : nullptr;
    int event = 0;
    int error = 0;
    if (!display || !XScreenSaverQueryExtension(display, &event, &error))
        return;
    XScreenSaverSuspend(display, isSuspended ? True : False);
    XFlush(display);
}

/// Between the thread that asks and the GUI thread. The answer may come when nobody waits for it
/// any more.
class ScreenWake::Mailbox {
public:
    explicit Mailbox(ScreenWake *owner)
        : m_owner(owner)
    {
    }

    void close()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_owner = nullptr;
        m_answer.giveBack();
    }

    void post(const ScreenInhibition &answer)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_answer = answer;
        if (m_owner)
            QMetaObject::invokeMethod(m_owner, "answered", Qt::QueuedConnection);
        else
            m_answer.giveBack();
    }

    ScreenInhibition take()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return std::exchange(m_answer, {});
    }

private:
    std::mutex m_mutex; ///< guards the rest
    ScreenWake *m_owner; ///< null when it is gone
    ScreenInhibition m_answer; ///< until it is taken
};

ScreenWake::ScreenWake(QString program, std::function<QString()> whatMoves, QObject *parent)
    : QObject(parent)
    , m_program(std::move(program))
    , m_whatMoves(std::move(whatMoves))
    , m_mailbox(std::make_shared<Mailbox>(this))
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(quietTime);
    connect(&m_soon, &QTimer::timeout, this, &ScreenWake::look);
}

ScreenWake::~ScreenWake()
{
    m_mailbox->close();
    release();
}

void ScreenWake::lookSoon()
{
    m_soon.start();
}

void ScreenWake::look()
{
    if (m_isAsking)
        return; // the answer looks again
    const QString reason = m_whatMoves();
    if (reason.isEmpty())
        release();
    else if (!m_isKept)
        ask(reason);
}

void ScreenWake::ask(const QString &reason)
{
    m_isAsking = true;
    try {
        std::thread([mailbox = m_mailbox, bus = ScreenInhibition::busAddress(), program = m_program,
                     reason] {
            mailbox->post(ScreenInhibition::ask(bus, program, reason));
        }).detach();
    } catch (const std::system_error &) { // no thread to be had: as if nobody answered
        m_mailbox->post({});
    }
}

void ScreenWake::answered()
{
    m_isAsking = false;
    m_isKept = true;
    m_inhibition = m_mailbox->take();
    if (!m_inhibition.isValid()) {
        qCInfo(desktopLog, "no desktop keeps the screen awake: the X server is asked");
        suspendServersSaver(true);
    }
    look();
}

void ScreenWake::release()
{
    if (!m_isKept)
        return;
    m_isKept = false;
    if (m_inhibition.isValid())
        m_inhibition.giveBack();
    else
        suspendServersSaver(false);
}
