#include "DeskPicture.h"

#include <QPainter>
#include <QRandomGenerator>

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
