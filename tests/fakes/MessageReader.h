#ifndef MESSAGEREADER_H
#define MESSAGEREADER_H

#include "BoxGlance.h"

#include <QMessageBox>
#include <QObject>
#include <QStringList>
#include <QVector>

/**
 * The user who reads every message box and confirms it. While one lives, a modal box can hold up
 * no test: it is noted and its default way out is clicked as soon as it is on screen.
 */
class MessageReader : public QObject {
    Q_OBJECT

public:
    struct Message {
        QMessageBox::Icon icon;
        QString title;
        QString text;
    };

    explicit MessageReader(QObject *parent = nullptr);

    QVector<Message> messages() const { return m_messages; }
    /// The texts alone, oldest first.
    QStringList texts() const;

private:
    void read(QMessageBox &box);

    QVector<Message> m_messages;
    BoxGlance m_glance;
};

#endif
