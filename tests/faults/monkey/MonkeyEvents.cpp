#include "MonkeyEvents.h"

#include <QList>
#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <numeric>

struct KindRow {
    const char *name;
    int weight; // how often, compared with the others
};

// In the order of MonkeyEvent::Kind.
static constexpr std::array<KindRow, MonkeyEvent::KindCount> kinds{{
    {"press", 400},
    {"press-dead", 30},
    {"tap", 90},
    {"two-fingers", 10},
    {"click", 70},
    {"double-click", 25},
    {"right-click", 10},
    {"drag", 30},
    {"wheel", 10},
    {"key", 150},
    {"held-key", 10},
    {"second", 60},
    {"wait", 15},
    {"camera-pulled", 12},
    {"camera-back", 25},
    {"microphone-pulled", 6},
    {"microphone-back", 12},
    {"disk-full", 5},
    {"disk-free", 15},
    {"writing-fails", 5},
    {"writing-succeeds", 15},
    {"writing-slow", 6},
    {"written", 20},
    {"encoder-breaks", 6},
    {"touched", 3},
    {"close-window", 3},
    {"log-out", 3},
}};

static MonkeyEvent::Kind kindAt(int weight)
{
    int kind = 0;
    while (weight >= kinds[std::size_t(kind)].weight)
        weight -= kinds[std::size_t(kind++)].weight;
    return MonkeyEvent::Kind(kind);
}

MonkeyEvents someEvents(QRandomGenerator &chance, int count)
{
    const int weights =
        std::accumulate(kinds.begin(), kinds.end(), 0,
                        [](int sum, const KindRow &row) { return sum + row.weight; });
    MonkeyEvents events;
    for (int i = 0; i < count; ++i) {
        const MonkeyEvent::Kind kind = kindAt(chance.bounded(weights));
        const quint32 first = chance.generate();
        events.append({kind, first, chance.generate()});
    }
    return events;
}

QByteArray toText(const MonkeyEvents &events)
{
    QByteArray text;
    for (const MonkeyEvent &event : events)
        text += QByteArray(kinds[event.kind].name) + ' ' + QByteArray::number(event.first) + ' '
            + QByteArray::number(event.second) + '\n';
    return text;
}

MonkeyEvents fromText(const QByteArray &text)
{
    MonkeyEvents events;
    for (const QByteArray &line : text.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        const auto *row = std::find_if(kinds.begin(), kinds.end(), [&](const KindRow &each) {
            return words.first() == each.name;
        });
        if (words.size() != 3 || row == kinds.end())
            break;
        events.append(
            {MonkeyEvent::Kind(row - kinds.begin()), words[1].toUInt(), words[2].toUInt()});
    }
    return events;
}
