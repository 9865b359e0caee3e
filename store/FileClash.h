#ifndef FILECLASH_H
#define FILECLASH_H

#include <QByteArray>

#include <vector>

class OpenFolder;

/**
 * Renames those of the files in the first folder whose name something else has in the second one. A
 * clock that was set back, or that begins anew at each start of the computer, gives the captures of
 * one day the names of another's, and in a folder that is everybody's anybody may have taken them;
 * a file of the same contents is the same capture, saved before, and keeps its name.
 *
 * A movie and its still picture keep to each other: "movie1.mov" with "movie1tmp.png" becomes
 * "movie1-2.mov" with "movie1-2tmp.png". What cannot be renamed stays as it is.
 */
void keepApart(const OpenFolder &from, const OpenFolder &to, const std::vector<QByteArray> &names);

#endif
