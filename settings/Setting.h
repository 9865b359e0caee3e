#ifndef SETTING_H
#define SETTING_H

#include "ui_Setting.h"

#include <QDialog>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * The modal "Settings" dialog and the owner of the settings file, ".halcyra_orvantacc.ini" in the
 * home folder.
 *
 * It is built once and used again. Building and every showing read the file into the controls, so
 * what was changed before a "Cancel" is forgotten. "OK" only checks the save folder and accepts;
 * whoever ran the dialog then calls SaveFile(), which writes the controls to the file. The rest of
 * the program asks the getters, which answer from the controls, not from the file.
 *
 * A file that is missing, cannot be read or cannot be written is no error; a number outside its
 * range leaves the preference as it was.
 */
class Setting : public QDialog {
    Q_OBJECT

public:
    explicit Setting(QWidget *parent = nullptr);

    /// Reads the file into the preferences, and shows which kind of save folder is chosen.
    void readFile();
    /// Writes what the controls show to the file, all six preferences.
    void SaveFile();
    /// Shows the preferences in the controls; a value that is not offered shows as another one.
    void setParam();

    /// Makes up what the boxes offer; setCmbValue() then offers it.
    void setDefaultValue();
    void setCmbValue();
    /// Puts the texts that users see in place of the form's own.
    void setCaptions();

    bool getAutoShooting() const;
    /// Seconds of the self-timer; 0 if none are chosen.
    int getAutoShootingTime() const;
    /// Shots of one continuous capture; -1 if none are chosen.
    int getContinuousShooting() const;
    bool getPhotoPreview() const;
    /// The save folder as shown: the home folder if the default location is chosen.
    QString getSaveDirectory() const;
    /// Width, "x" and height in pixels.
    QString getResolution() const;

    /// Offers the resolutions of @p list, each once, and selects the chosen one, or else the entry
    /// at half the length of @p list as given, which leaves none selected if repetitions made the
    /// box that much shorter. An empty list changes nothing.
    void setResolutionList(const QStringList &list);
    void setCmbResoEnable(bool enable);
    /// Takes the "..." button out of the hands of the radio buttons and sets it once for all.
    void setBtnSaveEnable(bool enable);

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void setSaveDirectory();
    void onCustom();
    void onDefault();
    void AutoCheck();
    void OnOk();

private:
    QList<QWidget *> rows() const;
    void fitRowsToTexts();
    void fitRowsToScreen();
    void connectControls();

    // The preferences as last read from or written to the file.
    int m_continuousCount = 4;
    int m_autoShooting = 1; ///< 1 on, 0 off
    int m_autoShootingTime = 5; ///< s
    int m_photoPreview = 1; ///< 1 on, 0 off
    QString m_resolution;
    QString m_saveDirectory; ///< empty: the default location

    // What the boxes offer.
    QStringList m_autoShootingTimes;
    QStringList m_continuousCounts;
    QStringList m_resolutions;

    QVector<int> m_rowTops; ///< px; where there is room
    int m_roomyHeight = 0; ///< px; the dialog's there

    QString m_defaultSaveDirectory; ///< the home folder when the dialog was built
    Ui_Setting m_ui;
    bool m_browseEnabled = true; ///< the radio buttons may switch the "..." button
};

#endif
