#ifndef NEWFILE_H
#define NEWFILE_H

class QString;

/// Makes an empty file at @p path and opens it for writing; whoever calls closes it. -1 when it
/// cannot be made, also because something has the name already: nothing is ever written over, and
/// nothing is written to where a link leads.
int createNewFile(const QString &path);

#endif
