#include "ScreenModel.h"

#include <QHash>

// px
static constexpr int cellWidth = 133;
static constexpr int cellHeight = 68;
static constexpr int rowTop = 600 - cellHeight;
static constexpr double rowMiddle = (800 - cellWidth) * 0.5; // the last column is of small buttons

static QString placed(const QString &name, double left, int top, int height = cellHeight)
{
    return QStringLiteral("%1 %2,%3 %4x%5")
        .arg(name)
        .arg(int(left))
        .arg(top)
        .arg(cellWidth)
        .arg(height);
}

// Each in a cell of its own, from that left edge on.
static QStringList row(double left, const QStringList &names)
{
    QStringList places;
    for (const QString &name : names) {
        places.append(placed(name, left, rowTop));
        left = int(left) + cellWidth;
    }
    return places;
}

static QStringList centredRow(const QStringList &names)
{
    const int half = names.size() * cellWidth / 2; // cut to whole px
    return row(rowMiddle - half, names);
}

static QString exitButton()
{
    return placed(QStringLiteral("Close"), 800 - cellWidth, 600 - cellHeight / 2, cellHeight / 2);
}

static QString settingsButton()
{
    return placed(QStringLiteral("Settings"), 800 - cellWidth, rowTop, cellHeight / 2);
}

static QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

QString ScreenModel::nameOf(Screen screen)
{
    return QStringList{
        "live", "recording", "preview", "photo", "series", "list", "tiles", "movie"}[screen];
}

QStringList ScreenModel::shown(Screen screen, const Circumstances &now)
{
    const QStringList capturing = {"Live", "Photo", "PhotoMulti", "Movie", "List"};
    switch (screen) {
    case Live:
        return sorted(centredRow(capturing) << settingsButton() << exitButton());
    case Recording:
        return sorted(centredRow({"Live", "Photo", "PhotoMulti", "MovieStop", "List"})
                      << settingsButton() << exitButton());
    case Preview:
        return sorted(centredRow(capturing)
                      << settingsButton() << exitButton()
                      << placed("Apply", 400 - cellWidth, 600 - 2 * cellHeight)
                      << placed("Retry", 400, 600 - 2 * cellHeight));
    case Series:
        return sorted(centredRow(capturing) << exitButton());
    case Photo:
    case Tiles:
        return sorted(centredRow({"Live", "PutPhoto", "List"}) << exitButton());
    case List:
        return sorted(centredRow({"Live", "Show", now.offersPhotos ? "SwitchPhoto" : "SwitchMovie"})
                      << exitButton());
    case Movie:
        break;
    }
    return sorted(
        row(rowMiddle - 2 * cellWidth, {"Live", now.plays ? "MoviePause" : "MoviePlay", "List"})
        << exitButton());
}

QStringList ScreenModel::usable(Screen screen, const Circumstances &now)
{
    if (now.isWriting)
        return {};
    switch (screen) {
    case Live:
        return now.captures
            ? sorted({"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"})
            : QStringList{"Close", "List"};
    case Recording:
        return {"MovieStop"};
    case Preview:
        return {"Apply", "Retry"};
    case Series:
        return now.captures ? QStringList{"Live", "PhotoMulti"} : QStringList{"List"};
    case Photo:
    case Tiles:
        return {"Close", "List", "Live", "PutPhoto"};
    case List: {
        QStringList names = {"Close", "Live", now.offersPhotos ? "SwitchPhoto" : "SwitchMovie"};
        if (now.hasSelection)
            names.append("Show");
        return sorted(names);
    }
    case Movie:
        break;
    }
    return sorted({"Close", "Live", "List", now.plays ? "MoviePause" : "MoviePlay"});
}

QList<ScreenModel::Screen> ScreenModel::after(const QString &button)
{
    static const QHash<QString, QList<Screen>> table{
        {"Live", {Live}},        {"Photo", {Preview, Photo}}, {"PhotoMulti", {Series, Tiles}},
        {"Movie", {Recording}},  {"MovieStop", {Movie}},      {"List", {List}},
        {"Apply", {Photo}},      {"Retry", {Live}},           {"MoviePlay", {Movie}},
        {"MoviePause", {Movie}}, {"Show", {Tiles, Movie}},    {"SwitchPhoto", {List}},
        {"SwitchMovie", {List}},
    };
    return table.value(button);
}
