#ifndef TARGETPAINTER_H
#define TARGETPAINTER_H

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QRegion>
#include <QSize>

#include <functional>

class QPainter;
class QWidget;

/**
 * Paints the newest picture into a widget that belongs to somebody else, from inside that widget's
 * own paint event: centred with its aspect kept, black around it and without it. Qt's backing store
 * makes that free of tearing and flicker. Where the window's own picture is an image in memory, as
 * it mostly is, the source fills the target's part of that: on the largest screens, a copy from an
 * image beside it would cost as much as all that is done to a frame before.
 *
 * The widget may be hidden, resized, given another parent or destroyed at any time; its background
 * is left to Qt again when it is let go. GUI thread only.
 */
class TargetPainter : public QObject {
    Q_OBJECT

public:
    /// Where a paint event takes its picture from.
    struct Source {
        /// Of the picture that is to be shown, in pixels of its own; empty for none.
        std::function<QSize()> size;
        /// Fills an image of RGB32 or, opaque, of ARGB32_Premultiplied; false, with the image as
        /// it was, when there is nothing yet.
        std::function<bool(QImage *)> paintInto;
        /// The same in an image of this size; null when there is nothing yet.
        std::function<QImage(const QSize &)> picture;
    };

    TargetPainter() = default;
    ~TargetPainter() override;

    void setTarget(QWidget *target);

    /// All three are asked from paint events, and the last two only after the first.
    void setSource(Source source) { m_source = std::move(source); }

    /// Largest size in device pixels that a picture of @p aspect has in the target; empty while the
    /// target is hidden, gone or has no room.
    QSize roomFor(const QSize &aspect) const;

    /// False while the target is hidden, gone or has no room.
    bool hasRoom() const { return !roomFor({1, 1}).isEmpty(); }

    void repaintSoon();

Q_SIGNALS:
    /// The target was shown, hidden or resized.
    void roomChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void paint(const QRegion &wanted);
    bool paintDirectly(const QPainter &painter, const QRect &place, const QRegion &wanted) const;

    QPointer<QWidget> m_target;
    bool m_targetWasOpaque = false; ///< what the target's own attribute was
    Source m_source;
};

#endif
