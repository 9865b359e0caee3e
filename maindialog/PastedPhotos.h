#ifndef PASTEDPHOTOS_H
#define PASTEDPHOTOS_H

#include <QByteArray>
#include <QPointer>
#include <QStringList>

class QMimeData;

/**
 * The photos that "Paste" put on the desktop's clipboard, from where any program can take them: as
 * files, and a single one as a picture as well.
 *
 * The files lie in the temporary area and leave it when the program ends. The clipboard may outlive
 * the program, by a desktop that keeps it, and must not name files that are gone: see settle().
 *
 * GUI thread only. Whatever else comes onto the clipboard is left alone.
 */
class PastedPhotos {
public:
    /// Puts the files at the absolute @p paths there. Those that cannot be read are left out; when
    /// that is all of them the clipboard stays as it is.
    void offer(const QStringList &paths);

    /// The photos have been saved into @p folder, or have not, which is an empty one: what is still
    /// on the clipboard names the saved files now, or none. The picture stays. Only the first call
    /// after offer() does something.
    void settle(const QString &folder);

private:
    void put(const QStringList &paths);

    QStringList m_paths; ///< of the temporary area; empty once they are settled
    QByteArray m_picture; ///< a PNG file, of a single photo
    QPointer<QMimeData> m_onClipboard; ///< the clipboard's own; null when that has something else
};

#endif
