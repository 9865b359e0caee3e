#ifndef MICROPHONEFINDER_H
#define MICROPHONEFINDER_H

#include "Microphone.h"
#include "SoundCardTrial.h"

#include <QElapsedTimer>
#include <QtGlobal>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class SoundServer;

/**
 * Whether there is a microphone, which source it is, and whether it can be used now.
 *
 * A sound server has the last word: its microphone is the one that SoundServer names, and a server
 * without one means that there is none. On a machine without a sound server it is the sound
 * system's own default source, and only opening it tells whether it works (SoundCardTrial).
 *
 * All engines of a process share one connection to the sound server, which hears of every source
 * that comes and goes; what an engine has opened, or could not open, is its own.
 *
 * Threads: all operations on the GUI thread; the callback comes on any. Nothing here asks a server
 * or a driver and waits for it without a limit.
 */
class MicrophoneFinder {
public:
    /// @p changed is called, on any thread, when a source came or went, another one is the default,
    /// or the sound server ended. Nobody tells when a sound card comes or goes.
    explicit MicrophoneFinder(std::function<void()> changed);
    ~MicrophoneFinder();
    Q_DISABLE_COPY(MicrophoneFinder)

    /// Connects to the sound server, if that is not done; does not wait for its answer.
    static void begin();
    /// Waits until @p deadline at most for that answer.
    static void waitUntil(std::chrono::steady_clock::time_point deadline);

    /// The one that all ask, for whoever wants to know more of it.
    static const SoundServer &server();

    /// The machine's microphone; empty when there is none. Without a sound server there is always
    /// one to try.
    static std::optional<SoundSource> source();

    /// Whether the camera that is open is the demonstration's, which is listened to by its own
    /// microphone, and it alone; nothing while none is open.
    void setDemonstration(std::optional<bool> isIt) { m_isDemonstration = isIt; }

    /// What a movie is to listen to here: source(), or the demonstration camera's microphone. While
    /// no camera is open that one counts where its camera is offered and there is no other.
    std::optional<SoundSource> chosen() const;

    /// Opens it. Null when there is none, or it does not open within @p limit.
    std::shared_ptr<Microphone> open(std::chrono::milliseconds limit);

    /// A movie could not begin for want of a microphone: there counts as none until something
    /// changes, or for two seconds when nobody would tell of the change.
    void refuse();
    void forgetRefusal();

    /// There is a microphone, and it works as far as can be told. Without a sound server it is
    /// tried, for a second at most, unless it is the one that is open.
    bool canBeUsed();

private:
    const std::function<void()> m_changed;
    std::weak_ptr<Microphone> m_open;
    std::optional<bool> m_isDemonstration;
    bool m_isRefused = false;
    QElapsedTimer m_sinceRefusal;
    SoundCardTrial m_card;
};

#endif
