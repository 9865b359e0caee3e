#ifndef LOSTSCREEN_H
#define LOSTSCREEN_H

#include <chrono>
#include <functional>

/**
 * The end of the program when the X server ends before it. The toolkit and Xlib know nothing better
 * than exit() then, from within whatever is going on, and libraries that are tidied up while their
 * threads run may wait for one another for ever: the camera would be taken until the next boot.
 *
 * As long as the object lives, exit() completes what is being captured and ends the process without
 * tidying up; and a write to a connection that is closed at the other end fails, as it does for the
 * rest of the process, instead of ending it. One object at a time, on the GUI thread.
 */
class LostScreen {
public:
    /// How long the process may still take. A session that ends does not wait for much longer.
    static constexpr std::chrono::milliseconds limit{6000};

    /// @p complete must not draw, nor ask the X server for anything.
    explicit LostScreen(std::function<void()> complete);
    ~LostScreen();
    LostScreen(const LostScreen &) = delete;
    LostScreen &operator=(const LostScreen &) = delete;
};

#endif
