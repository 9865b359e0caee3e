// The message boxes. Their title is translated in the general context, so that all share one.

#include "WebcamUtil.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

void centreOnDesktop(QWidget *widget)
{
    const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
    widget->move((desktop.width() - widget->width()) / 2,
                 (desktop.height() - widget->height()) / 2);
}

/** A message box breaks its lines and finds its final size only when it is shown. */
class CentredMessageBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void showEvent(QShowEvent *event) override
    {
        QMessageBox::showEvent(event);
        centreOnDesktop(this);
    }
};

} // namespace

void WebcamUtil::ShowDiskWorningMessage(QWidget *parent)
{
    // The blank at the end is part of the text that translators see.
    showMessage(
        QMessageBox::Warning,
        QObject::tr("The disk free space is insufficient.\n")
            + QObject::tr("Taking a picture is discontinued. Please secure the free space. "),
        parent);
}

void WebcamUtil::infoMessage(const QString &text, QWidget *parent)
{
    showMessage(QMessageBox::Information, text, parent);
}

void WebcamUtil::WarningMessage(const QString &text, QWidget *parent)
{
    showMessage(QMessageBox::Warning, text, parent);
}

void WebcamUtil::CriticalMessage(const QString &text, QWidget *parent)
{
    showMessage(QMessageBox::Critical, text, parent);
}

void WebcamUtil::showMessage(QMessageBox::Icon icon, const QString &text, QWidget *parent)
{
    CentredMessageBox box(icon, QObject::tr("Orvanta"), text, QMessageBox::Ok, parent,
                          Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    moveToCenter(&box, parent);
    box.exec();
}

void WebcamUtil::moveToCenter(QWidget *widget, QWidget * /*parent*/)
{
    if (!widget)
        return;
    widget->setFixedSize(widget->sizeHint());
    centreOnDesktop(widget);
}
