#include "support/Logging.h"

Q_LOGGING_CATEGORY(lcOzmWidgets, "ozm.widgets")
