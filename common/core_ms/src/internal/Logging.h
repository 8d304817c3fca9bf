#pragma once

#include <QLoggingCategory>

// "ozm.generic". Debug lines, one for each detection, are off unless a rule asks for them.
Q_DECLARE_LOGGING_CATEGORY(lcGeneric)
