#include "MessageReader.h"

#include <QAbstractButton>
#include <QPushButton>

MessageReader::MessageReader(QObject *parent)
    : QObject(parent)
    , m_glance([this](QWidget &box) {
        if (auto *message = qobject_cast<QMessageBox *>(&box))
            read(*message);
    })
{
}

QStringList MessageReader::texts() const
{
    QStringList texts;
    for (const Message &message : m_messages)
        texts.append(message.text);
    return texts;
}

void MessageReader::read(QMessageBox &box)
{
    m_messages.append({box.icon(), box.windowTitle(), box.text()});
    QAbstractButton *wayOut = box.defaultButton();
    if (!wayOut && !box.buttons().isEmpty())
        wayOut = box.buttons().constFirst();
    if (wayOut)
        wayOut->click();
    else
        box.reject();
}
