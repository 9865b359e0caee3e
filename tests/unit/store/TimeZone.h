#ifndef TIMEZONE_H
#define TIMEZONE_H

#include <QByteArray>
#include <QString>

#include <ctime>

/** Another time zone, for as long as it lives. */
class TimeZone {
public:
    /// As the system spells it: "EAST-14" is 14 hours before Greenwich.
    explicit TimeZone(const QByteArray &zone)
        : m_old(qgetenv("TZ"))
    {
        set(zone);
    }
    ~TimeZone() { set(m_old); }
    Q_DISABLE_COPY(TimeZone)

    /// The wall clock to the second, as the C library tells it: yyyyMMddhhmmss.
    static QString localStamp()
    {
        const time_t now = std::time(nullptr);
        tm local = {};
        localtime_r(&now, &local);
        char stamp[32] = {};
        std::strftime(stamp, sizeof stamp, "%Y%m%d%H%M%S", &local);
        return QString::fromLatin1(stamp);
    }

private:
    static void set(const QByteArray &zone)
    {
        if (zone.isEmpty())
            qunsetenv("TZ");
        else
            qputenv("TZ", zone);
        tzset();
    }

    QByteArray m_old;
};

#endif
