#include "internal/Logging.h"

Q_LOGGING_CATEGORY(lcGeneric, "ozm.generic", QtInfoMsg)
