// "Paste": a small text file dropped into a folder that the whiteboard software watches names the
// pictures to fetch. There is no answer and no other channel.

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
    const QString area = WebcamUtil::getTemporaryPath();
    const QString folder = area + QStringLiteral("/tmp");
    if (area.isEmpty() || !QDir().mkpath(folder))
        return;
    QFile file;
    if (!WebcamUtil::openNewFile(
            file, folder + QStringLiteral("/PUTTVS") + WebcamUtil::CurrentSecondString()))
        return;
    QTextStream out(&file);
    out.setCodec("UTF-8");
    // What the picture measures on the screen, in the screen's own pixels.
    const QSize shown = (QSizeF(m_videoRect.size()) * devicePixelRatioF()).toSize();
    out << "0\n" << shown.width() << 'x' << shown.height() << '\n';
    if (m_displayMode == PhotoMode) {
        out << m_currentPhotoName << '\n';
    } else if (m_displayMode == ListMode || m_displayMode == PhotSeqMode) {
        for (const PictureWidget *tile : qAsConst(m_tiles))
            if (tile->isVisible())
                out << tile->fileName() << '\n';
    }
}

void CVistrelDlg::PutTVSMovie()
{
    // The whiteboard software takes no movies.
}

void CVistrelDlg::isPutCompeate()
{
    // A hand-over is never acknowledged.
}
