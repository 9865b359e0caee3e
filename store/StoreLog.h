#ifndef STORELOG_H
#define STORELOG_H

#include <QLoggingCategory>

/** "orvanta.store": what could not be saved. */
Q_DECLARE_LOGGING_CATEGORY(storeLog)

#endif
