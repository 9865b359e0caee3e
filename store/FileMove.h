#ifndef FILEMOVE_H
#define FILEMOVE_H

#include <QByteArray>

#include <functional>
#include <vector>

class OpenFolder;

/**
 * Moves the files of these names from the one folder to the other; one that is already there is
 * only removed here. Whatever happens, there is a whole file of each name in one of the folders:
 * nothing is removed before its copy and the copy's entry in the folder are on the disk, and a copy
 * grows under a hidden name, so that no later save takes half a movie for one that was saved
 * before. On one file system files are renamed, and one whose contents the disk refuses afterwards
 * is put back.
 *
 * Returns the names of the files that were not moved; they are still where they were. Files that
 * were merely renamed are safe from a power cut only after to.flush().
 *
 * @p goesOn is told of every step, on several threads; once it says false, the files that are not
 * moved yet are left where they are.
 */
std::vector<QByteArray> moveFiles(
    const OpenFolder &from, const OpenFolder &to, const std::vector<QByteArray> &names,
    const std::function<bool()> &goesOn = [] { return true; });

/** Removes what saves that were cut off have left half copied in the folder. */
void removeHalfCopies(const OpenFolder &folder);

#endif
