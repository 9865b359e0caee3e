#ifndef SAVECONFIRMDLG_H
#define SAVECONFIRMDLG_H

#include <QDialog>

class QLabel;
class QPushButton;

/**
 * The question asked at exit while captured files still lie in the temporary area. It only asks;
 * saving and deleting are the caller's, by the result of exec(): 1 save, -1 discard, 0 do not exit
 * (Cancel, Escape, or the window closed in any other way).
 */
class SaveConfirmDlg : public QDialog {
    Q_OBJECT

public:
    explicit SaveConfirmDlg(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    /// Ends the dialog with "discard".
    void savecancel();

private:
    void setTitleBar();
    void createControls();
    void layOut();

    QLabel *m_message = nullptr;
    QPushButton *m_yes = nullptr;
    QPushButton *m_no = nullptr;
    QPushButton *m_cancel = nullptr;
    // Where the dialog would stand in the middle of the screen; it is shown over its parent
    // instead.
    int m_centredX = 0;
    int m_centredY = 0;
};

#endif
