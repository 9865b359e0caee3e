#ifndef CSTRETCHBITMAPBUTTON_H
#define CSTRETCHBITMAPBUTTON_H

#include <QPixmap>
#include <QPushButton>
#include <QTimer>

#include <array>
#include <optional>

class QLabel;

/**
 * A large push button that is all bitmap: one picture each for up, pressed and disabled, stretched
 * over the whole button, with the caption laid over its right three fifths.
 *
 * The name given at construction is the stem of the three bitmaps in the program's resources. The
 * button takes the size of its "up" bitmap, at most a sixth of the screen's width; a setGeometry()
 * from outside is obeyed whatever the caption needs. A missing bitmap is not reported: the button
 * is then 0 by 0, or draws nothing in that state. Buttons are born hidden, and read a bitmap when
 * it is first painted: a start would have to wait for those of all screens.
 */
class CStretchBitmapButton : public QPushButton {
    Q_OBJECT

public:
    CStretchBitmapButton(const QString &name, QWidget *parent);

    /// Line breaks and blanks are shown as they are; assistive tools are told the text without.
    /// Where texts are large it is as large as the button has room for.
    void setCaptionText(const QString &text);
    /// Makes bitmaps, size and caption fit the screen, as at first: for a screen that has changed.
    void setIconFromObjectNameBitmap();

protected:
    /// Enter presses like Space, and the arrows go to the nearest button that way.
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    /// One that appears, can be pressed from now on, or no longer, is drawn twice.
    bool event(QEvent *event) override;

private:
    enum State { Up, Down, Disabled, StateCount };

    QString bitmapPath(State state) const;
    const QPixmap &bitmapOf(State state);
    void createCaption();
    void fitCaption();
    bool captionFits(const QFont &font) const;
    bool goToNeighbour(int key);
    void paintFocusMark(QPainter &painter) const;

    QLabel *m_caption = nullptr;
    QString m_baseName;
    std::array<std::optional<QPixmap>, StateCount> m_bitmaps; ///< of those painted so far
    QTimer m_drawAgain;
};

#endif
