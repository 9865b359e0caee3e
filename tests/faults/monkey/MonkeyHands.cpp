#include "MonkeyHands.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QTest>
#include <QWheelEvent>

#include <array>

static QPoint placeIn(const QRect &rect, quint32 number)
{
    return rect.topLeft()
        + QPoint(int(number % 65536) % qMax(1, rect.width()),
                 int(number / 65536) % qMax(1, rect.height()));
}

MonkeyHands::MonkeyHands()
    : m_screen(QTest::createTouchDevice())
{
}

QWidget *MonkeyHands::inFront(QWidget *window)
{
    if (QWidget *menu = QApplication::activePopupWidget())
        return menu;
    if (QWidget *box = QApplication::activeModalWidget())
        return box;
    return window;
}

QVector<QAbstractButton *> MonkeyHands::buttonsOf(const QWidget &front, bool enabled)
{
    QVector<QAbstractButton *> buttons;
    for (auto *each : front.findChildren<QAbstractButton *>())
        if (each->isVisible() && each->isEnabled() == enabled && each->window() == &front)
            buttons.append(each);
    return buttons;
}

// On the disk of whoever runs this, nothing is made, renamed or thrown away.
static bool isFileDialog(const QWidget &front)
{
    return qobject_cast<const QFileDialog *>(&front) != nullptr;
}

static void leaveFileDialog(QWidget *front, quint32 number)
{
    QTest::keyClick(front, number % 2 == 0 ? Qt::Key_Escape : Qt::Key_Return);
}

bool MonkeyHands::act(const MonkeyEvent &event, QWidget *window)
{
    QWidget *front = inFront(window);
    if (!front || !front->isVisible())
        return false;
    if (isFileDialog(*front))
        return leaveFileDialog(front, event.first), true;
    switch (event.kind) {
    case MonkeyEvent::Press:
        return pressOne(*front, event, true);
    case MonkeyEvent::PressDead:
        return pressOne(*front, event, false);
    case MonkeyEvent::Tap:
        return tapOne(*front, event);
    case MonkeyEvent::TwoFingers:
        touchTwice(front, event);
        return true;
    case MonkeyEvent::Click:
    case MonkeyEvent::DoubleClick:
    case MonkeyEvent::RightClick:
        clickAnywhere(front, event);
        return true;
    case MonkeyEvent::Drag:
        drag(front, event);
        return true;
    case MonkeyEvent::Wheel:
        wheel(front, event);
        return true;
    case MonkeyEvent::Key:
    case MonkeyEvent::HeldKey:
        pressKey(front, event);
        return true;
    default:
        return false;
    }
}

void MonkeyHands::click(QAbstractButton *button, quint32 place)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, placeIn(button->rect(), place));
}

bool MonkeyHands::pressOne(const QWidget &front, const MonkeyEvent &event, bool enabled)
{
    const QVector<QAbstractButton *> buttons = buttonsOf(front, enabled);
    if (buttons.isEmpty())
        return false;
    click(buttons[int(event.first % quint32(buttons.size()))], event.second);
    return true;
}

bool MonkeyHands::tapOne(const QWidget &front, const MonkeyEvent &event) const
{
    const QVector<QAbstractButton *> buttons = buttonsOf(front, true);
    if (buttons.isEmpty())
        return false;
    QAbstractButton *button = buttons[int(event.first % quint32(buttons.size()))];
    const QPoint place = placeIn(button->rect(), event.second);
    // What the toolkit makes a click of, when it comes round to it.
    QTest::touchEvent(button->window(), m_screen, false).press(0, place, button).commit(false);
    QTest::touchEvent(button->window(), m_screen, false).release(0, place, button).commit(false);
    return true;
}

void MonkeyHands::touchTwice(QWidget *front, const MonkeyEvent &event) const
{
    const QPoint one = placeIn(front->rect(), event.first);
    const QPoint other = placeIn(front->rect(), event.second);
    QTest::touchEvent(front, m_screen, false)
        .press(0, one, front)
        .press(1, other, front)
        .commit(false);
    QTest::touchEvent(front, m_screen, false)
        .move(0, other, front)
        .move(1, one, front)
        .commit(false);
    QTest::touchEvent(front, m_screen, false)
        .release(0, other, front)
        .release(1, one, front)
        .commit(false);
}

static QWidget *childAt(QWidget *front, QPoint place)
{
    QWidget *child = front->childAt(place);
    return child ? child : front;
}

void MonkeyHands::clickAnywhere(QWidget *front, const MonkeyEvent &event)
{
    const QPoint place = placeIn(front->rect(), event.first);
    QWidget *child = childAt(front, place);
    const QPoint inChild = child->mapFrom(front, place);
    if (event.kind == MonkeyEvent::DoubleClick)
        QTest::mouseDClick(child, Qt::LeftButton, {}, inChild);
    else
        QTest::mouseClick(child,
                          event.kind == MonkeyEvent::RightClick ? Qt::RightButton : Qt::LeftButton,
                          {}, inChild);
}

void MonkeyHands::drag(QWidget *front, const MonkeyEvent &event)
{
    const QPoint from = placeIn(front->rect(), event.first);
    const QPoint to = placeIn(front->rect(), event.second);
    const QPointer<QWidget> child = childAt(front, from); // has the mouse until it is let go
    QTest::mousePress(child, Qt::LeftButton, {}, child->mapFrom(front, from));
    for (int step = 1; step <= 4 && child; ++step)
        QTest::mouseMove(child, child->mapFrom(front, from + (to - from) * step / 4));
    if (child)
        QTest::mouseRelease(child, Qt::LeftButton, {}, child->mapFrom(front, to));
}

void MonkeyHands::wheel(QWidget *front, const MonkeyEvent &event)
{
    const QPoint place = placeIn(front->rect(), event.first);
    QWidget *child = childAt(front, place);
    const QPoint turned(0, event.second % 2 == 0 ? 120 : -120);
    QWheelEvent wheel(child->mapFrom(front, place), child->mapToGlobal({}), {}, turned,
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(child, &wheel);
}

void MonkeyHands::pressKey(QWidget *front, const MonkeyEvent &event)
{
    static constexpr std::array<Qt::Key, 22> keys{
        Qt::Key_Tab,   Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Space,  Qt::Key_Space,
        Qt::Key_Space, Qt::Key_Return, Qt::Key_Return,   Qt::Key_Enter,  Qt::Key_Escape,
        Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,       Qt::Key_Down,   Qt::Key_Home,
        Qt::Key_End,   Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_A,
        Qt::Key_F4,    Qt::Key_Print};
    const Qt::Key key = keys[event.first % keys.size()];
    static constexpr std::array<Qt::KeyboardModifier, 8> modifiers{
        Qt::NoModifier, Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,
        Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};
    const Qt::KeyboardModifiers with = modifiers[event.second % modifiers.size()];
    QWidget *focus = front->focusWidget();
    const QPointer<QWidget> target = focus && focus->isVisible() ? focus : front;
    if (event.kind == MonkeyEvent::Key) {
        QTest::keyClick(target, key, with);
        return;
    }
    QTest::keyPress(target, key, with);
    for (int repeat = 0; repeat < 5 && target; ++repeat) {
        QKeyEvent release(QEvent::KeyRelease, key, with, QString(), true);
        QApplication::sendEvent(target, &release);
        QKeyEvent press(QEvent::KeyPress, key, with, QString(), true);
        if (target)
            QApplication::sendEvent(target, &press);
    }
    if (target)
        QTest::keyRelease(target, key, with);
}
