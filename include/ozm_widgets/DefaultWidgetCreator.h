#pragma once

#include <ozm_common_widgets/WidgetCreatorBase.h>
#include <ozm_widgets/IFileAccessor.h>

class FileCrawlerDialog;

namespace ozm {

/**
 * Makes the file accessors and the finder of mass-spectrometry data, on disk unless an application derives
 * its own creator and installs that.
 *
 *     ozm::DefaultWidgetCreator::initialize(); // once, at start-up
 *     ...
 *     const auto accessor = ozm::DefaultWidgetCreator::fileAccessor();
 *     const QString path = accessor->getOpenFileName(this, title, {}, filter);
 *
 * GUI thread only.
 */
class OZM_WIDGETS_EXPORT DefaultWidgetCreator : public WidgetCreatorBase
{
public:
    using FileAccessorType = IFileAccessor::FileAccessorType; ///< The purpose of an accessor.

    /// Installs a DefaultWidgetCreator.
    static void initialize();

    /// The installed creator. Where none is, or one that is no DefaultWidgetCreator, a plain one answers.
    [[nodiscard]] static DefaultWidgetCreator &instance();

    [[nodiscard]] std::unique_ptr<IFileAccessorBase> createFileAccessorBase() const override;
    /// Every kind is the same here.
    [[nodiscard]] virtual std::unique_ptr<IFileAccessor> createFileAccessor(FileAccessorType type) const;
    /// Belongs to @p parent, or to the caller when that is null.
    [[nodiscard]] virtual FileCrawlerDialog *createFileCrawler(QWidget *parent) const;

    /// As made by the installed creator.
    [[nodiscard]] static std::unique_ptr<IFileAccessor>
    fileAccessor(FileAccessorType type = FileAccessorType::Default);
    /// As made by the installed creator; belongs to @p parent.
    [[nodiscard]] static FileCrawlerDialog *fileCrawler(QWidget *parent);
};

} // namespace ozm
