#ifndef WEBCAMUTIL_H
#define WEBCAMUTIL_H

#include <QDateTime>
#include <QMessageBox>
#include <QString>
#include <QStringList>

#include <vector>

class QFile;
class QWidget;
struct FolderFile;

/**
 * The media store: where captured photos and movies lie, how they are called, and how they are
 * listed, saved and thrown away. It also asks for free space and shows the program's message boxes.
 *
 * Everything captured is first written flat into the temporary area, a folder of the user's own
 * below the system's temporary folder that outlives the program. It leaves the area only by
 * saveData() or deleteData(). A file counts as captured when its name begins with "photo" or
 * "movie"; anything else that strays in is neither saved nor deleted.
 *
 * The class is never instantiated: its state belongs to the process. It has no locks and is used
 * from the GUI thread only. No operation throws, and only the message boxes show anything; a
 * failure is a false or an empty string, and the caller decides what to say.
 *
 * File names in lists are bare; join them to getTemporaryPath() with "/".
 */
class WebcamUtil {
public:
    WebcamUtil() = delete;

    /// The home folder; empty until first asked for, or when it could not be made.
    static QString m_apppath;
    /// The temporary area; empty means not yet set up, or set-up failed.
    static QString m_pictureDataPath;
    /// The photos found by the last setTempBmpFilenameList().
    static QStringList m_tempbmpfilenameList;
    /// Meant for movie names; nothing fills it, see setTempMovieFilnameList().
    static QStringList m_tempmoviefilenameList;
    /// The day's folder of the last saveData(); empty when it could not be made, or when its disk
    /// does not answer.
    static QString m_saveFolder;
    /// What isSaveFile() last found, newest first. A record only: saving lists the area afresh.
    static QStringList m_savefilenameList;

    // WebcamUtilPaths.cpp: the folders

    /// Finds the home folder, making it if it is missing.
    static void setAppPath();
    /// The home folder, found on first use; empty if it is missing and cannot be made.
    static QString getAppPath();
    /// The home folder as it is now; the settings offer it as the place to save to.
    static QString getDocumentPath();
    /// Finds the temporary area, making it if it is missing and closing it to other users. What
    /// somebody else has put in its place, a link, or what cannot be closed is as good as none.
    static void setTemporaryPath();
    /// The temporary area, set up on first use; empty if there is none, and tried again.
    static QString getTemporaryPath();
    /// Sets the temporary area up anew if it has vanished, as before everything that is written
    /// into it without a look at the disk's free space.
    static void restoreTemporaryPath();
    /// Removes the temporary area if it is empty, and forgets it either way.
    static void deleteTemporaryPath();
    /// Opens @p file for writing as a new file at @p path, in place of an older one. What lies
    /// there is never written to, as it would be through a link. False if the file cannot be made.
    static bool openNewFile(QFile &file, const QString &path);
    /// Whether the folder @p path may be written to, judged by its entry in the folder above it and
    /// not by trying. A root folder and a folder reached through a symbolic link are refused.
    static bool hasWriteAccess(const QString &path);

    // WebcamUtilNames.cpp: names made of the moment of capture, in local time
    // A name carries no counter: photos of the same millisecond, or movies of the same second,
    // would share it, see newPhotofilename().

    /// yyyyMMddhhmmsszzz
    static QString CurrentTimeQString(const QDateTime &moment = QDateTime::currentDateTime());
    /// yyyyMMddhhmmss
    static QString CurrentSecondString(const QDateTime &moment = QDateTime::currentDateTime());
    /// yyyyMMdd
    static QString CurrentDateString(const QDateTime &moment = QDateTime::currentDateTime());
    /// "photo" + milliseconds + ".png", without a folder.
    static QString CreatePhotofilename(const QDateTime &moment = QDateTime::currentDateTime());
    /// "photo" + milliseconds + "tmp.png", without a folder.
    static QString CreateTempPhotofilename(const QDateTime &moment = QDateTime::currentDateTime());
    /// Full path in the temporary area: "movie" + seconds + ".mov".
    static QString CreateMoviefilename(const QDateTime &moment = QDateTime::currentDateTime());
    /// The same for a capture that is about to be written: while the temporary area has something
    /// of that name, as after a clock was set back, the next millisecond's, and for a movie, which
    /// must not take another's still picture either, the next second's.
    static QString newPhotofilename(const QDateTime &moment = QDateTime::currentDateTime());
    static QString newMoviefilename(const QDateTime &moment = QDateTime::currentDateTime());
    /// Full path in the temporary area: "movie" + seconds + "tmpphoto", with no suffix.
    static QString CreateTempMoviefilename(const QDateTime &moment = QDateTime::currentDateTime());
    /// The still picture of @p movie, a name or a path: "....mov" becomes "...tmp.png". Lists and
    /// views handle a movie by it, since a movie without one cannot be shown.
    static QString stillNameOf(const QString &movie);
    /// The movie of a still picture, the way back from stillNameOf().
    static QString movieNameOf(const QString &still);
    /// Makes the day's folder below @p base; its absolute path, or empty if it cannot be made.
    static QString CreateSavePath(const QString &base,
                                  const QDateTime &moment = QDateTime::currentDateTime());

    // WebcamUtilListing.cpp: what the temporary area holds

    /// Captured files whose names match one of the wildcard @p patterns, oldest first.
    static QStringList getFileList(const QStringList &patterns);
    /// Reads the names of the captured photos into m_tempbmpfilenameList.
    static void setTempBmpFilenameList();
    /// The captured photos, oldest first.
    static QStringList getTempPhotoNameList();
    /// Does nothing: movies are listed by getMovieFileList() without a cache.
    static void setTempMovieFilnameList();
    /// The still pictures of the movies, oldest movie first. A movie without its still picture is
    /// left out, and so is a picture without its movie.
    static QStringList getMovieFileList();
    /// Whether there is any file at all to ask about at exit, captured or not.
    static bool isSaveFile();
    /// Whether there is any file at all, in spite of the name.
    static bool isMovieFile();
    /// Whether there is a "photo*.bmp"; photos are written as .png, so there is usually none.
    static bool isPhotoFile();

    // WebcamUtilSaving.cpp: leaving the temporary area

    /// Moves everything captured into "TavelinCamera/<day of @p moment>" below @p target, newest
    /// first. A file that cannot be moved stays in the temporary area, the others are moved all the
    /// same, and nothing half written is left in the folder. A file that is already there under the
    /// same name was saved before and is kept; the captured one is removed.
    ///
    /// False if the folder cannot be made, a file could not be moved, or there was nothing to save.
    /// What was moved is on the disk when it returns.
    /// A copy to another file system takes its time; the wait cursor is shown meanwhile, and the
    /// windows stay painted. A disk that does not answer for ten seconds is given up: false, and
    /// what is not moved by then stays in the temporary area.
    static bool saveData(const QString &target,
                         const QDateTime &moment = QDateTime::currentDateTime());
    /// To be called before saveData() with the same arguments: captures whose name another file has
    /// in that folder get one of their own, or they would count as saved before.
    static void keepApartFromSaved(const QString &target, const QDateTime &moment);
    /// Deletes everything captured. A file that cannot be deleted stays, silently.
    static void deleteData();
    /// Deletes the hidden files of captures that were cut off when the program was killed: of those
    /// last written before @p moment the ones that nobody is writing any more. For the first copy
    /// of the program alone.
    static void deleteUnfinished(const QDateTime &moment);
    /// Deletes the file at @p path, if it can be.
    static void deletetmpfile(const QString &path);

    // WebcamUtilDisk.cpp: room for the next capture

    /// Whether more than 300 MB are free for the temporary area; a capture is not begun with less.
    /// False too when the area cannot be made or asked.
    static bool chkdiskFreeSpace();
    /// The rule behind chkdiskFreeSpace(): strictly more than 300 MB, 1 MB being 1,048,576 bytes.
    static bool isEnoughSpace(quint64 blockSize, quint64 availableBlocks);

    // WebcamUtilMessages.cpp: message boxes, modal, centred on the desktop, with one OK button

    /// Says that the disk is too full for a capture.
    static void ShowDiskWorningMessage(QWidget *parent);
    static void infoMessage(const QString &text, QWidget *parent);
    static void WarningMessage(const QString &text, QWidget *parent);
    static void CriticalMessage(const QString &text, QWidget *parent);
    /// Fixes @p widget at its preferred size and centres it on the whole desktop, wherever its
    /// parent is. A null widget is left alone.
    static void moveToCenter(QWidget *widget, QWidget *parent);

private:
    static QString ensuredFolder(const QString &path);
    static QString savePath(const QString &base, const QDateTime &moment);
    static bool isCaptured(const char *name);
    static std::vector<FolderFile> readTemporaryArea(const QStringList &patterns = {});
    static QStringList listTemporaryArea(const QStringList &patterns = {});
    static void showMessage(QMessageBox::Icon icon, const QString &text, QWidget *parent);
};

#endif
