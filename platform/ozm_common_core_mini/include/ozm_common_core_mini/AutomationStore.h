#pragma once

#include <ozm_common_core_mini/ozm_common_core_mini_export.h>
#include <ozm_common_stable/Error.h>

#include <QString>
#include <QVariant>

/// True when the system's file explorer may be opened; true when the store has no answer.
OZM_COMMON_CORE_MINI_EXPORT extern const QString kFileExplorerAllowed;

/**
 * Answers given in advance to questions that would otherwise be put to a user, so that a program can run
 * without one: in tests, in batches, on a server.
 *
 *     as::setValue(AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY, path);
 *     window.save(); // shows no dialog
 *
 * A program that is started with the environment variable "OZM_AUTOMATION" begins with the answers in it:
 * either a JSON object, or the path of a file that holds one. What cannot be read there gives one warning
 * (category "ozm.automation") and no answers. One store per process; safe from any thread.
 */
namespace as {

/// True when there is an answer for @p key.
[[nodiscard]] OZM_COMMON_CORE_MINI_EXPORT bool contains(const QString &key);

/// The answer to @p key, or @p fallback when there is none.
[[nodiscard]] OZM_COMMON_CORE_MINI_EXPORT QVariant value(const QString &key, const QVariant &fallback = {});

/// Answers questions for @p key with @p value from now on.
OZM_COMMON_CORE_MINI_EXPORT void setValue(const QString &key, const QVariant &value);
/// Forgets the answer for @p key, if there is one.
OZM_COMMON_CORE_MINI_EXPORT void remove(const QString &key);
/// Forgets all answers.
OZM_COMMON_CORE_MINI_EXPORT void clear();

/// Adds the answers of the JSON object in the file at @p path to the store. Nothing is added when the file
/// cannot be read (code 4) or holds something else (code 2).
OZM_COMMON_CORE_MINI_EXPORT ozm::Error load(const QString &path);

} // namespace as
