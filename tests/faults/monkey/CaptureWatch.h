#ifndef CAPTUREWATCH_H
#define CAPTUREWATCH_H

#include <QMap>
#include <QString>

/**
 * Looks after what was captured: nothing goes but what the user threw away. It is told what he did,
 * and looks at the disk then.
 */
class CaptureWatch {
public:
    CaptureWatch(QString area, QString saveBase);

    void retried() { ++m_retries; } ///< the newest photo may go
    void discarded() { m_discarded = true; } ///< all may go
    /// Since the last look; empty when all is right. Photos that are still being written count as
    /// soon as they are there.
    QString complaint();
    int photos() const { return countOf(".png"); } ///< at the last look, without those of movies
    int movies() const { return countOf(".mov"); }
    int lost() const { return m_lost; }

private:
    using Files = QMap<QString, qint64>; // bare name and size

    Files inArea() const;
    bool isSaved(const QString &name, qint64 size) const;
    int countOf(const char *ending) const;

    QString m_area;
    QString m_saveBase;
    Files m_known;
    int m_retries = 0;
    bool m_discarded = false;
    int m_lost = 0;
};

#endif
