#pragma once

#include <ozm_widgets/DefaultFileAccessor.h>
#include <ozm_widgets/DefaultWidgetCreator.h>

#include <utility>

namespace soak {

/// Answers every question for a file with one path; saving is the library's own.
class FileAccessor : public ozm::DefaultFileAccessor
{
public:
    using DefaultFileAccessor::getOpenFileName;
    using DefaultFileAccessor::getSaveFileName;

    explicit FileAccessor(const QString &path)
        : m_path(path)
    {}

    [[nodiscard]] QString getOpenFileName(QWidget *, const QString &, const QString &,
                                          const FileExtensionsNameFilter &, QString *, QFileDialog::Options,
                                          DirLocation) const override
    {
        return m_path;
    }
    [[nodiscard]] QList<QString> getOpenFileNames(QWidget *, const QString &, const QString &,
                                                  const FileExtensionsNameFilter &, QString *,
                                                  QFileDialog::Options, DirLocation) const override
    {
        return {m_path};
    }
    [[nodiscard]] QString getExistingDirectory(QWidget *, const QString &, const QString &,
                                               QFileDialog::Options, DirLocation) const override
    {
        return m_path;
    }
    [[nodiscard]] DestinationFileLocation getSaveFileName(QWidget *, const QString &, const QString &,
                                                          const QString &, const FileExtensionsNameFilter &,
                                                          QString *, QFileDialog::Options,
                                                          DirLocation) const override
    {
        return m_path.isEmpty() ? DestinationFileLocation()
                                : DestinationFileLocation(QStringLiteral("file:") + m_path);
    }

private:
    const QString m_path;
};

class WidgetCreator : public ozm::DefaultWidgetCreator
{
public:
    /// @p path is read at each question.
    explicit WidgetCreator(const QString &path)
        : m_path(path)
    {}
    [[nodiscard]] std::unique_ptr<ozm::IFileAccessor> createFileAccessor(FileAccessorType) const override
    {
        return std::make_unique<FileAccessor>(m_path);
    }

private:
    const QString &m_path;
};

} // namespace soak
