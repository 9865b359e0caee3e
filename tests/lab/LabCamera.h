#ifndef LABCAMERA_H
#define LABCAMERA_H

#include "FramePainter.h"
#include "LabBeep.h"

#include <fstream>
#include <memory>
#include <string>
#include <vector>

struct pw_buffer;
struct pw_main_loop;
struct pw_stream;
struct spa_pod;
struct spa_source;

// A camera on the media server that exists only as this process: it sends the lab's test picture,
// paced by a timer of its own, to any number of receivers, and its frame counter goes on while
// receivers come and go, as a real camera's would.
//
// The counter advances with every frame that the camera should send. A receiver that keeps all
// buffers to itself therefore sees a gap, and so does one that is too slow; a receiver that keeps
// up sees every number once. A freeze stops the counter too.
//
// One whose light goes out promises its rate and then, after some seconds, sends fewer frames.
//
// With a sink for its sound, a tone (LabBeep) begins with every marked frame.
//
// The time of a frame, where it is noted, is the monotonic clock's in ns just before its picture is
// made: that of a shutter.
//
// Everything runs on the thread that calls run().
class LabCamera {
public:
    struct Options {
        std::string name; // of the node; also decides the ground colour
        std::string description; // what users see
        std::string serial;
        std::vector<QSize> sizes;
        FramePainter::Format format = FramePainter::UYVY;
        int rate = 30;
        int dimRate = 0; // frames a second after the light went out; 0: it stays on
        std::string beepSink; // empty: no sound
        std::string scene; // path of a picture that the camera sees; empty: the test picture
        std::string times; // path of a file for "NUMBER TIME" of each frame sent; empty: none
    };

    explicit LabCamera(Options options);
    ~LabCamera();
    LabCamera(const LabCamera &) = delete;
    LabCamera &operator=(const LabCamera &) = delete;

    // Sends until SIGTERM, SIGINT or the loss of the media server. Prints "ready" once other
    // programs can see the camera. SIGUSR1 freezes it, SIGUSR2 lets it go on. Returns the status
    // for the process, 1 when there is no media server.
    int run();

private:
    void connectStream();
    void stateChanged(int state);
    void formatChosen(const spa_pod *format);
    void announceBuffers();
    void setPaced(bool paced);
    void tick();
    void sendFrame();
    void fill(pw_buffer *buffer);
    void announceBeat();

    friend struct LabCameraEvents;

    Options m_options;
    std::unique_ptr<FramePainter> m_painter; // null until a receiver has agreed on a format

    std::unique_ptr<struct LabCameraEvents> m_events; // outlives the stream
    pw_main_loop *m_loop = nullptr;
    pw_stream *m_stream = nullptr;
    spa_source *m_timer = nullptr;

    std::ofstream m_times;
    std::unique_ptr<LabBeep> m_beep; // null without a sink

    bool m_streaming = false;
    bool m_frozen = false;
    bool m_frameDue = false;
    bool m_announced = false;
    quint32 m_counter = 0;
};

#endif // LABCAMERA_H
