#ifndef MONKEYEVENTS_H
#define MONKEYEVENTS_H

#include <QByteArray>
#include <QVector>

class QRandomGenerator;

/**
 * What somebody who does not know what he does, does next, or what befalls him. The numbers choose
 * among what there is when it happens (the second of three buttons, a place on the screen), so that
 * a sequence with some of its events left out is a sequence as well, of which the rest stays what
 * it was.
 */
struct MonkeyEvent {
    enum Kind {
        Press, ///< a button that can be pressed, with the mouse
        PressDead, ///< one that cannot
        Tap, ///< a button, with a finger
        TwoFingers, ///< anywhere
        Click, ///< anywhere
        DoubleClick, ///< anywhere
        RightClick, ///< anywhere
        Drag, ///< from anywhere to anywhere
        Wheel, ///< anywhere
        Key,
        HeldKey, ///< for so long that it repeats
        Second, ///< some pass on the clock in the window
        Wait, ///< some milliseconds
        CameraPulled,
        CameraBack,
        MicrophonePulled,
        MicrophoneBack,
        DiskFull,
        DiskFree,
        WritingFails, ///< of photos
        WritingSucceeds,
        WritingSlow,
        Written, ///< a photo that is slow
        EncoderBreaks, ///< of the movie that is recorded
        Touched, ///< a camera that wakes up: two are there at the next start
        CloseWindow,
        LogOut,
        KindCount
    };

    Kind kind;
    quint32 first;
    quint32 second;
};

using MonkeyEvents = QVector<MonkeyEvent>;

/// By that chance: the usual often, the rare rarely.
MonkeyEvents someEvents(QRandomGenerator &chance, int count);

// As text, an event a line, to be stored and read by people.
QByteArray toText(const MonkeyEvents &events);
MonkeyEvents fromText(const QByteArray &text); ///< up to the first line that is none

#endif
