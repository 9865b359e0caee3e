#ifndef LOSTSESSION_H
#define LOSTSESSION_H

/**
 * The desktop's session manager crashes while the program runs. Left alone, its library ends the
 * process, in the middle of whatever is being captured. The lesson goes on without it: only nobody
 * asks any more before the session ends.
 */
class LostSession {
public:
    LostSession() = delete;

    /// For the whole process, whenever it meets a session manager.
    static void outlive();
};

#endif
