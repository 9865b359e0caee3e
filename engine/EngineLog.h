#ifndef ENGINELOG_H
#define ENGINELOG_H

#include <QLoggingCategory>

/// "orvanta.engine": cameras found, modes chosen, losses. Quiet unless asked for.
Q_DECLARE_LOGGING_CATEGORY(engineLog)

#endif
