#include "ClipboardKeeper.h"

#include <QList>
#include <QSocketNotifier>

// Xlib defines macros as common as Bool and None: it comes after every header of Qt.
#include <X11/Xatom.h>
#include <X11/Xlib.h>

static constexpr long longestPart = 1 << 24; // in fours of bytes, more than any photo

static Atom atom(Display *display, const char *name)
{
    return XInternAtom(display, name, False);
}

static QByteArray nameOf(Display *display, Atom number)
{
    char *name = XGetAtomName(display, number);
    QByteArray copy(name);
    XFree(name);
    return copy;
}

ClipboardKeeper::ClipboardKeeper()
    : m_display(XOpenDisplay(nullptr))
{
    if (!m_display)
        return;
    m_window = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 1, 1, 0, 0, 0);
    XSetSelectionOwner(m_display, atom(m_display, "CLIPBOARD_MANAGER"), m_window, CurrentTime);
    XFlush(m_display);
    m_notifier =
        std::make_unique<QSocketNotifier>(ConnectionNumber(m_display), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { handleEvents(); });
}

ClipboardKeeper::~ClipboardKeeper()
{
    m_notifier.reset();
    if (m_display)
        XCloseDisplay(m_display);
}

bool ClipboardKeeper::isInCharge() const
{
    return m_display
        && XGetSelectionOwner(m_display, atom(m_display, "CLIPBOARD_MANAGER")) == m_window;
}

void ClipboardKeeper::handleEvents()
{
    while (XPending(m_display)) {
        XEvent event;
        XNextEvent(m_display, &event);
        if (event.type == SelectionRequest) {
            const XSelectionRequestEvent &request = event.xselectionrequest;
            m_asker = request.requestor;
            m_askersTarget = request.target;
            m_askersProperty = request.property;
            if (request.target == atom(m_display, "SAVE_TARGETS")) {
                m_formats = {atom(m_display, "TARGETS")};
                fetchNext();
            } else {
                answer(false);
            }
        } else if (event.type == SelectionNotify) {
            takeFetched(event.xselection.property);
        }
    }
}

void ClipboardKeeper::fetchNext()
{
    XConvertSelection(m_display, atom(m_display, "CLIPBOARD"), m_formats.first(),
                      atom(m_display, "KEPT"), m_window, CurrentTime);
    XFlush(m_display);
}

void ClipboardKeeper::takeFetched(unsigned long property)
{
    const Atom format = m_formats.takeFirst();
    Atom type = None;
    int bits = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *data = nullptr;
    if (property != None)
        XGetWindowProperty(m_display, m_window, property, 0, longestPart, True, AnyPropertyType,
                           &type, &bits, &count, &left, &data);
    if (data && bits == 32) {
        const auto *targets = reinterpret_cast<const Atom *>(data);
        const QList<QByteArray> notData{"TARGETS", "MULTIPLE", "TIMESTAMP", "SAVE_TARGETS"};
        for (unsigned long i = 0; format == atom(m_display, "TARGETS") && i < count; ++i)
            if (!notData.contains(nameOf(m_display, targets[i])))
                m_formats.append(targets[i]);
    } else if (data) {
        m_kept[nameOf(m_display, format)] =
            QByteArray(reinterpret_cast<const char *>(data), int(count));
    }
    XFree(data);
    if (m_formats.isEmpty())
        answer(true);
    else
        fetchNext();
}

void ClipboardKeeper::answer(bool isDone)
{
    XEvent event = {};
    event.xselection.type = SelectionNotify;
    event.xselection.requestor = m_asker;
    event.xselection.selection = atom(m_display, "CLIPBOARD_MANAGER");
    event.xselection.target = m_askersTarget;
    event.xselection.property = isDone ? m_askersProperty : Atom(None);
    event.xselection.time = CurrentTime;
    XSendEvent(m_display, m_asker, False, NoEventMask, &event);
    XFlush(m_display);
}
