#ifndef CSTRETCHBITMAPBUTTON_H
#define CSTRETCHBITMAPBUTTON_H

#include <QPixmap>
#include <QPushButton>

class QLabel;

/**
 * A large push button that is all bitmap: one picture each for up, pressed and disabled, stretched
 * over the whole button, with the caption laid over its right three fifths.
 *
 * The name given at construction is the stem of the three bitmaps in the program's resources. The
 * button takes the size of its "up" bitmap, at most a sixth of the screen's width; a setGeometry()
 * from outside is obeyed whatever the caption needs. A missing bitmap is not reported: the button
 * is then 0 by 0, or draws nothing in that state. Buttons are born hidden.
 */
class CStretchBitmapButton : public QPushButton {
    Q_OBJECT

public:
    CStretchBitmapButton(const QString &name, QWidget *parent);

    /// Line breaks and blanks are shown as they are; assistive tools are told the text without.
    void setCaptionText(const QString &text);
    void setIconFromObjectNameBitmap();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void createCaption();
    void paintFocusMark(QPainter &painter) const;

    QLabel *m_caption = nullptr;
    QString m_baseName;
    QPixmap m_upBitmap;
    QPixmap m_downBitmap;
    QPixmap m_disabledBitmap;
};

#endif
