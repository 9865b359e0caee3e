#ifndef PATIENTWAIT_H
#define PATIENTWAIT_H

#include <chrono>
#include <functional>

/**
 * One operation of the engine, from its call to its return. A window that stands still without a
 * word looks broken, so an operation that has to wait for a camera or a server says so: after a
 * quarter of a second the wait cursor is shown until the operation returns, and while it waits the
 * windows are painted again and again, in case something had covered them. All waits of one
 * operation together end at its limit; LiveVideoData.h says which operation has which.
 *
 * No event is handled meanwhile: whoever called the engine finds everything as it was.
 *
 * Made at the beginning of every public operation; one within another counts with the outer one.
 * On any other thread than the GUI's it has no effect.
 */
class PatientCall {
public:
    /// A person waits for three seconds, of which a moment is left for what is no waiting.
    static constexpr std::chrono::milliseconds usualLimit{2800};
    /// For a camera that is slow to send its first frame, and for the end of a movie: five seconds.
    static constexpr std::chrono::milliseconds longLimit{4800};

    explicit PatientCall(std::chrono::nanoseconds limit = usualLimit);
    ~PatientCall();
    PatientCall(const PatientCall &) = delete;
    PatientCall &operator=(const PatientCall &) = delete;

    /// The program is to end: waits that only bring a camera back are not worth going on with.
    /// @p wanted is asked on the GUI thread; null for never, as it is at first.
    static void setInterruption(std::function<bool()> wanted);
    static bool isInterrupted();

    /// What the GUI thread does about five times a second while it waits; null for nothing, as at
    /// first. It must handle no events and call no operation.
    static void setMeanwhile(std::function<void()> work);

    /// Nobody sees the windows any more, nor does the X server answer: from now on waits show
    /// nothing. GUI thread.
    static void showNothing();

private:
    bool m_isOutermost;
};

/// Waits until @p arrived says true, @p deadline has come or the operation's limit is reached; the
/// result is its last answer. @p arrived waits until the time it is given and no longer, without
/// spinning.
bool waitPatiently(std::chrono::steady_clock::time_point deadline,
                   const std::function<bool(std::chrono::steady_clock::time_point until)> &arrived);

#endif
