#ifndef APPLOG_H
#define APPLOG_H

#include <QLoggingCategory>

/** "orvanta.app": how the copies of the program meet. Quiet unless asked for. */
Q_DECLARE_LOGGING_CATEGORY(appLog)

#endif
