#pragma once

#include <ozm_common_stable/Result.h>

#include <QtPlugin>

#include <chrono>

namespace ozm {

/**
 * The service that the plug-in with the web engine gives to the library.
 *
 * The number at the end of the identifier goes up with every change here, so that a plug-in of another
 * version is left alone.
 */
class WebReaderInterface
{
public:
    virtual ~WebReaderInterface() = default;

    /// The body of @p page, as the engine parsed it. Code 1 when that takes longer than
    /// @p deadline or the engine fails, code 3 when the engine cannot be started here. GUI thread only.
    [[nodiscard]] virtual Result<QString> bodyOf(const QString &page, std::chrono::milliseconds deadline) = 0;
};

} // namespace ozm

#define OZM_WEB_READER_IID "ozm_widgets.WebReaderInterface/1"
Q_DECLARE_INTERFACE(ozm::WebReaderInterface, OZM_WEB_READER_IID)
