#ifndef LABCOMMANDS_H
#define LABCOMMANDS_H

#include <QStringList>

/// Changes the lab that the test runs in, see tests/lab/labctl. The event loop of the test runs on
/// meanwhile. False when the change did not happen.
bool labctl(const QStringList &arguments);

#endif
