// A disk that passes everything on to a folder, slowly, wrongly or not at all, as it is told on its
// standard input. Started by TroubledDisk, which has mounted it and hands over the open device:
//   troubleddisk FOLDER /dev/fd/N

#define FUSE_USE_VERSION 31
#include <fuse.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <iostream>
#include <map>
#include <string>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <thread>
#include <unistd.h>

namespace {

struct Trouble {
    std::atomic<int> delay{0}; // ms
    std::atomic<int> error{0};
};

// All that there are, from the beginning: nobody adds to them when several threads look.
std::map<std::string, Trouble> troubles;
std::atomic<bool> isHanging(false);
std::atomic<bool> knowsPlainRenameOnly(false);
std::string behind;

void rest(int milliseconds)
{
    const std::chrono::milliseconds time(milliseconds);
    std::this_thread::sleep_for(time); // nothing to wait for: a slow disk
}

/// What comes over every operation: 0, or what it fails with.
int meet(const char *operation)
{
    while (isHanging)
        rest(20);
    const auto found = troubles.find(operation);
    if (found == troubles.end())
        return 0;
    rest(found->second.delay);
    return -found->second.error;
}

std::string at(const char *path)
{
    return behind + path;
}

int result(long value)
{
    return value < 0 ? -errno : int(value);
}

int getAttributes(const char *path, struct stat *status, fuse_file_info *file)
{
    if (const int error = meet("look"))
        return error;
    return result(file ? fstat(int(file->fh), status) : lstat(at(path).c_str(), status));
}

int list(const char *path, void *buffer, fuse_fill_dir_t fill, off_t, fuse_file_info *,
         fuse_readdir_flags)
{
    if (const int error = meet("look"))
        return error;
    DIR *folder = opendir(at(path).c_str());
    if (!folder)
        return -errno;
    while (const dirent *item = readdir(folder))
        fill(buffer, item->d_name, nullptr, 0, fuse_fill_dir_flags(0));
    closedir(folder);
    return 0;
}

int openAt(const char *path, fuse_file_info *file, int flags, mode_t mode)
{
    const int descriptor = open(at(path).c_str(), flags, mode);
    if (descriptor < 0)
        return -errno;
    file->fh = uint64_t(descriptor);
    return 0;
}

int openFile(const char *path, fuse_file_info *file)
{
    const int error = meet("look");
    return error ? error : openAt(path, file, file->flags, 0);
}

int create(const char *path, mode_t mode, fuse_file_info *file)
{
    const int error = meet("create");
    return error ? error : openAt(path, file, file->flags | O_CREAT, mode);
}

int readFrom(const char *, char *buffer, size_t size, off_t offset, fuse_file_info *file)
{
    const int error = meet("read");
    return error ? error : result(pread(int(file->fh), buffer, size, offset));
}

int writeTo(const char *, const char *buffer, size_t size, off_t offset, fuse_file_info *file)
{
    const int error = meet("write");
    return error ? error : result(pwrite(int(file->fh), buffer, size, offset));
}

int flushFile(const char *, int, fuse_file_info *file)
{
    const int error = meet("fsync");
    return error ? error : result(fsync(int(file->fh)));
}

int flushFolder(const char *, int, fuse_file_info *)
{
    return meet("fsync");
}

int release(const char *, fuse_file_info *file)
{
    return result(close(int(file->fh)));
}

int removeFile(const char *path)
{
    const int error = meet("unlink");
    return error ? error : result(unlink(at(path).c_str()));
}

int renameTo(const char *from, const char *to, unsigned flags)
{
    if (const int error = meet("rename"))
        return error;
    if (flags != 0 && knowsPlainRenameOnly)
        return -EINVAL;
    return result(renameat2(AT_FDCWD, at(from).c_str(), AT_FDCWD, at(to).c_str(), flags));
}

int makeNode(const char *path, mode_t mode, dev_t device)
{
    const int error = meet("create");
    return error ? error : result(mknod(at(path).c_str(), mode, device));
}

int makeFolder(const char *path, mode_t mode)
{
    const int error = meet("create");
    return error ? error : result(mkdir(at(path).c_str(), mode));
}

int removeFolder(const char *path)
{
    const int error = meet("unlink");
    return error ? error : result(rmdir(at(path).c_str()));
}

int makeLink(const char *target, const char *path)
{
    return result(symlink(target, at(path).c_str()));
}

int readLink(const char *path, char *buffer, size_t size)
{
    const ssize_t length = readlink(at(path).c_str(), buffer, size - 1);
    if (length < 0)
        return -errno;
    buffer[length] = '\0';
    return 0;
}

int changeMode(const char *path, mode_t mode, fuse_file_info *)
{
    return result(chmod(at(path).c_str(), mode));
}

int changeOwner(const char *path, uid_t user, gid_t group, fuse_file_info *)
{
    return result(lchown(at(path).c_str(), user, group));
}

int changeSize(const char *path, off_t size, fuse_file_info *)
{
    const int error = meet("write");
    return error ? error : result(truncate(at(path).c_str(), size));
}

int changeTimes(const char *path, const timespec times[2], fuse_file_info *)
{
    return result(utimensat(AT_FDCWD, at(path).c_str(), times, AT_SYMLINK_NOFOLLOW));
}

int tellRoom(const char *path, struct statvfs *room)
{
    const int error = meet("look");
    return error ? error : result(statvfs(at(path).c_str(), room));
}

void *begin(fuse_conn_info *, fuse_config *config)
{
    // Everything is asked for again: nothing is right any more because it was right before.
    config->entry_timeout = config->attr_timeout = config->negative_timeout = 0;
    return nullptr;
}

fuse_operations operations()
{
    fuse_operations all = {};
    all.init = begin;
    all.getattr = getAttributes;
    all.readdir = list;
    all.open = openFile;
    all.create = create;
    all.read = readFrom;
    all.write = writeTo;
    all.fsync = flushFile;
    all.fsyncdir = flushFolder;
    all.release = release;
    all.unlink = removeFile;
    all.rename = renameTo;
    all.mknod = makeNode;
    all.mkdir = makeFolder;
    all.rmdir = removeFolder;
    all.symlink = makeLink;
    all.readlink = readLink;
    all.chmod = changeMode;
    all.chown = changeOwner;
    all.truncate = changeSize;
    all.utimens = changeTimes;
    all.statfs = tellRoom;
    return all;
}

// Until nobody tells anything any more, which is the end.
void obey()
{
    std::string word;
    while (std::cin >> word) {
        std::string operation;
        int value = 0;
        if (word == "slow" && std::cin >> operation >> value)
            troubles[operation].delay = value;
        else if (word == "fail" && std::cin >> operation >> value)
            troubles[operation].error = value;
        else if (word == "hang" && std::cin >> value)
            isHanging = value != 0;
        else if (word == "plainrename" && std::cin >> value)
            knowsPlainRenameOnly = value != 0;
        std::cout << "done" << std::endl;
    }
    std::_Exit(0);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    behind = argv[1];
    for (const char *operation : {"look", "create", "read", "write", "fsync", "unlink", "rename"})
        troubles[operation];
    umask(0);
    std::thread(obey).detach();
    const fuse_operations all = operations();
    const char *arguments[] = {argv[0], "-f", argv[2]};
    return fuse_main(3, const_cast<char **>(arguments), &all, nullptr);
}
