#include "PictureWidget.h"

#include "CStretchBitmapButton.h"
#include "CapturedPicture.h"
#include "GreenCaption.h"
#include "PictureLoader.h"
#include "Spoken.h"

#include <QLabel>
#include <QPainter>

PictureWidget::PictureWidget(QWidget *parent, Qt::WindowFlags f)
    : QWidget(parent, f)
    , m_label(new QLabel(tr("Photo"), this))
{
    Spoken::as(this, QAccessible::Graphic);
    setPalette(GreenCaption::palette(palette()));
    setAutoFillBackground(true);
    setAccessibleName(tr("Photo"));
    setAccessibleDescription(tr("A captured photo"));

    m_label->setPalette(palette());
    m_label->setAutoFillBackground(true);
    m_label->setFont(GreenCaption::font());
    m_label->adjustSize();
}

PictureWidget::~PictureWidget()
{
    PictureLoader::shared().forget(this);
}

void PictureWidget::Loadbmp(const QString &name)
{
    PictureLoader::shared().forget(this);
    if (!name.isEmpty())
        m_fileName = name;
    if (CapturedPicture::isLarge(m_fileName)) {
        loadLater(m_fileName); // the window does not wait for it
        return;
    }
    m_pixmap = CapturedPicture::load(m_fileName);
    PictureLoader::shared().prepare(m_fileName);
    m_fittedSize = QSize();
    update();
}

void PictureWidget::loadLater(const QString &name)
{
    PictureLoader::shared().forget(this);
    if (!name.isEmpty())
        m_fileName = name;
    m_pixmap = QPixmap();
    const QSize fit = sizeOnScreen();
    PictureLoader::shared().later(m_fileName, fit, this, [this, fit](const QImage &picture) {
        m_pixmap = QPixmap::fromImage(picture);
        m_fittedSize = fit;
        update();
    });
}

void PictureWidget::showPicture(const QString &name, const QImage &picture)
{
    PictureLoader::shared().forget(this);
    m_fileName = name;
    m_pixmap = QPixmap::fromImage(picture);
    m_fittedSize = QSize();
    update();
}

void PictureWidget::reload()
{
    PictureLoader::shared().forget(this);
    if (CapturedPicture::isLarge(m_fileName)) {
        loadLater(m_fileName);
        return;
    }
    m_fittedSize = sizeOnScreen();
    m_pixmap = QPixmap::fromImage(PictureLoader::shared().now(m_fileName, m_fittedSize));
    update();
}

void PictureWidget::Release()
{
    PictureLoader::shared().forget(this);
    m_pixmap = QPixmap();
    m_label->hide();
    setAccessibleName(tr("Photo"));
    m_fileName.clear();
    update();
}

void PictureWidget::ZoomMode()
{
    setLabelText(QString());
    createButtons();
    placeInCorner(m_backButton);
    m_backButton->show();
    if (m_zoomButton->hasFocus())
        m_backButton->setFocus(Qt::OtherFocusReason);
    m_zoomButton->hide();
    connect(m_backButton, &CStretchBitmapButton::clicked, this, &PictureWidget::OnBack);
}

void PictureWidget::ListMode()
{
    m_label->show();
    createButtons();
    placeInCorner(m_zoomButton);
    m_backButton->hide();
    m_zoomButton->show();
    connect(m_zoomButton, &CStretchBitmapButton::clicked, this, &PictureWidget::OnZoom);
}

void PictureWidget::createButtons()
{
    if (!m_zoomButton) {
        //: The name of a bitmap, not a text: keep it as it is in every language.
        m_zoomButton = new CStretchBitmapButton(tr("Zoom"), this);
        m_zoomButton->setAccessibleName(tr("Enlarge this photo"));
        m_zoomButton->setAccessibleDescription(tr("Shows this photo as large as possible"));
    }
    if (!m_backButton) {
        //: The name of a bitmap, not a text: keep it as it is in every language.
        m_backButton = new CStretchBitmapButton(tr("Back"), this);
        m_backButton->setAccessibleName(tr("Back to all photos"));
        m_backButton->setAccessibleDescription(tr("Returns to all chosen photos"));
    }
}

// Both buttons take the size of "Zoom", so that the corner keeps its shape between the modes.
void PictureWidget::placeInCorner(QWidget *button) const
{
    const QSize size = m_zoomButton->size();
    button->setGeometry(width() - size.width(), height() - size.height(), size.width(),
                        size.height());
}

void PictureWidget::resizeEvent(QResizeEvent * /*event*/)
{
    for (QWidget *button : {m_zoomButton, m_backButton})
        if (button)
            placeInCorner(button);
}

void PictureWidget::labelVisible(bool b)
{
    m_label->setVisible(b);
}

void PictureWidget::setLabelText(const QString &text)
{
    m_label->setText(text);
    // Which one of several, for those who hear of it.
    setAccessibleName(QString(tr("Photo") + QLatin1Char(' ') + text).trimmed());
    m_label->adjustSize();
    m_label->show();
}

QString PictureWidget::labelText() const
{
    return m_label->text();
}

void PictureWidget::OnZoom()
{
    Q_EMIT onZoom(this);
}

void PictureWidget::OnBack()
{
    Q_EMIT onBack(this);
}

// In the screen's own pixels.
QSize PictureWidget::sizeOnScreen() const
{
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void PictureWidget::paintEvent(QPaintEvent * /*event*/)
{
    if (m_pixmap.isNull())
        return;
    // Scaling in place keeps a strip of nine photos from holding nine full-size pictures.
    const qreal ratio = devicePixelRatioF();
    if (m_fittedSize != sizeOnScreen())
        m_pixmap = m_pixmap.scaled(sizeOnScreen(), Qt::KeepAspectRatio, Qt::FastTransformation);
    m_fittedSize = QSize();
    m_pixmap.setDevicePixelRatio(ratio);
    const QSizeF shown = QSizeF(m_pixmap.size()) / ratio;
    const int left = static_cast<int>((width() - shown.width()) * 0.5);
    const int top = static_cast<int>((height() - shown.height()) * 0.5);
    QPainter(this).drawPixmap(left, top, m_pixmap);
}
