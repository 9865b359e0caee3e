#include "MediaConnection.h"

#include "BoundedTask.h"

#include <QByteArray>
#include <QVector>

#include <cstring>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

static QByteArray firstSet(std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        QByteArray value = qgetenv(name);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

// Where the server's own library looks for it: the user's server, then one for the whole machine.
static QVector<QByteArray> serverPaths()
{
    QByteArray name = firstSet({"PIPEWIRE_REMOTE"});
    if (name.isEmpty())
        name = "pipewire-0";
    if (name.startsWith('/'))
        return {name};
    QVector<QByteArray> paths;
    const QByteArray folder = firstSet({"PIPEWIRE_RUNTIME_DIR", "XDG_RUNTIME_DIR", "USERPROFILE"});
    if (!folder.isEmpty())
        paths.append(folder + '/' + name);
    paths.append("/run/pipewire/" + name);
    return paths;
}

static bool connectTo(int socket, const QByteArray &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (size_t(path.size()) >= sizeof(address.sun_path))
        return false;
    std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
    return ::connect(socket, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
}

// What the server says stays unread here, so only its end is watched for.
static int watchEndOf(int socket)
{
    const int watch = epoll_create1(EPOLL_CLOEXEC);
    epoll_event end = {};
    end.events = EPOLLRDHUP;
    if (watch >= 0 && epoll_ctl(watch, EPOLL_CTL_ADD, socket, &end) != 0) {
        ::close(watch);
        return -1;
    }
    return watch;
}

MediaConnection::MediaConnection(int socket, int watch)
    : m_socket(socket)
    , m_watch(watch)
{
}

MediaConnection::~MediaConnection()
{
    m_provider.reset();
    ::close(m_watch);
    ::close(m_socket);
}

void MediaConnection::takeDown(const MediaConnection *connection)
{
    const BoundedTask ending([connection] { delete connection; });
}

std::shared_ptr<MediaConnection> MediaConnection::openAt(const QByteArray &path)
{
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (socket < 0)
        return nullptr;
    const int watch = connectTo(socket, path) ? watchEndOf(socket) : -1;
    if (watch < 0) {
        ::close(socket);
        return nullptr;
    }
    return {new MediaConnection(socket, watch), &MediaConnection::takeDown};
}

std::shared_ptr<MediaConnection> MediaConnection::open()
{
    const QVector<QByteArray> paths = serverPaths();
    for (const QByteArray &path : paths)
        if (std::shared_ptr<MediaConnection> connection = openAt(path))
            return connection;
    return nullptr;
}

bool MediaConnection::isLost() const
{
    epoll_event end = {};
    return epoll_wait(m_watch, &end, 1, 0) > 0;
}
