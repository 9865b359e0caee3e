#ifndef MOVIEWIDGET_H
#define MOVIEWIDGET_H

#include <phonon/videoplayer.h>

class QLabel;

/**
 * Plays a recorded movie: the media player with a caption and the few operations that the buttons
 * "Play", "Pause" and "Stop" need. Pausing and the end of a movie are the player's own pause() and
 * finished().
 *
 * One widget plays one movie after the other. As long as the player itself would be black, before
 * a movie begins and after it was stopped, the movie's still picture ("...tmp.png") stands there.
 *
 * A movie that cannot be played is not reported: the player stays silent, and counts as complete.
 */
class MovieWidget : public Phonon::VideoPlayer {
    Q_OBJECT

public:
    explicit MovieWidget(QWidget *parent);
    ~MovieWidget() override;

    bool isCreated() const { return m_created; } ///< a movie has been given at least once

Q_SIGNALS:
    /// The player has learnt how long the movie is (ms), a moment after it began to play; 0 or less
    /// when it forgets it again.
    void lengthKnown(qint64 length);

public Q_SLOTS:
    /// Loads the movie at the absolute path @p filename; playback waits for Play(). Its still
    /// picture is read ahead in the size that the widget has now, from the temporary area. Always
    /// true, also for a file that does not exist.
    bool Create(const QString &filename);
    void Release(); ///< nothing to do; the viewers are all released alike
    void Play(); ///< starts or resumes; does nothing while playing
    void Stop();
    void Reset(); ///< plays from the beginning
    /// Whether the movie has been played to its end, or none is loaded.
    bool isComplete();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void hearPlayerOut();
    void showStillPicture(const QString &movie);
    void hideStillPicture(qint64 position);

    bool m_created = false;
    class StillPicture;
    StillPicture *m_stillPicture; ///< above the player's surface, below the caption
    QLabel *m_label = nullptr;
};

#endif
