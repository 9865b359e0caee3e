#include "StoreFolders.h"

#include "WebcamUtil.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

StoreFolders::StoreFolders()
    : m_oldHome(qgetenv("HOME"))
    , m_oldTemporary(qgetenv("TMPDIR"))
{
    QDir().mkpath(home());
    QDir().mkpath(temporary());
    QDir().mkpath(target());
    qputenv("HOME", QFile::encodeName(home()));
    qputenv("TMPDIR", QFile::encodeName(temporary()));
    forget();
}

StoreFolders::~StoreFolders()
{
    qputenv("HOME", m_oldHome);
    qputenv("TMPDIR", m_oldTemporary);
    forget();
}

QString StoreFolders::area() const
{
    return temporary() + QStringLiteral("/TavelinCamera_") + QString::number(geteuid());
}

void StoreFolders::makeAreaImpossible()
{
    const QString file = root() + QStringLiteral("/plainfile");
    write(file);
    qputenv("TMPDIR", QFile::encodeName(file));
    forget();
}

void StoreFolders::forget()
{
    WebcamUtil::m_apppath.clear();
    WebcamUtil::m_pictureDataPath.clear();
    WebcamUtil::m_tempbmpfilenameList.clear();
    WebcamUtil::m_tempmoviefilenameList.clear();
    WebcamUtil::m_savefilenameList.clear();
}

bool StoreFolders::write(const QString &path, const QByteArray &contents, const QDateTime &modified)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()
        || !file.flush())
        return false;
    return !modified.isValid() || file.setFileTime(modified, QFileDevice::FileModificationTime);
}

QByteArray StoreFolders::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
