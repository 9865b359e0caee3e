#ifndef SETTING_H
#define SETTING_H

#include "ui_Setting.h"

#include <QDialog>
#include <QString>
#include <QStringList>

/**
 * The settings box, and the one owner of the settings file ".halcyra_orvantacc.ini" in the home
 * folder. The window never reads the file: it asks the box's controls through the getters.
 *
 * Built once and shown again and again: every showing reads the file into the controls, so what was
 * changed in a cancelled box is forgotten. Whoever ran exec() and found it accepted calls
 * SaveFile(), which writes the controls to the file. Nothing here reports an error: a missing file
 * or a value out of its range reads as the default, and a failed write goes unnoticed.
 *
 * GUI thread only.
 */
class Setting : public QDialog {
    Q_OBJECT

public:
    explicit Setting(QWidget *parent);

    /// Reads the file into the members and the save-folder controls; setParam() does the rest.
    void readFile();
    /// Writes the controls to the members and to the file.
    void SaveFile();
    /// Puts the members into the controls.
    void setParam();

    void setDefaultValue();
    void setCmbValue();
    void setCaptions();

    bool getAutoShooting() const;
    /// Seconds; 0 when the box holds no number.
    int getAutoShootingTime() const;
    /// Photos in a series; -1 when the box is empty.
    int getContinuousShooting() const;
    bool getPhotoPreview() const;
    /// The folder shown: the home folder when the default location is chosen.
    QString getSaveDirectory() const;
    /// Width, "x", height in px, as in "640x480".
    QString getResolution() const;

    /// Replaces the resolutions offered; repeated ones are offered once, an empty list is ignored.
    void setResolutionList(const QStringList &list);
    void setCmbResoEnable(bool enabled);
    /// Fixes the state of the browse button: from here on the choice of location leaves it alone.
    void setBtnSaveEnable(bool enabled);

public Q_SLOTS:
    void setSaveDirectory();
    void onCustom();
    void onDefault();
    void AutoCheck();
    void OnOk();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void connectControls();
    void warn(const QString &text);

    // As in the file; the defaults hold until it has been read.
    int m_continuousCount = 4;
    int m_autoShooting = 1;
    int m_autoShootingTime = 5; ///< s
    int m_photoPreview = 1;
    QString m_resolution;
    QString m_saveDirectory; ///< empty: the default location

    QStringList m_seconds;
    QStringList m_counts;
    QStringList m_resolutions;
    QString m_defaultDirectory;
    Ui_Setting m_form;
    bool m_browseEnabled = true; ///< the choice of location may enable the browse button
};

#endif
