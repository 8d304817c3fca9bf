#include <ozm_widgets/DefaultWidgetCreator.h>

#include <ozm_widgets/DefaultFileAccessor.h>
#include <ozm_widgets/FileCrawlerDialog.h>

namespace ozm {

void DefaultWidgetCreator::initialize()
{
    setCustomCreator(std::make_unique<DefaultWidgetCreator>());
}

DefaultWidgetCreator &DefaultWidgetCreator::instance()
{
    static DefaultWidgetCreator plain;
    auto *installed = dynamic_cast<DefaultWidgetCreator *>(customCreator());
    return installed ? *installed : plain;
}

std::unique_ptr<IFileAccessorBase> DefaultWidgetCreator::createFileAccessorBase() const
{
    return createFileAccessor(FileAccessorType::Default);
}

std::unique_ptr<IFileAccessor> DefaultWidgetCreator::createFileAccessor(FileAccessorType type) const
{
    Q_UNUSED(type);
    return std::make_unique<DefaultFileAccessor>();
}

FileCrawlerDialog *DefaultWidgetCreator::createFileCrawler(QWidget *parent) const
{
    return new FileCrawlerDialog(parent);
}

std::unique_ptr<IFileAccessor> DefaultWidgetCreator::fileAccessor(FileAccessorType type)
{
    return instance().createFileAccessor(type);
}

FileCrawlerDialog *DefaultWidgetCreator::fileCrawler(QWidget *parent)
{
    return instance().createFileCrawler(parent);
}

} // namespace ozm
