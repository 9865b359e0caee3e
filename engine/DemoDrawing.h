#ifndef DEMODRAWING_H
#define DEMODRAWING_H

#include <QPainterPath>
#include <QPointF>
#include <QVector>

class QPainter;

/**
 * What the pencil of the demonstration camera draws, over and over: a volcano, stroke by stroke.
 * All in pixels of the notebook's page and seconds since the page was empty.
 *
 * Never changes once it is made; any thread.
 */
class DemoDrawing {
public:
    static constexpr double cycle = 20; ///< s; then it begins anew
    static constexpr double fading = 19.3; ///< s; from then on it fades away

    struct Pencil {
        QPointF tip;
        double lift; ///< px above the paper; 0 while it draws
    };

    DemoDrawing();

    /// Where the pencil is at a second from 0 to cycle.
    Pencil pencilAt(double second) const;

    /// Draws what is drawn between two seconds.
    void draw(QPainter &painter, double from, double to) const;

private:
    /// A short straight piece of the pencil's way ends here.
    struct Step {
        double second;
        QPointF tip;
        bool draws; ///< on its way here
    };

    void addStroke(const QPainterPath &stroke, double speed);
    void moveTo(QPointF tip, double seconds);

    QVector<Step> m_steps; ///< by time
};

#endif
