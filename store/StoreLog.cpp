#include "StoreLog.h"

Q_LOGGING_CATEGORY(storeLog, "orvanta.store", QtWarningMsg)
