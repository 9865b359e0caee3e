#include "CStretchBitmapButton.h"

#include "ButtonGeometry.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>

namespace {

constexpr QColor captionColor(255, 255, 255);
constexpr QColor disabledCaptionColor(128, 128, 128);

// px; wide enough to be seen from where one sits at the keyboard, and clear of the button's edge.
constexpr qreal focusMarkInset = 4;
constexpr qreal focusMarkRadius = 6;
constexpr qreal focusMarkRim = 6;
constexpr qreal focusMarkLine = 3;

int availableScreenWidth()
{
    return QGuiApplication::primaryScreen()->availableGeometry().width();
}

// Shrinks @p bitmap for a button of @p size on a screen of @p ratio device pixels to a pixel.
QPixmap scaledTo(const QPixmap &bitmap, QSize size, qreal ratio)
{
    if (bitmap.isNull())
        return bitmap;
    const QSize onScreen = (QSizeF(size) * ratio).toSize().boundedTo(bitmap.size());
    return bitmap.scaled(onScreen, Qt::KeepAspectRatio, Qt::FastTransformation);
}

} // namespace

CStretchBitmapButton::CStretchBitmapButton(const QString &name, QWidget *parent)
    : QPushButton(name, parent)
    , m_baseName(name)
{
    setObjectName(name);
    setAccessibleName(name);
    setCheckable(false);
    setIconFromObjectNameBitmap();
    createCaption();
    hide();
}

void CStretchBitmapButton::createCaption()
{
    m_caption = new QLabel(this);
    m_caption->setObjectName(QStringLiteral("caption"));
    m_caption->setFont(QFont(QStringLiteral("Arial"),
                             ButtonGeometry::captionPointSize(availableScreenWidth()), QFont::Black,
                             false));
    m_caption->setWordWrap(true);
    m_caption->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QPalette colors = m_caption->palette();
    colors.setColor(QPalette::WindowText, captionColor);
    colors.setColor(QPalette::Disabled, QPalette::WindowText, disabledCaptionColor);
    m_caption->setPalette(colors);
    // A label on a push button would otherwise be drawn in the button's own text colour.
    m_caption->setForegroundRole(QPalette::WindowText);

    // The bitmap alone decides how large the button is: a long caption neither widens its column
    // nor holds the button open. Presses go through the labels to the button.
    auto *iconSpace = new QLabel(this);
    for (QLabel *label : {iconSpace, m_caption}) {
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    // Right-to-left languages mirror the caption's text, never the picture and its column.
    const Qt::LayoutDirection textDirection = m_caption->layoutDirection();
    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetNoConstraint);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(iconSpace, 0, 0);
    grid->addWidget(m_caption, 0, 1);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    setLayoutDirection(Qt::LeftToRight);
    m_caption->setLayoutDirection(textDirection);
}

void CStretchBitmapButton::setCaptionText(const QString &text)
{
    // Two blanks keep a right-to-left caption off the button's right edge.
    const bool mirrored = m_caption->layoutDirection() == Qt::RightToLeft;
    m_caption->setText(mirrored ? QStringLiteral("  ") + text : text);
    const QString spoken = text.simplified();
    setAccessibleName(spoken.isEmpty() ? m_baseName : spoken);
}

void CStretchBitmapButton::setIconFromObjectNameBitmap()
{
    const QString stem = QStringLiteral(":res/") + m_baseName;
    m_upBitmap = QPixmap(stem + QStringLiteral("_up.bmp"));
    m_downBitmap = QPixmap(stem + QStringLiteral("_dw.bmp"));
    m_disabledBitmap = QPixmap(stem + QStringLiteral("_ds.bmp"));

    const QSize size = ButtonGeometry::fittedBitmapSize(m_upBitmap.size(), availableScreenWidth());
    m_upBitmap = scaledTo(m_upBitmap, size, devicePixelRatioF());
    m_downBitmap = scaledTo(m_downBitmap, size, devicePixelRatioF());
    m_disabledBitmap = scaledTo(m_disabledBitmap, size, devicePixelRatioF());
    setBaseSize(size);
    resize(size);
}

void CStretchBitmapButton::paintEvent(QPaintEvent * /*event*/)
{
    if (!isVisible())
        return;
    const QPixmap &enabledBitmap = isDown() ? m_downBitmap : m_upBitmap;
    const QPixmap &bitmap = isEnabled() ? enabledBitmap : m_disabledBitmap;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRectF(0, 0, width(), height()), bitmap, QRectF(bitmap.rect()));
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange))
        paintFocusMark(painter);
}

// Bright on a dark rim, so that it stands out from any bitmap. Only drawn for those who came here
// by the keyboard; a finger or the mouse needs no mark.
void CStretchBitmapButton::paintFocusMark(QPainter &painter) const
{
    const QRectF frame =
        QRectF(rect()).adjusted(focusMarkInset, focusMarkInset, -focusMarkInset, -focusMarkInset);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, focusMarkRim));
    painter.drawRoundedRect(frame, focusMarkRadius, focusMarkRadius);
    painter.setPen(QPen(QColor(255, 214, 0), focusMarkLine));
    painter.drawRoundedRect(frame, focusMarkRadius, focusMarkRadius);
}
