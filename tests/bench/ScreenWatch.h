#ifndef SCREENWATCH_H
#define SCREENWATCH_H

#include <QElapsedTimer>
#include <QObject>
#include <QVector>

class QWidget;

/// Watches a lab camera's live picture come to the screen: after each painting of the target it
/// reads the frame's number off the screen. GUI thread only.
class ScreenWatch : public QObject {
    Q_OBJECT

public:
    explicit ScreenWatch(QWidget *target);

    void restart(); ///< forgets what was seen so far
    int shown() const { return m_times.size(); } ///< different frames
    /// Frames of the camera, between the first and the last shown, that never were.
    int dropped() const;
    /// How long @p share (0 to 1) of the frames waited at most for their successor, in ms.
    double intervalOf(double share) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void look();

    QWidget *m_target;
    QElapsedTimer m_clock;
    qint64 m_painted = 0; ///< ns
    int m_first = -1; ///< numbers of frames
    int m_last = -1;
    QVector<qint64> m_times; ///< ns, when each new frame was painted
};

#endif
