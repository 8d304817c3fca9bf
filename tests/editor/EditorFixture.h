#pragma once

#include "files/FileDialogDriver.h"
#include "style/BoxDriver.h"

#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_widgets/WidgetCreatorBase.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/DefaultFileAccessor.h>
#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/TECWrapper.h>

#include <QAction>
#include <QTemporaryDir>

namespace ozm::test {

/// Says of every code that it may not be removed.
class Kept : public ShortCodeImplementation
{
public:
    bool beforeRemove() override { return false; }
    QString displayName(const QString &name) override { return QStringLiteral("Kept ") + name; }
};

/// Two samples, of which the second has no charge.
class SampleTemplateEditor : public AbstractTemplateEditor
{
    Q_OBJECT

public:
    SampleTemplateEditor()
        : m_root({QStringLiteral("Name"), QStringLiteral("Batch")})
    {
        add(QStringLiteral("T12"), QStringLiteral("A-7"));
        add(QStringLiteral("BSA"), QStringLiteral("B-1"));
    }

    [[nodiscard]] QList<ShortCode> shortCodes() const override
    {
        const auto code = [](const char *name, const char *toolTip) {
            const QString text = QString::fromLatin1(name);
            return ShortCode(u'[' + text + u']', text, QString::fromLatin1(toolTip), {});
        };
        QList<ShortCode> codes{code("Sample", "What was measured"), code("Lot", "The batch it is from"),
                               code("Signature", "Who answers for it"), code("Sample", "Twice")};
        codes[2].setImplementation(new Kept);
        return codes;
    }
    [[nodiscard]] QList<RowNode *> previewRows() const override
    {
        return {m_root.child(0), nullptr, m_root.child(1)};
    }
    [[nodiscard]] QList<DecodeTecExtraData> extraData(const RowNode *) const override
    {
        return {{SampleTemplateEditor::staticMetaObject, static_cast<const QObject *>(this)}};
    }
    [[nodiscard]] QString storageDirectory() const override { return {}; }

    Q_PROPERTY(QString sample READ sample)
    Q_PROPERTY(QString lot READ lot)
    [[nodiscard]] QString sample() const { return QStringLiteral("T12 & co"); }
    [[nodiscard]] QString lot() const { return QStringLiteral("A-7"); }

private:
    void add(const QString &sample, const QString &lot)
    {
        RowNode *row = m_root.addNewChildMatchRootDataSize();
        row->setDataAt(0, sample);
        row->setDataAt(1, lot);
    }

    RowNode m_root;
};

/// Answers file questions with one path.
class PathAccessor : public DefaultFileAccessor
{
public:
    using DefaultFileAccessor::getOpenFileName;
    using DefaultFileAccessor::getSaveFileName;
    using DefaultFileAccessor::saveFile;

    explicit PathAccessor(const QString &path)
        : m_path(path)
    {}
    [[nodiscard]] QString getOpenFileName(QWidget *, const QString &, const QString &,
                                          const FileExtensionsNameFilter &, QString *, QFileDialog::Options,
                                          DirLocation) const override
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
    QString m_path;
};

class PathCreator : public DefaultWidgetCreator
{
public:
    explicit PathCreator(const QString &path)
        : m_path(path)
    {}
    [[nodiscard]] std::unique_ptr<IFileAccessor> createFileAccessor(FileAccessorType) const override
    {
        return std::make_unique<PathAccessor>(m_path);
    }

private:
    QString m_path;
};

inline void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

/// A window on the screen, a folder for its files, and nothing left behind.
struct EditorFixture
{
    /// Without @p isActive, something is expected to open in front of the window at once.
    explicit EditorFixture(bool isActive = true)
    {
        answerPath({});
        editor.show();
        editor.activateWindow();
        if (isActive)
            (void)QTest::qWaitForWindowActive(&editor);
    }
    ~EditorFixture() { WidgetCreatorBase::setCustomCreator({}); }
    Q_DISABLE_COPY_MOVE(EditorFixture)

    /// The answer to file questions from now on; empty cancels.
    static void answerPath(const QString &path)
    {
        WidgetCreatorBase::setCustomCreator(std::make_unique<PathCreator>(path));
    }
    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }

    template <typename T>
    [[nodiscard]] T *child(const char *name) const
    {
        T *found = editor.findChild<T *>(QString::fromLatin1(name));
        if (!found)
            qFatal("there is no %s", name);
        return found;
    }
    void trigger(const char *action) const { child<QAction>(action)->trigger(); }
    [[nodiscard]] QString content() const { return TECWrapper::unwrapTEC(editor.sourceText()); }
    void setContent(const QString &content) { QVERIFY(editor.setSourceText(wrapped(content))); }
    /// TECWrapper would put something else in the places of "%1" and the like.
    [[nodiscard]] static QString wrapped(const QString &content)
    {
        return QStringLiteral("<ozm_template version=\"1.0\">") + content + QStringLiteral("</ozm_template>");
    }

    const FileStateGuard guard;
    const QTemporaryDir folder;
    SampleTemplateEditor editor;
};

} // namespace ozm::test
