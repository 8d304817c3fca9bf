#pragma once

#include <ozm_common_stable/Result.h>

#include <QObject>

#include <functional>

namespace ozm {

class AsyncUtils
{
public:
    template <typename T>
    static Result<T> executeInThread(QObject *context, const std::function<T()> &work);
};

} // namespace ozm
