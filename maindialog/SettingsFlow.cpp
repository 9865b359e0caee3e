// The settings. "Settings" opens the box; an accepted one is written, taken over at once, and the
// screen is built anew.

#include "CVistrelDlg.h"

#include "LiveVideoWidget.h"
#include "Setting.h"

void CVistrelDlg::OnSettingDlg()
{
    stop_window();
    if (m_settings->exec() != QDialog::Accepted || isClosed())
        return;
    m_settings->SaveFile();
    GetSetting();
    copyDevicePresence();
    if (!m_videoPresent)
        m_error = true;
    TransitionMode(m_displayMode);
}

void CVistrelDlg::GetSetting()
{
    m_selfTimerSeconds = m_settings->getAutoShootingTime();
    m_selfTimer = m_settings->getAutoShooting();
    m_shotTarget = m_settings->getContinuousShooting();
    m_photoPreview = m_settings->getPhotoPreview();
    m_saveDirectory = m_settings->getSaveDirectory();
}
