#include "AppLog.h"

Q_LOGGING_CATEGORY(appLog, "orvanta.app", QtCriticalMsg)
