#include "EngineLog.h"

Q_LOGGING_CATEGORY(engineLog, "orvanta.engine", QtWarningMsg)
