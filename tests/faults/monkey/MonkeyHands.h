#ifndef MONKEYHANDS_H
#define MONKEYHANDS_H

#include "MonkeyEvents.h"

#include <QPoint>
#include <QVector>

class QAbstractButton;
class QTouchDevice;
class QWidget;

/// Mouse, fingers and keyboard at what is in front: a menu, else a box, else the window.
class MonkeyHands {
public:
    MonkeyHands();

    /// False when the event is not one of the hands, or there is nothing in front.
    bool act(const MonkeyEvent &event, QWidget *window);
    /// Of the window in front those that are shown, whatever they are buttons of.
    static QVector<QAbstractButton *> buttonsOf(const QWidget &front, bool enabled);
    static QWidget *inFront(QWidget *window);
    static void click(QAbstractButton *button, quint32 place = 0);

private:
    static bool pressOne(const QWidget &front, const MonkeyEvent &event, bool enabled);
    bool tapOne(const QWidget &front, const MonkeyEvent &event) const;
    void touchTwice(QWidget *front, const MonkeyEvent &event) const;
    static void clickAnywhere(QWidget *front, const MonkeyEvent &event);
    static void drag(QWidget *front, const MonkeyEvent &event);
    static void wheel(QWidget *front, const MonkeyEvent &event);
    static void pressKey(QWidget *front, const MonkeyEvent &event);

    QTouchDevice *m_screen;
};

#endif
