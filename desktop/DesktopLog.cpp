#include "DesktopLog.h"

Q_LOGGING_CATEGORY(desktopLog, "orvanta.desktop", QtWarningMsg)
