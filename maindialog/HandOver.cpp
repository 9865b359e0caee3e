// "Paste": a small text file dropped into a folder that the whiteboard software watches names the
// pictures to fetch. There is no answer, and no other channel to that software; for all other
// programs the pictures are put on the clipboard.

#include "CVistrelDlg.h"

#include "PictureWidget.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

void CVistrelDlg::setTVSButton()
{
    createButton(PutPhotoButton);
    createButton(PutMovieButton);
}

void CVistrelDlg::OnTVS()
{
    if (m_displayMode != MovieMode) // movies cannot be pasted
        PutTVSPhoto();
}

void CVistrelDlg::PutTVSPhoto()
{
    completePhoto();
    pasteToClipboard();
    WebcamUtil::restoreTemporaryPath(); // or it would be made here, and open to everybody
    const QString area = WebcamUtil::getTemporaryPath();
    const QString folder = area + QStringLiteral("/tmp");
    if (area.isEmpty() || !QDir().mkpath(folder))
        return;
    const QString path = folder + QStringLiteral("/PUTTVS") + WebcamUtil::CurrentSecondString();
    QFile file;
    if (!WebcamUtil::openNewFile(file, path))
        return;
    QTextStream out(&file);
    out.setCodec("UTF-8");
    // What the picture measures on the screen, in the screen's own pixels.
    const QSize shown = (QSizeF(m_videoRect.size()) * devicePixelRatioF()).toSize();
    out << "0\n" << shown.width() << 'x' << shown.height() << '\n';
    for (const QString &name : namesToPaste())
        out << name << '\n';
    out.flush();
    // On a full disk: the whiteboard software would fetch what half a name says.
    if (out.status() != QTextStream::Ok || file.error() != QFileDevice::NoError)
        QFile::remove(path);
}

// After a failed photo its empty name.
QStringList CVistrelDlg::namesToPaste() const
{
    QStringList names;
    if (m_displayMode == PhotoMode)
        names.append(m_currentPhotoName);
    if (m_displayMode == ListMode || m_displayMode == PhotSeqMode)
        for (const PictureWidget *tile : m_tiles)
            if (tile->isVisible())
                names.append(tile->fileName());
    return names;
}

void CVistrelDlg::pasteToClipboard()
{
    const QString area = WebcamUtil::getTemporaryPath();
    QStringList paths;
    for (const QString &name : namesToPaste())
        if (!name.isEmpty() && !area.isEmpty())
            paths.append(area + QLatin1Char('/') + name);
    m_pastedPhotos.offer(paths);
}

void CVistrelDlg::PutTVSMovie()
{
    // The whiteboard software takes no movies.
}

void CVistrelDlg::isPutCompeate()
{
    // A hand-over is never acknowledged.
}
