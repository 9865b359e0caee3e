#ifndef SHRINKING_H
#define SHRINKING_H

#include <QVector>

#include <algorithm>

/**
 * The shortest sequence that still fails, as far as it is found with so many tries: pieces are left
 * out, first large ones and then ever smaller ones, as long as the rest fails (delta debugging).
 * What fails must fail each time, or too much is kept; what is returned has failed in any case.
 */
template <typename Event, typename Fails>
QVector<Event> shortestFailing(QVector<Event> events, int tries, Fails fails)
{
    for (int piece = std::max(1, events.size() / 2); tries > 0; piece = std::max(1, piece / 2)) {
        bool isShorter = false;
        // From the end: what comes after the failure goes at once.
        for (int begin = (events.size() - 1) / piece * piece; begin >= 0 && tries > 0;
             begin -= piece, --tries) {
            QVector<Event> rest = events;
            rest.remove(begin, std::min(piece, rest.size() - begin));
            if (!rest.isEmpty() && fails(rest)) {
                events = rest;
                isShorter = true;
            }
        }
        if (piece == 1 && !isShorter)
            break;
    }
    return events;
}

#endif
