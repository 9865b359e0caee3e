#ifndef SCREENFAULTS_H
#define SCREENFAULTS_H

#include <QtGlobal>

/**
 * What the X server can do to a program, and what it can ask it. Has a connection of its own to
 * the server of $DISPLAY; one thread at a time.
 */
class ScreenFaults {
public:
    ScreenFaults();
    ~ScreenFaults();
    Q_DISABLE_COPY(ScreenFaults)

    /// Closes the connection of the program that @p window belongs to. For the program that is the
    /// end of the server.
    void cutOff(quint32 window);
    /// How long (ms) the program of @p window takes to answer, as window managers ask for it; at
    /// most @p limit, and 0 when there is no such window, or not any more.
    int answerTime(quint32 window, int limit);

private:
    bool hasAnswered(long number);

    struct _XDisplay *m_display; // Xlib's own name for its Display
    long m_number = 0; ///< of the last question
};

#endif
