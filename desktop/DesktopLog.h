#ifndef DESKTOPLOG_H
#define DESKTOPLOG_H

#include <QLoggingCategory>

/** "orvanta.desktop": what the desktop does not let the window do. */
Q_DECLARE_LOGGING_CATEGORY(desktopLog)

#endif
