#include "PastedPhotos.h"

#include <QClipboard>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

static constexpr qint64 mostBytes = 64 << 20; // of a picture; the largest photos have a third

// Empty for what no clipboard could hold.
static QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.size() <= mostBytes && file.open(QIODevice::ReadOnly) ? file.readAll()
                                                                      : QByteArray();
}

static QStringList readable(const QStringList &paths)
{
    QStringList found;
    for (const QString &path : paths)
        if (QFileInfo(path).isFile())
            found.append(path);
    return found;
}

void PastedPhotos::offer(const QStringList &paths)
{
    const QStringList files = readable(paths);
    if (files.isEmpty())
        return;
    m_paths = files;
    m_picture = files.size() == 1 ? contentOf(files.first()) : QByteArray();
    put(files);
}

void PastedPhotos::settle(const QString &folder)
{
    const QStringList before = m_paths;
    m_paths.clear();
    if (before.isEmpty() || !m_onClipboard)
        return;
    QStringList saved;
    if (!folder.isEmpty())
        for (const QString &path : before)
            saved.append(folder + QLatin1Char('/') + QFileInfo(path).fileName());
    put(readable(saved));
}

// The picture is offered as it lies in its file and in no other format: a desktop that keeps the
// clipboard at the program's end asks for each of them, and would wait for all to be made.
void PastedPhotos::put(const QStringList &paths)
{
    if (paths.isEmpty() && m_picture.isEmpty()) {
        QGuiApplication::clipboard()->clear();
        return;
    }
    auto *data = new QMimeData;
    if (!m_picture.isEmpty())
        data->setData(QStringLiteral("image/png"), m_picture);
    QList<QUrl> urls;
    QByteArray copied = "copy"; // and not cut
    for (const QString &path : paths) {
        urls.append(QUrl::fromLocalFile(path));
        copied += '\n' + urls.last().toEncoded();
    }
    if (!urls.isEmpty()) {
        data->setUrls(urls);
        data->setData(QStringLiteral("x-special/gnome-copied-files"), copied);
    }
    m_onClipboard = data;
    QGuiApplication::clipboard()->setMimeData(data);
}
