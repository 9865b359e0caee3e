#include "CaptureLog.h"

Q_LOGGING_CATEGORY(captureLog, "orvanta.capture", QtWarningMsg)
