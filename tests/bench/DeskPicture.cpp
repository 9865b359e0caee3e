#include "DeskPicture.h"

#include <QPainter>
#include <QRandomGenerator>

#include <cmath>

QImage deskPicture(QSize size, int noise)
{
    QImage image(size, QImage::Format_RGB888);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient light(0, 0, size.width(), size.height());
    light.setColorAt(0, QColor(150, 120, 90));
    light.setColorAt(1, QColor(70, 60, 50));
    painter.fillRect(image.rect(), light);
    painter.translate(350, 120);
    painter.rotate(4);
    painter.fillRect(0, 0, 1100, 800, QColor(235, 232, 222));
    painter.setFont(QFont(QStringLiteral("Liberation Sans"), 26));
    painter.setPen(QColor(30, 30, 60));
    for (int line = 0; line < 14; ++line)
        painter.drawText(60, 80 + line * 50, QStringLiteral("The quick brown fox jumps over it"));
    painter.resetTransform();
    QRadialGradient skin(1450, 800, 330);
    skin.setColorAt(0, QColor(220, 170, 140));
    skin.setColorAt(1, QColor(150, 100, 80));
    painter.setPen(Qt::NoPen);
    painter.setBrush(skin);
    painter.drawEllipse(QPoint(1450, 800), 300, 180);
    painter.end();
    if (noise == 0)
        return image;
    QRandomGenerator random(1);
    for (int y = 0; y < size.height(); ++y) {
        uchar *row = image.scanLine(y);
        for (int i = 0; i < size.width() * 3; ++i)
            row[i] = uchar(qBound(0, int(row[i]) + random.bounded(-noise, noise + 1), 255));
    }
    return image;
}

QImage pageOfText(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    QFont font(QStringLiteral("Liberation Serif"));
    const double millimetre = size.height() / 297.0;
    font.setPixelSize(int(std::lround(10 * 25.4 / 72 * millimetre)));
    painter.setFont(font);
    const int step = font.pixelSize() * 6 / 5;
    for (int y = step; y < size.height(); y += step)
        painter.drawText(
            QPointF(step + (y % 7) / 7.0, y),
            QStringLiteral("The quick brown fox jumps over the lazy dog, 1234567890, while "
                           "the light of the lamp falls on (a + b)² = a² + 2ab + b². ")
                .repeated(3));
    painter.end();
    return picture.convertToFormat(QImage::Format_RGB888);
}
