#include "SoundServer.h"

#include "BoundedTask.h"
#include "EngineLog.h"
#include "PatientWait.h"

#include <QMap>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <pulse/pulseaudio.h>
#include <utility>

using std::chrono::steady_clock;

/// One connection, from the attempt to the end of the server. What the server says is handled on
/// the connection's own thread, and kept where the GUI thread may look without asking it.
class SoundServer::Client {
public:
    enum class State { Connecting, Listed, Ended };

    explicit Client(std::function<void()> changed);
    ~Client(); ///< may take as long as the connection's thread is busy
    Client(const Client &) = delete;
    Client &operator=(const Client &) = delete;

    void connect(); ///< may take long
    bool waitUntil(steady_clock::time_point deadline) const; ///< listed, or ended
    State state() const;
    QByteArray microphone() const;
    QString serverName() const;
    QVector<ListedSource> sources() const;

private:
    static void onState(pa_context *context, void *client);
    static void onEvent(pa_context *context, pa_subscription_event_type_t, uint32_t, void *client);
    static void onServer(pa_context *context, const pa_server_info *server, void *client);
    static void onSource(pa_context *context, const pa_source_info *source, int end, void *client);
    void enter(State state);
    void takeList();

    const std::function<void()> m_changed;
    pa_threaded_mainloop *m_loop = nullptr;
    pa_context *m_context = nullptr;

    // The connection's thread only: the list that is being heard.
    QByteArray m_heardDefault;
    QString m_heardServer;
    QMap<QByteArray, ListedSource> m_heard; ///< by name

    mutable std::mutex m_mutex; ///< guards everything below
    mutable std::condition_variable m_entered;
    State m_state = State::Connecting;
    QByteArray m_microphone;
    QString m_server;
    QVector<ListedSource> m_sources;
};

// The answer comes by itself.
static void ask(pa_operation *question)
{
    if (question)
        pa_operation_unref(question);
}

SoundServer::Client::Client(std::function<void()> changed)
    : m_changed(std::move(changed))
{
}

SoundServer::Client::~Client()
{
    if (m_loop)
        pa_threaded_mainloop_stop(m_loop);
    if (m_context) {
        pa_context_set_state_callback(m_context, nullptr, nullptr);
        pa_context_disconnect(m_context);
        pa_context_unref(m_context);
    }
    if (m_loop)
        pa_threaded_mainloop_free(m_loop);
}

void SoundServer::Client::connect()
{
    m_loop = pa_threaded_mainloop_new();
    if (m_loop)
        m_context = pa_context_new(pa_threaded_mainloop_get_api(m_loop), "Orvanta");
    if (!m_context) {
        enter(State::Ended);
        return;
    }
    pa_context_set_state_callback(m_context, onState, this);
    pa_context_set_subscribe_callback(m_context, onEvent, this);
    if (pa_context_connect(m_context, nullptr, PA_CONTEXT_NOFLAGS, nullptr) < 0
        || pa_threaded_mainloop_start(m_loop) < 0)
        enter(State::Ended);
}

void SoundServer::Client::onState(pa_context *context, void *client)
{
    auto *const self = static_cast<Client *>(client);
    switch (pa_context_get_state(context)) {
    case PA_CONTEXT_READY:
        ask(pa_context_subscribe(
            context,
            pa_subscription_mask_t(PA_SUBSCRIPTION_MASK_SOURCE | PA_SUBSCRIPTION_MASK_SERVER),
            nullptr, nullptr));
        ask(pa_context_get_server_info(context, onServer, self));
        break;
    case PA_CONTEXT_FAILED:
    case PA_CONTEXT_TERMINATED:
        self->enter(State::Ended);
        break;
    default:
        break;
    }
}

// Whatever changed, all is asked again: it is little, and seldom.
void SoundServer::Client::onEvent(pa_context *context, pa_subscription_event_type_t, uint32_t,
                                  void *client)
{
    auto *const self = static_cast<Client *>(client);
    ask(pa_context_get_server_info(context, onServer, self));
}

void SoundServer::Client::onServer(pa_context *context, const pa_server_info *server, void *client)
{
    auto *const self = static_cast<Client *>(client);
    self->m_heardDefault = server ? QByteArray(server->default_source_name) : QByteArray();
    self->m_heardServer = server
        ? QStringLiteral("%1 %2").arg(QString::fromUtf8(server->server_name),
                                      QString::fromUtf8(server->server_version))
        : QString();
    ask(pa_context_get_source_info_list(context, onSource, self));
}

static ListedSource listed(const pa_source_info &source)
{
    const char *serial = pa_proplist_gets(source.proplist, "device.serial");
    return {source.name,
            QString::fromUtf8(source.description),
            QString::fromUtf8(serial),
            source.monitor_of_sink == PA_INVALID_INDEX,
            int(source.sample_spec.rate),
            source.sample_spec.channels};
}

void SoundServer::Client::onSource(pa_context *, const pa_source_info *source, int end,
                                   void *client)
{
    auto *const self = static_cast<Client *>(client);
    if (end == 0)
        self->m_heard.insert(source->name, listed(*source));
    else
        self->takeList();
}

void SoundServer::Client::enter(State state)
{
    bool wasListed = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        wasListed = m_state == State::Listed;
        m_state = state;
        m_entered.notify_all();
    }
    if (wasListed || state == State::Listed)
        m_changed();
}

static QByteArray microphoneAmong(const QMap<QByteArray, ListedSource> &sources,
                                  const QByteArray &usual)
{
    if (sources.value(usual).isMicrophone)
        return usual;
    const auto first = std::find_if(sources.begin(), sources.end(),
                                    [](const ListedSource &source) { return source.isMicrophone; });
    return first == sources.end() ? QByteArray() : first.key();
}

void SoundServer::Client::takeList()
{
    const QMap<QByteArray, ListedSource> sources = std::exchange(m_heard, {});
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_microphone = microphoneAmong(sources, m_heardDefault);
        m_server = m_heardServer;
        m_sources = sources.values().toVector();
    }
    enter(State::Listed);
}

bool SoundServer::Client::waitUntil(steady_clock::time_point deadline) const
{
    return waitPatiently(
        deadline,
        [this](steady_clock::time_point until) {
            std::unique_lock<std::mutex> lock(m_mutex);
            return m_entered.wait_until(
                lock, until, [this] { return m_state != State::Connecting; });
        });
}

SoundServer::Client::State SoundServer::Client::state() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_state;
}

QByteArray SoundServer::Client::microphone() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_state == State::Listed ? m_microphone : QByteArray();
}

QString SoundServer::Client::serverName() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_state == State::Listed ? m_server : QString();
}

QVector<ListedSource> SoundServer::Client::sources() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_state == State::Listed ? m_sources : QVector<ListedSource>();
}

SoundServer::SoundServer(std::function<void()> changed)
    : m_changed(std::move(changed))
{
}

SoundServer::~SoundServer()
{
    end();
}

void SoundServer::end()
{
    const BoundedTask closing([client = std::move(m_client)]() mutable { client.reset(); });
    m_client.reset();
}

void SoundServer::begin()
{
    if (m_client && m_client->state() == Client::State::Ended)
        end();
    if (!m_client) {
        m_client = std::make_shared<Client>(m_changed);
        const BoundedTask connecting([client = m_client] { client->connect(); });
    }
}

void SoundServer::waitUntil(steady_clock::time_point deadline) const
{
    if (!m_client->waitUntil(deadline))
        qCWarning(engineLog, "the sound server does not answer");
}

bool SoundServer::isThere() const
{
    return m_client && m_client->state() != Client::State::Ended;
}

bool SoundServer::hasAnswered() const
{
    return m_client && m_client->state() == Client::State::Listed;
}

QString SoundServer::serverName() const
{
    return m_client ? m_client->serverName() : QString();
}

QVector<ListedSource> SoundServer::sources() const
{
    return m_client ? m_client->sources() : QVector<ListedSource>();
}

QByteArray SoundServer::microphone() const
{
    return m_client ? m_client->microphone() : QByteArray();
}
