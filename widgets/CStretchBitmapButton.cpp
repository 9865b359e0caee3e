#include "CStretchBitmapButton.h"

#include "ButtonGeometry.h"
#include "Spoken.h"
#include "TextSize.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QImageReader>
#include <QKeyEvent>
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

// Of the caption's column, which has three of the button's five parts; a text up to the very rim of
// the bitmap looks cut off.
constexpr int pictureParts = 2;
constexpr int captionParts = 3;
constexpr int captionRim = 6; // px

constexpr int drawAgainTime = 300; // ms; the first picture of the change is on the screen by then

// Of the screen that the button's window stands on, or will stand on.
int availableScreenWidth(const QWidget *button)
{
    const QWidget *window = button->window();
    const QScreen *screen =
        window->isVisible() ? window->screen() : QGuiApplication::primaryScreen();
    return screen->availableGeometry().width();
}

// Shrinks @p bitmap for a button of @p size on a screen of @p ratio device pixels to a pixel.
QPixmap scaledTo(const QPixmap &bitmap, QSize size, qreal ratio)
{
    if (bitmap.isNull())
        return bitmap;
    const QSize onScreen = (QSizeF(size) * ratio).toSize().boundedTo(bitmap.size());
    return bitmap.scaled(onScreen, Qt::KeepAspectRatio, Qt::FastTransformation);
}

bool isEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

QKeyEvent asSpace(const QKeyEvent &event)
{
    return {event.type(), Qt::Key_Space, event.modifiers(), QStringLiteral(" "),
            event.isAutoRepeat()};
}

} // namespace

CStretchBitmapButton::CStretchBitmapButton(const QString &name, QWidget *parent)
    : QPushButton(parent)
    , m_baseName(name)
{
    Spoken::asWhole(this, QAccessible::Button);
    setText(name);
    setObjectName(name);
    setAccessibleName(name);
    setCheckable(false);
    createCaption();
    setIconFromObjectNameBitmap();
    m_drawAgain.setSingleShot(true);
    m_drawAgain.setInterval(drawAgainTime);
    connect(&m_drawAgain, &QTimer::timeout, this, [this] { update(); });
    hide();
}

void CStretchBitmapButton::createCaption()
{
    m_caption = new QLabel(this);
    m_caption->setObjectName(QStringLiteral("caption"));
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
    grid->setColumnStretch(0, pictureParts);
    grid->setColumnStretch(1, captionParts);
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
    fitCaption();
}

void CStretchBitmapButton::resizeEvent(QResizeEvent *event)
{
    QPushButton::resizeEvent(event);
    fitCaption();
}

// What is drawn while a compositor fetches what was drawn before can stay off the screen (mutter on
// a busy computer, in one of 15 photos): the button would look dead though it can be pressed.
bool CStretchBitmapButton::event(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::Show)
        m_drawAgain.start();
    return QPushButton::event(event);
}

// As large as the desktop's texts are, or, since the button does not grow with them, as large as
// there is room for, but no smaller than designed.
void CStretchBitmapButton::fitCaption()
{
    static constexpr double step = 0.05;
    const double most = TextSize::factor();
    const int points = ButtonGeometry::captionPointSize(availableScreenWidth(this));
    QFont font(QStringLiteral("Arial"), points, QFont::Black, false);
    // The toolkit enlarges what is given in points.
    const auto enlarge = [&](double times) {
        font.setPointSizeF(qMax(1.0, points * times / most));
    };
    double times = most;
    for (enlarge(times); times > 1 && !captionFits(font); enlarge(times))
        times = qMax(1.0, times - step);
    m_caption->setFont(font);
}

bool CStretchBitmapButton::captionFits(const QFont &font) const
{
    const QRect column(0, 0, width() * captionParts / (pictureParts + captionParts), height());
    const QRect needed = QFontMetrics(font, m_caption)
                             .boundingRect(column, int(m_caption->alignment()) | Qt::TextWordWrap,
                                           m_caption->text());
    return needed.width() <= column.width() - captionRim && needed.height() <= column.height();
}

QString CStretchBitmapButton::bitmapPath(State state) const
{
    static constexpr std::array<const char *, StateCount> endings = {"_up", "_dw", "_ds"};
    return QStringLiteral(":res/") + m_baseName + QLatin1String(endings[state])
        + QLatin1String(".bmp");
}

void CStretchBitmapButton::setIconFromObjectNameBitmap()
{
    m_bitmaps = {};
    const int screenWidth = availableScreenWidth(this);
    const QSize bitmap = QImageReader(bitmapPath(Up)).size();
    const QSize size =
        ButtonGeometry::fittedBitmapSize(bitmap.isValid() ? bitmap : QSize(0, 0), screenWidth);
    setBaseSize(size);
    resize(size);
    fitCaption();
}

const QPixmap &CStretchBitmapButton::bitmapOf(State state)
{
    std::optional<QPixmap> &bitmap = m_bitmaps[state];
    if (!bitmap)
        bitmap = scaledTo(QPixmap(bitmapPath(state)), baseSize(), devicePixelRatioF());
    return *bitmap;
}

// Held down, neither key presses again: a series of photos would be taken by who is slow to let go.
void CStretchBitmapButton::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(event->key())) {
        QKeyEvent space = asSpace(*event);
        QPushButton::keyPressEvent(&space);
    } else if (!isArrow(event->key())) {
        QPushButton::keyPressEvent(event);
    } else if (!goToNeighbour(event->key())) {
        event->ignore();
    }
}

void CStretchBitmapButton::keyReleaseEvent(QKeyEvent *event)
{
    if (isEnter(event->key())) {
        QKeyEvent space = asSpace(*event);
        QPushButton::keyReleaseEvent(&space);
    } else {
        QPushButton::keyReleaseEvent(event);
    }
}

// As they stand on the screen, whatever way the language reads: the row is never mirrored.
bool CStretchBitmapButton::goToNeighbour(int key)
{
    const auto placeOf = [this](const QWidget *button) {
        return QRect(button->mapTo(window(), QPoint()), button->size());
    };
    QVector<QRect> places;
    QVector<CStretchBitmapButton *> others;
    for (auto *each : window()->findChildren<CStretchBitmapButton *>()) {
        if (each != this && each->isVisible() && each->isEnabled()) {
            others.append(each);
            places.append(placeOf(each));
        }
    }
    const int nearest = ButtonGeometry::nearest(placeOf(this), places, Qt::Key(key));
    if (nearest < 0)
        return false;
    window()->setAttribute(Qt::WA_KeyboardFocusChange); // the mark is to be seen
    others[nearest]->setFocus(Qt::TabFocusReason);
    return true;
}

void CStretchBitmapButton::paintEvent(QPaintEvent * /*event*/)
{
    if (!isVisible())
        return;
    const State enabledState = isDown() ? Down : Up;
    const QPixmap &bitmap = bitmapOf(isEnabled() ? enabledState : Disabled);
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
