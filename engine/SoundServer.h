#ifndef SOUNDSERVER_H
#define SOUNDSERVER_H

#include <QByteArray>
#include <QString>
#include <QVector>

#include <chrono>
#include <functional>
#include <memory>

/// One of the sound server's sources.
struct ListedSource {
    QByteArray name; ///< the server's own for it; with some servers the device's serial is in it
    QString description; ///< what a user knows it by
    QString serial; ///< of the device, often empty
    bool isMicrophone = false; ///< and no loudspeaker's monitor
    int rate = 0; ///< sample frames a second
    int channels = 0;
};

/**
 * The sound server as far as microphones go: whether it is there, and which of its sources is the
 * microphone. Once connected it is told of every source that comes and goes, and of the server's
 * end; a server that was started anew is connected to by the next begin().
 *
 * A server that hangs cannot hang its caller: all questions are answered from what was heard last.
 *
 * Threads: all operations on the GUI thread; the callback comes on any.
 */
class SoundServer {
public:
    /// @p changed is called, on any thread, when a source came or went, another one is the default,
    /// or the server ended.
    explicit SoundServer(std::function<void()> changed);
    ~SoundServer();
    SoundServer(const SoundServer &) = delete;
    SoundServer &operator=(const SoundServer &) = delete;

    /// Connects, unless that is done; does not wait for the answer.
    void begin();

    /// Waits until @p deadline at most for the list of sources, or to hear that there is no server.
    /// Only after begin().
    void waitUntil(std::chrono::steady_clock::time_point deadline) const;

    /// One that does not answer counts.
    bool isThere() const;

    /// It has said by now what it has. False without a server, too.
    bool hasAnswered() const;

    /// What the server calls itself, with its version; empty until it has answered.
    QString serverName() const;

    /// All sources that were heard of last, by name.
    QVector<ListedSource> sources() const;

    /// The name of the source to listen to: the server's default, or when that is a loudspeaker's
    /// monitor the first by name that is none. Empty when there is no such source.
    QByteArray microphone() const;

private:
    class Client;

    void end();

    std::function<void()> m_changed;
    std::shared_ptr<Client> m_client; ///< null before begin(), and when its server has ended
};

#endif
