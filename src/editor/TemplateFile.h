#pragma once

#include <ozm_common_stable/Result.h>

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

namespace ozm {

class TemplateFile
{
public:
    struct Loaded
    {
        QString content;
        QByteArray charset;
        bool converted = false;
    };

    static Result<Loaded> read(const QString &path);
    static Error write(const QString &path, const QString &content);

    void opened(const QString &path);
    [[nodiscard]] bool changedOnDisk() const;
    [[nodiscard]] QString path() const { return m_path; }

private:
    QString m_path;
    QDateTime m_when;
    qint64 m_size = 0;
};

class TemplateAutosave
{
public:
    explicit TemplateAutosave(const QString &) {}
    void store(const QString &, const QString &) {}

    struct Rescued
    {
        QString path;
        QString content;
        QDateTime when;
    };
    static QList<Rescued> takeRescued(const QString &) { return {}; }
};

} // namespace ozm
