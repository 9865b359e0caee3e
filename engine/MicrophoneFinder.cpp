#include "MicrophoneFinder.h"

#include "ChangeListeners.h"
#include "DemoCamera.h"
#include "SoundServer.h"

using std::chrono::milliseconds;
using std::chrono::steady_clock;

static const milliseconds cardLimit(1000); // for a trial of the sound card
static const int cardRefusal = 2000; // ms; long enough for the program to ask why no movie began

// Never destroyed: a server may speak, or hang, until the process ends.
static ChangeListeners &listeners()
{
    static auto *const shared = new ChangeListeners;
    return *shared;
}

static SoundServer &soundServer()
{
    static auto *const shared = new SoundServer([] { listeners().tell(); });
    return *shared;
}

MicrophoneFinder::MicrophoneFinder(std::function<void()> changed)
    : m_changed(std::move(changed))
{
    listeners().add(&m_changed);
}

MicrophoneFinder::~MicrophoneFinder()
{
    listeners().remove(&m_changed);
}

void MicrophoneFinder::begin()
{
    soundServer().begin();
}

void MicrophoneFinder::waitUntil(steady_clock::time_point deadline)
{
    soundServer().waitUntil(deadline);
}

const SoundServer &MicrophoneFinder::server()
{
    return soundServer();
}

std::optional<SoundSource> MicrophoneFinder::source()
{
    if (!soundServer().isThere())
        return SoundSource{SoundSource::Kind::Card, {}};
    const QByteArray name = soundServer().microphone();
    if (name.isEmpty())
        return std::nullopt;
    return SoundSource{SoundSource::Kind::Server, name};
}

std::optional<SoundSource> MicrophoneFinder::chosen() const
{
    const bool isAlone = !soundServer().isThere() || soundServer().microphone().isEmpty();
    if (m_isDemonstration.value_or(isAlone && DemoCamera::isWanted()))
        return SoundSource{SoundSource::Kind::Demonstration, {}};
    return source();
}

std::shared_ptr<Microphone> MicrophoneFinder::open(milliseconds limit)
{
    const std::optional<SoundSource> found = chosen();
    std::shared_ptr<Microphone> opened = found ? Microphone::open(*found, limit) : nullptr;
    m_open = opened;
    return opened;
}

void MicrophoneFinder::refuse()
{
    m_isRefused = true;
    m_sinceRefusal.start();
}

void MicrophoneFinder::forgetRefusal()
{
    m_isRefused = false;
}

bool MicrophoneFinder::canBeUsed()
{
    const bool hasServer = soundServer().isThere();
    if (m_isRefused && (hasServer || !m_sinceRefusal.hasExpired(cardRefusal)))
        return false;
    const std::optional<SoundSource> found = chosen();
    if (hasServer || (found && found->kind == SoundSource::Kind::Demonstration))
        return found.has_value();
    // One that a movie listens to would be found busy.
    return !m_open.expired() || m_card.canBeOpened(cardLimit);
}
