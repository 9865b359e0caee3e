// The two ways out of the temporary area: saved into the day's folder, or deleted.

#include "DiskWork.h"
#include "FileClash.h"
#include "FileMove.h"
#include "OpenFolder.h"
#include "StoreLog.h"
#include "WebcamUtil.h"

#include <QFile>
#include <QFileInfo>

#include <memory>

#include <unistd.h>

namespace {

/** Everything that a save needs, for the thread that does it. */
struct Save {
    QString target;
    QDateTime moment;
    QString path; ///< of the day's folder, which is to be made
    QString area;
    std::vector<QByteArray> names;
    QString folder; ///< where they went; empty if it cannot be made
    bool isComplete = false;
};

// A new folder outlasts a power cut when the folders that it was made in know it.
void flushParents(const Save &save)
{
    (void)OpenFolder(QFileInfo(save.folder).path()).flush();
    (void)OpenFolder(save.target).flush();
}

void carryOut(Save &save, DiskWork::Progress &progress)
{
    const bool isNew = !QFileInfo::exists(save.path);
    save.folder = WebcamUtil::CreateSavePath(save.target, save.moment);
    const OpenFolder folder(save.folder);
    if (save.folder.isEmpty() || !folder.isOpen()) {
        qCWarning(storeLog) << "cannot make the day's folder below" << save.target;
        return;
    }
    if (save.names.empty() || !progress.step())
        return;
    const OpenFolder area(save.area);
    removeHalfCopies(folder);
    const std::vector<QByteArray> left =
        moveFiles(area, folder, save.names, [&progress] { return progress.step(); });
    for (const QByteArray &name : left)
        qCWarning(storeLog) << "cannot save" << name << "to" << save.folder;
    const bool isOnDisk = folder.flush();
    if (isNew)
        flushParents(save);
    save.isComplete = isOnDisk && left.empty();
}

} // namespace

bool WebcamUtil::saveData(const QString &target, const QDateTime &moment)
{
    m_saveFolder.clear();
    const auto save = std::make_shared<Save>();
    save->target = target;
    save->moment = moment;
    save->path = savePath(target, moment);
    save->area = getTemporaryPath();
    // Without an area the list is that of a foreign folder, and nothing there is touched.
    if (!save->area.isEmpty())
        for (const FolderFile &file :
             readTemporaryArea({QStringLiteral("photo*"), QStringLiteral("movie*")}))
            if (isCaptured(file.name.constData()))
                save->names.push_back(file.name);
    const bool isDone =
        DiskWork::run([save](DiskWork::Progress &progress) { carryOut(*save, progress); });
    if (!isDone) {
        qCWarning(storeLog) << "no answer from the disk of" << target;
        return false;
    }
    m_saveFolder = save->folder;
    return save->isComplete;
}

void WebcamUtil::keepApartFromSaved(const QString &target, const QDateTime &moment)
{
    const QString area = getTemporaryPath();
    if (area.isEmpty())
        return;
    std::vector<QByteArray> names;
    for (const FolderFile &file : OpenFolder(area).files(isCaptured))
        names.push_back(file.name);
    DiskWork::run([area, target, moment, names](DiskWork::Progress &) {
        const OpenFolder from(area);
        const OpenFolder to(CreateSavePath(target, moment));
        if (from.isOpen() && to.isOpen())
            keepApart(from, to, names);
    });
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
