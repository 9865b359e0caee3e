#include "CaptureWatch.h"

#include <QDir>
#include <QDirIterator>

#include <algorithm>
#include <utility>

CaptureWatch::CaptureWatch(QString area, QString saveBase)
    : m_area(std::move(area))
    , m_saveBase(std::move(saveBase))
    , m_known(inArea())
{
}

CaptureWatch::Files CaptureWatch::inArea() const
{
    Files files;
    const auto entries = QDir(m_area).entryInfoList({"photo*", "movie*"}, QDir::Files);
    for (const QFileInfo &each : entries)
        files.insert(each.fileName(), each.size());
    return files;
}

bool CaptureWatch::isSaved(const QString &name, qint64 size) const
{
    QDirIterator saved(m_saveBase + "/TavelinCamera", {name}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (saved.hasNext()) {
        saved.next();
        if (saved.fileInfo().size() == size)
            return true;
    }
    return false;
}

QString CaptureWatch::complaint()
{
    const Files now = inArea();
    QStringList gone;
    for (auto known = m_known.cbegin(); known != m_known.cend(); ++known) {
        const bool isThere = now.contains(known.key()) && now[known.key()] >= known.value();
        if (!isThere && !isSaved(known.key(), known.value()))
            gone.append(known.key());
    }
    const int thrownAway = std::exchange(m_retries, 0);
    const bool isDiscarded = std::exchange(m_discarded, false);
    m_known = now;
    if (isDiscarded)
        return {};
    // A retried photo is the last one that was taken.
    if (gone.size() <= thrownAway
        && std::all_of(gone.cbegin(), gone.cend(), [&](const QString &name) {
               const QStringList photos = Files(now).keys().filter("photo");
               return name.startsWith("photo") && (photos.isEmpty() || name > photos.last());
           }))
        return {};
    m_lost += gone.size();
    return "lost: " + gone.join(' ');
}

int CaptureWatch::countOf(const char *ending) const
{
    int count = 0;
    for (auto known = m_known.cbegin(); known != m_known.cend(); ++known)
        count += known.key().endsWith(ending) && !known.key().endsWith("tmp.png");
    return count;
}
