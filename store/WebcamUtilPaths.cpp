// The folders of the media store: the home folder and the temporary area.

#include "PrivateFolder.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <unistd.h>

QString WebcamUtil::m_apppath;
QString WebcamUtil::m_pictureDataPath;
QString WebcamUtil::m_saveFolder;
QStringList WebcamUtil::m_tempbmpfilenameList;
QStringList WebcamUtil::m_tempmoviefilenameList;
QStringList WebcamUtil::m_savefilenameList;

namespace {

QString temporaryAreaName()
{
    return QStringLiteral("/TavelinCamera");
}

} // namespace

void WebcamUtil::setAppPath()
{
    m_apppath = ensuredFolder(QDir::homePath());
}

QString WebcamUtil::getAppPath()
{
    if (m_apppath.isEmpty())
        setAppPath();
    return m_apppath;
}

QString WebcamUtil::getDocumentPath()
{
    return QDir::homePath();
}

void WebcamUtil::setTemporaryPath()
{
    // The user's number keeps the areas of several users of one machine apart.
    // Captures show children: nobody else looks at them, and no link leads them elsewhere.
    m_pictureDataPath = PrivateFolder::ensure(PrivateFolder::temporaryFolder() + temporaryAreaName()
                                              + QLatin1Char('_') + QString::number(geteuid()));
}

QString WebcamUtil::getTemporaryPath()
{
    if (m_pictureDataPath.isEmpty())
        setTemporaryPath();
    return m_pictureDataPath;
}

void WebcamUtil::restoreTemporaryPath()
{
    // A cleaner of temporary files may have taken the area away while the program ran, and somebody
    // else may have put something in its place.
    if (!m_pictureDataPath.isEmpty() && !PrivateFolder::isOwn(m_pictureDataPath))
        m_pictureDataPath.clear();
    if (m_pictureDataPath.isEmpty())
        setTemporaryPath();
}

void WebcamUtil::deleteTemporaryPath()
{
    // Without the user's number if no area was set up here: a process that never had one must not
    // take away the area of another that is about to use it.
    const QString path = m_pictureDataPath.isEmpty()
        ? PrivateFolder::temporaryFolder() + temporaryAreaName()
        : m_pictureDataPath;
    const QDir folder(path);
    if (folder.exists())
        folder.rmpath(path);
    m_pictureDataPath.clear();
}

bool WebcamUtil::openNewFile(QFile &file, const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    // What has the name makes room, and is not written to: it may be a link to somewhere else.
    unlink(name.constData());
    const int descriptor =
        open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    return descriptor >= 0
        && file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
}

bool WebcamUtil::hasWriteAccess(const QString &path)
{
    QDir folder(path);
    if (!folder.exists() || folder.isRoot())
        return false;
    folder.setPath(folder.absolutePath());
    const QString name = folder.dirName();
    if (!folder.cdUp())
        return false;
    const QStringList writable = folder.entryList(QDir::Dirs | QDir::Writable | QDir::Hidden
                                                      | QDir::NoSymLinks | QDir::NoDotAndDotDot,
                                                  QDir::Unsorted);
    return writable.contains(name, Qt::CaseSensitive);
}

// The absolute path of the folder, made with its parents if need be; empty if it cannot be.
QString WebcamUtil::ensuredFolder(const QString &path)
{
    const QDir folder(path);
    if (!folder.exists() && !folder.mkpath(folder.absolutePath()))
        return QString();
    return folder.absolutePath();
}
