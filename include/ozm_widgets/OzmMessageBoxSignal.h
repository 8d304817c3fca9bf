#pragma once

namespace ozm {

/**
 * Identifies the message of a box, so that an application or a test robot recognises the box.
 *
 * The library only carries the value. An application numbers its own messages from FirstOfApplication on:
 *
 *     constexpr auto kRunFailed = ozm::OzmMessageBoxSignal(int(ozm::OzmMessageBoxSignal::FirstOfApplication)
 * + 7);
 */
enum class OzmMessageBoxSignal : int
{
    Unspecified = 0,
    FileExists = 1,
    FileNotFound = 2,
    FileNotReadable = 3,
    FileNotWritable = 4,
    PathInvalid = 5,
    UnsavedChanges = 6,
    TemplateError = 7,
    ScriptError = 8,

    FirstOfApplication = 1000,
};

} // namespace ozm
