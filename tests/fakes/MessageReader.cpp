#include "MessageReader.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPushButton>
#include <QTimer>

MessageReader::MessageReader(QObject *parent)
    : QObject(parent)
{
    auto *glance = new QTimer(this);
    connect(glance, &QTimer::timeout, this, &MessageReader::readOpenBox);
    glance->start(10);
}

QStringList MessageReader::texts() const
{
    QStringList texts;
    for (const Message &message : m_messages)
        texts.append(message.text);
    return texts;
}

void MessageReader::readOpenBox()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box || !box->isVisible())
        return;
    m_messages.append({box->icon(), box->windowTitle(), box->text()});
    QAbstractButton *wayOut = box->defaultButton();
    if (!wayOut && !box->buttons().isEmpty())
        wayOut = box->buttons().constFirst();
    if (wayOut)
        wayOut->click();
    else
        box->reject();
}
