#ifndef UVCDESCRIPTORS_H
#define UVCDESCRIPTORS_H

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QVector>

/// One of the camera's ways to send its picture.
struct UvcMode {
    bool isJpeg = false; ///< else YUYV
    QSize size;
    int rate = 30; ///< frames per second

    quint32 interval() const { return quint32(10000000 / rate); } ///< in units of 100 ns
    /// Bytes that no frame has more of.
    quint32 frameBytes() const { return quint32(size.width() * size.height() * 2); }
};

/// "MJPG:1920x1080:30"; a mode without a size when the text is none.
UvcMode uvcModeFromText(const QString &text);

/// What the camera is.
struct UvcIdentity {
    quint16 vendor = 0x1209; ///< of those who have none of their own
    quint16 product = 0x0001; ///< and for tests
    QString name = QStringLiteral("Desk Camera");
    QString serial = QStringLiteral("1");
    QVector<UvcMode> modes; ///< those of JPEG first, as format 1
};

/**
 * How a USB Video Class camera describes itself: two interfaces, one to control it and one to
 * stream, which has a single bulk endpoint. All as plain functions to the bytes of the standard.
 */
namespace UvcDescriptors {

static constexpr int controlInterface = 0;
static constexpr int streamInterface = 1;
static constexpr int streamEndpoint = 1; ///< inward
static constexpr int cameraTerminal = 1;
static constexpr int processingUnit = 2;
static constexpr int outputTerminal = 3;
static constexpr quint32 payloadBytes = 16384; ///< of one bulk transfer

/// The modes of format @p format, counted from one, which are its frames, counted from one.
QVector<UvcMode> framesOf(const QVector<UvcMode> &modes, int format);
int formatCount(const QVector<UvcMode> &modes);

QByteArray device(const UvcIdentity &identity);
QByteArray configuration(const UvcIdentity &identity);
/// Text @p index, 0 is the list of languages. Empty when there is none.
QByteArray text(const UvcIdentity &identity, int index);

} // namespace UvcDescriptors

#endif
