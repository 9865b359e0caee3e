#ifndef STILLSAVING_H
#define STILLSAVING_H

#include "BoundedTask.h"

#include <QImage>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>

class CameraFrame;
class QString;

/**
 * A photo whose picture is needed at once and whose file may take a moment: encoding and writing it
 * go on while the picture is shown already.
 *
 * GUI thread only. One file is written at a time. The frame is kept until it is converted for its
 * file; the camera may be closed or lost meanwhile.
 */
class StillSaving : public QObject {
    Q_OBJECT

public:
    /// How long a file may take. Only the disk can make it late, and it is not given up for that.
    static constexpr std::chrono::milliseconds limit{30000};

    StillSaving();
    ~StillSaving() override; ///< a file that is still being written is left to its thread

    /// The picture of @p frame at its full size (RGB32), made as quickly as for the live picture;
    /// another thread makes the one for the file, writes it to @p path, and ended() tells when.
    /// Null, and no more, when the frame cannot be converted or a file is being written already.
    QImage begin(const std::shared_ptr<const CameraFrame> &frame, const QString &path);
    /// From begin() until ended().
    bool isRunning() const { return m_writing.has_value(); }
    /// Waits until the file is there, or its limit; ended() is emitted before this returns.
    void finish();

Q_SIGNALS:
    /// The file is complete and holds @p written (RGB32), or there is none and that is null: it
    /// cannot be written, or was not in time. One that was not in time may still come. Once for
    /// each begin(), from the event loop or finish().
    void ended(const QImage &written);

private:
    struct Desk;
    void arrived(int number);

    std::shared_ptr<Desk> m_desk; ///< where a thread that has written says so
    std::optional<BoundedTask<QImage>> m_writing; ///< of the file that is not told of yet
    std::chrono::steady_clock::time_point m_deadline;
    int m_number = 0; ///< of the file begun last; an earlier one may come after its limit
    QTimer m_giveUp;
};

#endif
