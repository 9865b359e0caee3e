#ifndef LABBEEP_H
#define LABBEEP_H

#include <QtGlobal>

#include <memory>
#include <string>

struct pw_loop;
struct pw_stream;

// The sound that belongs to a lab camera's picture: a tone of 1 kHz and 100 ms, played into a sink
// of the sound server each time a marked frame is due. A recording's picture and sound can then be
// compared: the tone must begin where the marked frame is shown.
//
// The camera says when the next marked frame will be sent; the tone is placed by that time, so the
// sound server's block size (5 ms) does not blur it. Silence in between. Runs on the loop's thread.
class LabBeep {
public:
    LabBeep(pw_loop *loop, const std::string &sink);
    ~LabBeep();
    LabBeep(const LabBeep &) = delete;
    LabBeep &operator=(const LabBeep &) = delete;

    // On the monotonic clock, in nanoseconds.
    void setNextBeat(qint64 time) { m_beat = time; }

private:
    friend struct LabBeepEvents;
    void play();

    std::unique_ptr<struct LabBeepEvents> m_events; // outlives the stream
    pw_stream *m_stream = nullptr;
    qint64 m_beat = 0;
};

#endif // LABBEEP_H
