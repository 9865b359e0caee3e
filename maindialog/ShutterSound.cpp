// The sound of a photo being taken: a file beside the program, which its users may replace or take
// away. Without it photos are taken silently.

#include "CVistrelDlg.h"

#include <QFile>
#include <QSound>
#include <QTimer>

// Reading a sound brings up the toolkit's sound and network parts, which must not compete with the
// first live picture; a second is a moment before anybody has found the button.
static constexpr int soundDelay = 1000; // ms

void CVistrelDlg::SetPluginPath(const QString &path)
{
    m_shutterSoundPath = path + QStringLiteral("/photo.wav");
    auto *timer = new QTimer(this);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, &CVistrelDlg::loadShutterSound);
    timer->start(soundDelay);
}

void CVistrelDlg::loadShutterSound()
{
    if (!m_shutterSound && QFile::exists(m_shutterSoundPath))
        m_shutterSound = new QSound(m_shutterSoundPath, this);
}

void CVistrelDlg::playShutterSound()
{
    loadShutterSound(); // a photo may be taken at once
    if (m_shutterSound)
        m_shutterSound->play();
}
