#ifndef PICTURELOADER_H
#define PICTURELOADER_H

#include "PictureVersion.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QMutex>
#include <QObject>
#include <QPointer>
#include <QQueue>
#include <QSize>
#include <QThreadPool>
#include <QVector>

#include <functional>

/**
 * Reads captured pictures in the size they are shown in, ahead of being needed, so that the window
 * stays alive while fifty photos are opened and so that all processors help.
 *
 * There is one loader for the program. It is called from the GUI thread and delivers there; only
 * the decoding itself runs on workers, two steps ahead of the deliveries and no more. Deliveries
 * come in any order. What has been read is kept, up to 32 MB, until its file changes.
 *
 * A picture is scaled like a pixmap, quickly and with its shape kept. One that cannot be read is
 * delivered as a null image.
 */
class PictureLoader : public QObject {
    Q_OBJECT

public:
    using Delivery = std::function<void(const QImage &)>;

    static PictureLoader &shared();

    explicit PictureLoader(QObject *parent = nullptr);
    /// Waits for the pictures that are being decoded, at most one for each processor.
    ~PictureLoader() override;

    /// The picture called @p name scaled into @p fit, read here and now if it is not known.
    QImage now(const QString &name, QSize fit);
    /// The same, handed to @p deliver: at once if it is known, else when a worker has read it. No
    /// delivery comes once @p receiver is gone.
    void later(const QString &name, QSize fit, QObject *receiver, Delivery deliver);
    /// The sizes that pictures will most likely be asked for in, small ones: prepare() makes them.
    void setUsualSizes(const QVector<QSize> &sizes) { m_usualSizes = sizes; }
    /// Makes the picture known in the usual sizes if it is the one that is remembered whole: a
    /// photo just taken then stands in the strip at once. Reads nothing.
    void prepare(const QString &name);
    /// The same in the size @p fit alone, which may be a large one.
    void prepare(const QString &name, QSize fit);
    /// Drops all that @p receiver still waits for.
    void forget(const QObject *receiver);

Q_SIGNALS:
    void resultReady(); ///< leaves a worker; for the loader itself

private:
    struct Key {
        PictureVersion version;
        QSize fit;
    };
    friend bool operator==(const Key &left, const Key &right);
    friend uint qHash(const Key &key, uint seed);
    struct Request {
        Key key;
        QPointer<QObject> receiver;
        Delivery deliver;
    };

    struct Result {
        int number = 0;
        Key key;
        QImage picture;
        bool isFinal = false; ///< the file was left alone while it was read
    };

    static QImage scaled(const QImage &whole, QSize fit);
    void startWaiting();
    void work(int number, const Key &key);
    void keep(const Key &key, const QImage &picture);
    void takeResults();

    QCache<Key, QImage> m_known; ///< costs in KB
    QVector<QSize> m_usualSizes; ///< px
    QQueue<Request> m_waiting;
    QHash<int, Request> m_running; ///< by number; a request may be gone while its worker runs on
    int m_lastNumber = 0;
    int m_workers = 0; ///< busy, or done and not yet delivered

    QMutex m_mutex; ///< protects m_results
    QVector<Result> m_results; ///< from the workers
    QThreadPool m_pool; ///< last, so that it is gone first
};

#endif
