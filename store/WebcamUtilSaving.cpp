// The two ways out of the temporary area: saved into the day's folder, or deleted.

#include "FileMove.h"
#include "OpenFolder.h"
#include "StoreLog.h"
#include "WebcamUtil.h"

#include <QFile>
#include <QGuiApplication>

#include <unistd.h>

namespace {

class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY(WaitCursor)
};

} // namespace

bool WebcamUtil::saveData(const QString &target, const QDateTime &moment)
{
    const QString path = CreateSavePath(target, moment);
    const OpenFolder folder(path);
    if (path.isEmpty() || !folder.isOpen()) {
        qCWarning(storeLog) << "cannot make the day's folder below" << target;
        return false;
    }
    // Without an area the list is that of a foreign folder, and nothing there is touched.
    const QString areaPath = getTemporaryPath();
    const std::vector<FolderFile> files =
        readTemporaryArea({QStringLiteral("photo*"), QStringLiteral("movie*")});
    if (areaPath.isEmpty() || files.empty())
        return false;

    const WaitCursor waitCursor;
    const OpenFolder area(areaPath);
    removeHalfCopies(folder);
    std::vector<QByteArray> names;
    for (const FolderFile &file : files)
        if (isCaptured(file.name.constData()))
            names.push_back(file.name);
    const std::vector<QByteArray> left = moveFiles(area, folder, names);
    for (const QByteArray &name : left)
        qCWarning(storeLog) << "cannot save" << name << "to" << path;
    return folder.flush() && left.empty();
}

void WebcamUtil::deleteData()
{
    const QString path = getTemporaryPath();
    if (path.isEmpty())
        return;
    const OpenFolder area(path);
    for (const FolderFile &file : area.files(isCaptured))
        unlinkat(area.descriptor(), file.name.constData(), 0);
}

void WebcamUtil::deleteUnfinished(const QDateTime &moment)
{
    const QString path = getTemporaryPath();
    if (path.isEmpty())
        return;
    const qint64 ms = moment.toMSecsSinceEpoch();
    const timespec before = {time_t(ms / 1000), long(ms % 1000) * 1000000};
    OpenFolder(path).removeUnfinished(
        [](const char *name) { return name[0] == '.' && isCaptured(name + 1); }, before);
}

void WebcamUtil::deletetmpfile(const QString &path)
{
    QFile::remove(path);
}
