#ifndef OPENABLENODES_H
#define OPENABLENODES_H

#include <QStringList>

/**
 * The system's video nodes that the user may open. Rights come later than nodes: with a session
 * that is switched to, or by an administrator's hand. Nobody tells of that, so it is looked for
 * whenever cameras are; no node is opened for it.
 *
 * GUI thread only.
 */
class OpenableNodes {
public:
    /// The paths of those that may be opened now and were not there, or were forbidden, the last
    /// time. Of a device with several nodes the first only: they come and are allowed together.
    QStringList takeNew();

private:
    QStringList m_known; ///< at the last look
};

#endif
