#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcOzmWidgets)

#define OZM_TEXT_OF_(value) #value
#define OZM_TEXT_OF(value) OZM_TEXT_OF_(value)

/// A warning of the widgets that begins with its place in the sources.
#define OZM_WIDGETS_WARNING() qCWarning(lcOzmWidgets) << __FILE__ ":" OZM_TEXT_OF(__LINE__)
