#ifndef BOXGLANCE_H
#define BOXGLANCE_H

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>

/**
 * The user's eyes on modal boxes, for as long as the object lives: while one stands on the screen,
 * they look at it every few milliseconds and do with it what they were told to. A look that is
 * still going on, in the event loop of a box that it opened, is not begun a second time.
 */
class BoxGlance {
public:
    explicit BoxGlance(std::function<void(QWidget &box)> look)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [look = std::move(look)] {
            QWidget *box = QApplication::activeModalWidget();
            if (box && box->isVisible())
                look(*box);
        });
        m_timer.start(10); // ms
    }
    Q_DISABLE_COPY(BoxGlance)

private:
    QTimer m_timer;
};

#endif
