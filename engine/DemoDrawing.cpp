#include "DemoDrawing.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

static constexpr double lifting = 0.22; // s from one stroke to the next
static constexpr double lastStroke = 17.6; // s; all strokes are drawn by then
static constexpr double stepLength = 5; // px
static constexpr double highest = 16; // px, of the pencil between two strokes
static constexpr double letterScale = 1.35;
static const QPointF restingPlace(555, 560); // px

namespace {

/// Joined-up writing, letter by letter, on a line.
class Writing {
public:
    explicit Writing(QPointF start)
        : m_path(start)
        , m_origin(start)
    {
    }

    void write(const char *word)
    {
        for (const char *letter = word; *letter; ++letter)
            add(*letter);
    }

    const QPainterPath &path() const { return m_path; }

private:
    void add(char letter)
    {
        switch (letter) {
        case 'l':
            curve({16, -12}, {22, -48}, {11, -48});
            curve({2, -48}, {2, 0}, {17, 0});
            return advance(17);
        case 'a':
            curve({6, 0}, {10, -22}, {22, -19});
            curve({4, -26}, {0, 0}, {12, 0});
            curve({20, 0}, {23, -10}, {23, -20});
            curve({22, -8}, {22, 0}, {30, -1});
            return advance(30);
        case 'v':
            curve({4, -2}, {5, -20}, {9, -20});
            curve({13, -20}, {11, 0}, {16, 0});
            curve({23, 0}, {25, -14}, {23, -20});
            curve({25, -15}, {29, -16}, {31, -16});
            return advance(29);
        case 'm':
            curve({3, -4}, {4, -20}, {8, -18});
            curve({8, -8}, {8, -4}, {8, 0});
            for (int hump = 8; hump <= 20; hump += 12) {
                curve({hump + 2.0, -18}, {hump + 12.0, -28}, {hump + 12.0, -12});
                curve({hump + 12.0, -8}, {hump + 12.0, -4}, {hump + 12.0, 0});
            }
            return advance(33);
        case 'g':
            curve({6, 0}, {10, -22}, {22, -19});
            curve({4, -26}, {0, 0}, {12, 0});
            curve({20, 0}, {23, -10}, {23, -20});
            curve({23, 0}, {24, 24}, {14, 24});
            curve({4, 24}, {14, 4}, {31, -1});
            return advance(31);
        default:
            break;
        }
    }

    void curve(QPointF first, QPointF second, QPointF end)
    {
        m_path.cubicTo(m_origin + first * letterScale, m_origin + second * letterScale,
                       m_origin + end * letterScale);
    }

    void advance(double width) { m_origin.rx() += width * letterScale; }

    QPainterPath m_path;
    QPointF m_origin; ///< of the next letter, on the line
};

} // namespace

static QPainterPath curved(QPointF start, QPointF first, QPointF second, QPointF end)
{
    QPainterPath path(start);
    path.cubicTo(first, second, end);
    return path;
}

static QPainterPath word(const char *letters, QPointF start)
{
    Writing writing(start);
    writing.write(letters);
    return writing.path();
}

static QPainterPath chamber()
{
    QPainterPath path(QPointF(250, 545));
    path.cubicTo(140, 550, 120, 640, 285, 642);
    path.cubicTo(450, 640, 430, 550, 322, 545);
    return path;
}

static QPainterPath cloud()
{
    QPainterPath path(QPointF(262, 188));
    path.cubicTo(205, 196, 190, 138, 238, 134);
    path.cubicTo(230, 84, 300, 72, 316, 108);
    path.cubicTo(352, 84, 398, 128, 362, 156);
    path.cubicTo(366, 190, 326, 198, 306, 184);
    return path;
}

static QPainterPath hatching()
{
    QPainterPath path(QPointF(186, 600));
    for (int i = 0; i < 9; ++i) {
        path.lineTo(206 + i * 21, 568);
        path.lineTo(196 + i * 21, 622);
    }
    return path;
}

static QVector<QPainterPath> strokes()
{
    return {curved({42, 422}, {190, 426}, {380, 414}, {508, 420}),
            curved({72, 420}, {172, 396}, {228, 296}, {262, 200}),
            curved({262, 200}, {272, 218}, {298, 218}, {308, 200}),
            curved({308, 200}, {344, 296}, {400, 396}, {488, 418}),
            curved({274, 213}, {280, 330}, {276, 450}, {250, 545}),
            curved({297, 213}, {291, 330}, {296, 450}, {322, 545}),
            chamber(),
            cloud(),
            curved({126, 420}, {204, 384}, {240, 306}, {266, 242}),
            curved({304, 242}, {332, 306}, {372, 384}, {440, 418}),
            hatching(),
            curved({352, 312}, {372, 296}, {386, 284}, {398, 270}),
            word("lava", {396, 258}),
            curved({188, 618}, {170, 634}, {152, 646}, {138, 652}),
            word("magma", {52, 700})};
}

DemoDrawing::DemoDrawing()
{
    const QVector<QPainterPath> all = strokes();
    double length = 0;
    for (const QPainterPath &stroke : all)
        length += stroke.length();
    const double speed = length / (lastStroke - lifting * (all.size() + 1)); // px/s
    m_steps.append({0, restingPlace, false});
    for (const QPainterPath &stroke : all) {
        moveTo(stroke.pointAtPercent(0), lifting);
        addStroke(stroke, speed);
    }
    moveTo(restingPlace, 3 * lifting);
    m_steps.append({cycle, restingPlace, false});
}

// Steps of its own in between, so that the pencil rises and comes down.
void DemoDrawing::moveTo(QPointF tip, double seconds)
{
    m_steps.append({m_steps.last().second + seconds, tip, false});
}

void DemoDrawing::addStroke(const QPainterPath &stroke, double speed)
{
    const double length = stroke.length();
    const int count = qMax(1, int(length / stepLength));
    const double begin = m_steps.last().second;
    for (int i = 1; i <= count; ++i)
        m_steps.append({begin + length / speed * i / count,
                        stroke.pointAtPercent(stroke.percentAtLength(length * i / count)), true});
}

// 0 at the beginning of a step, 1 at its end.
static double shareOf(double second, double begin, double end)
{
    return end > begin ? qBound(0.0, (second - begin) / (end - begin), 1.0) : 1;
}

DemoDrawing::Pencil DemoDrawing::pencilAt(double second) const
{
    const auto next = std::find_if(m_steps.begin() + 1, m_steps.end() - 1,
                                   [second](const Step &step) { return step.second >= second; });
    const Step &last = *(next - 1);
    const double share = shareOf(second, last.second, next->second);
    const bool moves = !next->draws && next->tip != last.tip;
    const bool rests = !next->draws && !moves;
    return {last.tip + (next->tip - last.tip) * share,
            rests       ? 0
                : moves ? highest * std::sin(share * M_PI)
                        : 0};
}

void DemoDrawing::draw(QPainter &painter, double from, double to) const
{
    painter.setPen(QPen(QColor(64, 64, 72), 3.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (int i = 1; i < m_steps.size(); ++i) {
        const Step &last = m_steps.at(i - 1);
        const Step &step = m_steps.at(i);
        if (!step.draws || step.second <= from || last.second >= to)
            continue;
        const QPointF way = step.tip - last.tip;
        painter.drawLine(last.tip + way * shareOf(from, last.second, step.second),
                         last.tip + way * shareOf(to, last.second, step.second));
    }
}
