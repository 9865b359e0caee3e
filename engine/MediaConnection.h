#ifndef MEDIACONNECTION_H
#define MEDIACONNECTION_H

#include <memory>

class QByteArray;

/**
 * A connection to the media server, which lives as long as that server runs.
 *
 * The library that speaks to the server keeps one conversation per descriptor and goes on using it
 * when the server behind it has died. So the descriptor is ours: everything that was made of one
 * run of the server holds the same connection, and what is made after a restart holds a new one.
 * When the last holder lets go the connection is taken down on the side.
 *
 * Threads: any, except for keep().
 */
class MediaConnection {
public:
    /// Null when no media server runs. Does not block: a server that hangs is connected to.
    static std::shared_ptr<MediaConnection> open();

    /// Takes @p provider down with the connection: its conversation must not outlive it. Once, by
    /// the thread that started it.
    void keep(std::shared_ptr<void> provider) { m_provider = std::move(provider); }

    MediaConnection(const MediaConnection &) = delete;
    MediaConnection &operator=(const MediaConnection &) = delete;

    /// What elements and device providers connect by. They copy it, nobody else reads from it.
    int descriptor() const { return m_socket; }

    /// A descriptor that becomes readable when the server has gone, and stays so.
    int watch() const { return m_watch; }

    /// The server has gone; one that merely hangs has not.
    bool isLost() const;

private:
    MediaConnection(int socket, int watch);
    ~MediaConnection(); ///< waits for the library's threads
    static void takeDown(const MediaConnection *connection);
    static std::shared_ptr<MediaConnection> openAt(const QByteArray &path);

    const int m_socket;
    const int m_watch;
    std::shared_ptr<void> m_provider;
};

#endif
