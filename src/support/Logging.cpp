#include "support/Logging.h"

// Debug lines, one for each pick in a dialog, are off unless a rule asks for them.
Q_LOGGING_CATEGORY(lcOzmWidgets, "ozm.widgets", QtInfoMsg)
