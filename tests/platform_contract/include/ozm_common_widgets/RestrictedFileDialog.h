#pragma once

#include <QDir>
#include <QFileDialog>

namespace ozm {

class RestrictedFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    explicit RestrictedFileDialog(QWidget *parent = nullptr, const QString &caption = {},
                                  const QString &directory = {}, const QString &filter = {});

    void setDirectory(const QString &directory);
    void setDirectory(const QDir &directory);
    void setOptions(QFileDialog::Options options);

    [[nodiscard]] static QString getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                                 const QString &filter, QString *selectedFilter,
                                                 QFileDialog::Options options);
    [[nodiscard]] static QStringList getOpenFileNames(QWidget *parent, const QString &caption,
                                                      const QString &dir, const QString &filter,
                                                      QString *selectedFilter, QFileDialog::Options options);
    [[nodiscard]] static QString getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                                 const QString &filter, QString *selectedFilter,
                                                 QFileDialog::Options options);
    [[nodiscard]] static QString getExistingDirectory(QWidget *parent, const QString &caption,
                                                      const QString &dir, QFileDialog::Options options);
};

} // namespace ozm
