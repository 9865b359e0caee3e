#ifndef WINDOWPING_H
#define WINDOWPING_H

#include <QtGlobal>

/// Asks windows, as window managers do, whether the program behind them still takes its events.
class WindowPing {
public:
    WindowPing();
    ~WindowPing();
    Q_DISABLE_COPY(WindowPing)

    /// How long (ms) the answer took; -1 when there is none within the limit (ms), or no such
    /// window any more. The event loop of the test runs on meanwhile.
    qint64 ask(quint32 window, int limit);

private:
    struct _XDisplay *m_display; ///< null without an X server
    long m_number = 0; ///< of the question
};

#endif
