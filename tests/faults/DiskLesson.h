#ifndef DISKLESSON_H
#define DISKLESSON_H

#include "Session.h"

#include <QStringList>

/// A lesson in which something happens to the disks: the user, and what is left of the captures.
class DiskLesson : public Session {
public:
    DiskLesson();

    /// Where disks can be laid over, before the program is started.
    QString temporaryFolder() { return program().temporaryFolder(); }
    QString home() { return program().home(); }
    /// A folder elsewhere that the settings name as the one to save to; it is made.
    QString otherSaveFolder();

    /// From the live picture and back to it, with one photo more.
    bool takeAndAccept();
    /// The first message is over, all buttons of the live screen can be pressed.
    bool isLiveAgain();
    /// "Exit", up to the question.
    bool askAtExit();

    /// The photos of the temporary area that can be shown, by their names.
    QStringList photos();
    /// How many of these photos can be shown neither here nor in the day's folder below @p saved.
    int lostOf(const QStringList &names, const QString &saved = {});
    /// Files that are listed and hold no picture, here and in that folder.
    QStringList damaged(const QString &saved = {});
    /// The longest time (ms) within so much time for which the camera's picture does not move.
    qint64 longestStandstill(QRect place, int time);

    static QString dayFolder(const QString &saved);
    static const char fullText[];
};

#endif
