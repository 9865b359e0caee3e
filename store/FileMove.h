#ifndef FILEMOVE_H
#define FILEMOVE_H

#include <QByteArray>

class OpenFolder;

/**
 * Moves the file @p name from the one folder to the other; one that is already there is only
 * removed here. Whatever happens, there is a whole file of this name in one of the folders: nothing
 * is removed before its copy and the copy's entry in the folder are on the disk, and a copy grows
 * under a hidden name, so that no later save takes half a movie for one that was saved before.
 *
 * False when the file is still where it was. A file that was merely renamed is safe from a power
 * cut only after to.flush().
 */
bool moveFile(const OpenFolder &from, const OpenFolder &to, const QByteArray &name);

/** Removes what saves that were cut off have left half copied in the folder. */
void removeHalfCopies(const OpenFolder &folder);

#endif
