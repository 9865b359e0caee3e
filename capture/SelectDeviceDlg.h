#ifndef SELECTDEVICEDLG_H
#define SELECTDEVICEDLG_H

#include <QDialog>
#include <QVector>

class QComboBox;
class QLabel;
class QPushButton;

/**
 * Asks which of several cameras to use. The maker's own document camera stands first in the box
 * and is chosen by a plain "OK"; the others follow in the order they were given.
 *
 * Fill it with setVideoDeviceList(), run it with exec() and, if that was accepted, ask
 * getVideoDevice(). Closing it in any other way than by "OK" rejects it.
 */
class SelectDeviceDlg : public QDialog {
    Q_OBJECT

public:
    explicit SelectDeviceDlg(QWidget *parent = nullptr);

    /// Fills the box. Meant to be called once: a second list is added below the first.
    void setVideoDeviceList(const QStringList &names);
    /// The chosen camera's position in the list that was given; -1 when that list was empty.
    int getVideoDevice();
    QString getVideoDeviceName(); ///< of the chosen one, as it was given; empty when there is none

    /// Always of the dialog's one width, so that who sizes it by this does not narrow it.
    QSize sizeHint() const override;

private:
    QComboBox *m_deviceBox;
    QPushButton *m_okButton;
    QLabel *m_promptLabel;
    QVector<int> m_indexMap; ///< for each entry of the box, its position in the given list
};

#endif
