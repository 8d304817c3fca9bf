#pragma once

#include "support/DialogDriver.h"

#include <ozm_common_core/FileSystemSettings.h>
#include <ozm_common_core_mini/AutomationStore.h>

#include <QApplication>
#include <QCollator>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

namespace ozm::test {

/// Folders are remembered in memory, settings of the toolkit in a folder of their own, and nothing is
/// answered or switched from outside, until it ends.
class FileStateGuard
{
public:
    FileStateGuard()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        m_before = FileSystemSettings::Instance().setStore(FileSystemSettings::memoryStore());
        clear();
    }
    ~FileStateGuard()
    {
        clear();
        FileSystemSettings::Instance().setStore(std::move(m_before));
    }
    Q_DISABLE_COPY_MOVE(FileStateGuard)

private:
    static void clear()
    {
        as::clear();
        qunsetenv("OZM_USE_QT_SAVE_DIALOG");
        qunsetenv("OZM_USE_QT_FILE_DIALOG");
    }

    const QTemporaryDir m_settings;
    std::unique_ptr<FileSystemSettings::Store> m_before;
};

/// A file dialog of the toolkit as a user sees it.
class FileDialogDriver
{
public:
    explicit FileDialogDriver(QDialog *dialog)
        : m_dialog(qobject_cast<QFileDialog *>(dialog))
    {
        if (!m_dialog)
            return;
        m_dialog->setViewMode(QFileDialog::List);
        // Without the focus, the toolkit takes what is typed for a proposal of its own.
        m_dialog->activateWindow();
        (void)QTest::qWaitForWindowActive(m_dialog);
    }

    [[nodiscard]] QFileDialog *dialog() const { return m_dialog; }
    [[nodiscard]] QLineEdit *name() const
    {
        return m_dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    }
    [[nodiscard]] QListView *list() const
    {
        return m_dialog->findChild<QListView *>(QStringLiteral("listView"));
    }
    [[nodiscard]] QPushButton *acceptButton() const
    {
        auto *box = m_dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
        auto *open = box->button(QDialogButtonBox::Open);
        return open ? open : box->button(QDialogButtonBox::Save);
    }

    /// Waits until @p path is in the list and on the screen, as the list is filled from another thread.
    [[nodiscard]] QRect rectOf(const QString &path) const
    {
        const auto *model = qobject_cast<QFileSystemModel *>(list()->model());
        QRect rect;
        const bool isShown = QTest::qWaitFor([&] {
            rect = list()->visualRect(model->index(path));
            return model->index(path).isValid() && rect.isValid() && isSorted(*model, list()->rootIndex()) &&
                   list()->viewport()->rect().contains(rect.center());
        });
        return isShown ? rect : QRect();
    }

    [[nodiscard]] bool click(const QString &path, Qt::KeyboardModifiers keys = {}) const
    {
        const QRect rect = rectOf(path);
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, keys, rect.center());
        return rect.isValid();
    }

    [[nodiscard]] bool doubleClick(const QString &path) const
    {
        const QRect rect = rectOf(path);
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rect.center());
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, rect.center());
        return rect.isValid();
    }

    /// Types @p text in place of what the box holds.
    void type(const QString &text) const
    {
        name()->setFocus();
        name()->selectAll();
        if (text.isEmpty())
            QTest::keyClick(name(), Qt::Key_Delete);
        else
            QTest::keyClicks(name(), text);
    }

    void pressEnter(QWidget *in) const { QTest::keyClick(in, Qt::Key_Return); }
    /// Lets a message about what was done come up, and its own driver work on it.
    void waitForMessage() const { QApplication::processEvents(); }
    void clickAccept() const { QTest::mouseClick(acceptButton(), Qt::LeftButton); }

private:
    /// True when all entries are there, folders first and each kind by name: until then, rows move.
    [[nodiscard]] static bool isSorted(const QFileSystemModel &model, const QModelIndex &folder)
    {
        const QDir dir(model.filePath(folder));
        const QDir::Filters filter = model.filter() | QDir::AllDirs | QDir::NoDotAndDotDot;
        if (model.rowCount(folder) < dir.entryList(model.nameFilters(), filter).size())
            return false;
        QCollator collator;
        collator.setNumericMode(true);
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        for (int row = 1; row < model.rowCount(folder); ++row) {
            const QModelIndex above = model.index(row - 1, 0, folder);
            const QModelIndex index = model.index(row, 0, folder);
            if (model.isDir(index) && !model.isDir(above))
                return false;
            if (model.isDir(index) == model.isDir(above) &&
                collator.compare(model.fileName(above), model.fileName(index)) > 0)
                return false;
        }
        return true;
    }

    QFileDialog *m_dialog;
};

} // namespace ozm::test
