#ifndef DEVICES_H
#define DEVICES_H

#include <QProcess>
#include <QStringList>

#include <memory>

/// Runs a tool of the system; false when it fails, does not end within a minute, or is not there.
bool run(const QString &tool, const QStringList &arguments);

/**
 * A driver of the machine whose devices are there as long as this object lives. The kernel's test
 * drivers make devices that no program can tell from real ones: what they send comes through the
 * same nodes, and the manager of devices tells of them in the same way.
 *
 * Needs the rights to load drivers. Programs that hold a device when this object goes must end
 * within a minute, or the driver stays, with its devices.
 */
class Driver {
public:
    Driver(QString name, const QStringList &parameters);
    ~Driver();
    Driver(const Driver &) = delete;
    Driver &operator=(const Driver &) = delete;

    bool isLoaded() const { return m_loaded; }

protected:
    /// Takes the driver's device away from under its users, or brings it back.
    static bool write(const QString &path, const QByteArray &text);

private:
    const QString m_name;
    bool m_loaded = false;
};

/**
 * Cameras that send colour bars, with a clock and a frame counter in them. They are numbered from
 * 0 and are /dev/video0 and up when no others are there.
 */
class TestCameras : public Driver {
public:
    enum class Kind { Webcam = 0, Television = 1, Composite = 2, Hdmi = 3 };

    /// One camera for each of @p kinds, each called "vivid".
    explicit TestCameras(const QList<Kind> &kinds);
    /// @p nodes are the kinds of node that the one camera has, in the bits of the driver.
    explicit TestCameras(uint nodes);

    static QString node(int camera = 0) { return QStringLiteral("/dev/video%1").arg(camera); }
    /// Buttons are pressed by any value. Names are the driver's, "disconnect".
    static bool set(const QString &control, int value = 1, int camera = 0);

    /// All cameras at once, whoever uses them, as when a hub is pulled out.
    static bool pullOut();
    static bool plugIn();
};

/**
 * A sound card that hears what is played to it: mono or stereo, in any usual rate and format. It is
 * the first card, so the one that programs take when nobody names one.
 */
class LoopCard : public Driver {
public:
    LoopCard();
    ~LoopCard();
    LoopCard(const LoopCard &) = delete;
    LoopCard &operator=(const LoopCard &) = delete;

    /// A tone of 1 kHz without end, in one of the sound system's formats, "S16_LE". What listens to
    /// the card hears it in this format only.
    bool play(const QString &format = QStringLiteral("S16_LE"), int rate = 48000, int channels = 2);
    void fallSilent();
    /// Who listens to it hears nothing more; it can be plugged in again once they have closed it.
    bool pullOut();
    bool plugIn();

private:
    QProcess m_player;
    QProcess m_puller;
};

/// Another program that streams from a video node or listens to the card until this object goes.
class OtherProgram {
public:
    static std::unique_ptr<OtherProgram> streaming(const QString &node);
    static std::unique_ptr<OtherProgram> listening();
    ~OtherProgram();
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

private:
    OtherProgram() = default;

    QProcess m_process;
};

#endif
