#ifndef PATIENTWAIT_H
#define PATIENTWAIT_H

#include <chrono>
#include <functional>

/**
 * One operation of the engine, from its call to its return. A window that stands still without a
 * word looks broken, so an operation that has to wait for a camera or a server says so: after a
 * quarter of a second the wait cursor is shown until the operation returns, and while it waits the
 * windows are painted again and again, in case something had covered them.
 *
 * No event is handled meanwhile: whoever called the engine finds everything as it was.
 *
 * Made at the beginning of every public operation; one within another counts with the outer one.
 * On any other thread than the GUI's it has no effect.
 */
class PatientCall {
public:
    PatientCall();
    ~PatientCall();
    PatientCall(const PatientCall &) = delete;
    PatientCall &operator=(const PatientCall &) = delete;

private:
    bool m_isOutermost;
};

/// Waits until @p arrived says true, or @p deadline has come; the result is its last answer.
/// @p arrived waits for at most as long as it is told, without spinning.
bool waitPatiently(std::chrono::steady_clock::time_point deadline,
                   const std::function<bool(std::chrono::steady_clock::time_point until)> &arrived);

#endif
