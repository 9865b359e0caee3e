#ifndef CAPTURELOG_H
#define CAPTURELOG_H

#include <QLoggingCategory>

/** "orvanta.capture": what the live view finds. Quiet unless asked for. */
Q_DECLARE_LOGGING_CATEGORY(captureLog)

#endif
