// The sound of a photo being taken: a file beside the program, which its users may replace or take
// away. Without it photos are taken silently.

#include "CVistrelDlg.h"

#include <QFile>
#include <QSound>

void CVistrelDlg::SetPluginPath(const QString &path)
{
    const QString sound = path + QStringLiteral("/photo.wav");
    if (QFile::exists(sound))
        m_shutterSound = new QSound(sound, this);
}

void CVistrelDlg::playShutterSound()
{
    if (m_shutterSound)
        m_shutterSound->play();
}
