#ifndef TARGETPAINTER_H
#define TARGETPAINTER_H

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QSize>

#include <functional>

class QWidget;

/**
 * Paints the newest picture into a widget that belongs to somebody else, from inside that widget's
 * own paint event: centred with its aspect kept, black around it and without it. Qt's backing store
 * makes that free of tearing and flicker.
 *
 * The widget may be hidden, resized, given another parent or destroyed at any time; its background
 * is left to Qt again when it is let go. GUI thread only.
 */
class TargetPainter : public QObject {
    Q_OBJECT

public:
    TargetPainter() = default;
    ~TargetPainter() override;

    void setTarget(QWidget *target);

    /// Where a paint event takes its picture from; asked once per event.
    void setSource(std::function<QImage()> source) { m_source = std::move(source); }

    /// Largest size in device pixels that a picture of @p aspect has in the target; empty while the
    /// target is hidden, gone or has no room.
    QSize roomFor(const QSize &aspect) const;

    void repaintSoon();

Q_SIGNALS:
    /// The target was shown, hidden or resized.
    void roomChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void paint();

    QPointer<QWidget> m_target;
    bool m_targetWasOpaque = false; ///< what the target's own attribute was
    std::function<QImage()> m_source;
};

#endif
