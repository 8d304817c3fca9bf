#include "editor/EditorFixture.h"
#include "support/DialogDriver.h"
#include "support/FullDisk.h"
#include "support/StrictTest.h"

#include <ozm_widgets/TemplateAutosave.h>
#include <ozm_widgets/TemplateFile.h>

#include <QListWidget>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QTextBlock>
#include <QTextEdit>

#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace ozm;
using namespace ozm::test;

namespace {

const QString kLeaveCopy = u"--leave-copy"_s;

/// Keeps files on a server, by the locations that it gave out.
class ServerAccessor : public PathAccessor
{
public:
    using PathAccessor::saveFile;

    explicit ServerAccessor(QStringList &saved)
        : PathAccessor({})
        , m_saved(saved)
    {}
    [[nodiscard]] DestinationFileLocation getSaveFileName(QWidget *, const QString &, const QString &,
                                                          const QString &, const FileExtensionsNameFilter &,
                                                          QString *, QFileDialog::Options,
                                                          DirLocation) const override
    {
        return {QSharedPointer<ResourceReference>::create(ResourceReference::Scheme::Server, u"lims"_s),
                u"t.ozt"_s};
    }
    [[nodiscard]] Error saveFile(const DestinationFileLocation &location, const Writer &) const override
    {
        m_saved.append(location.reference->toString() + u' ' + location.path);
        return {};
    }

private:
    QStringList &m_saved;
};

class ServerCreator : public DefaultWidgetCreator
{
public:
    explicit ServerCreator(QStringList &saved)
        : m_saved(saved)
    {}
    [[nodiscard]] std::unique_ptr<IFileAccessor> createFileAccessor(FileAccessorType) const override
    {
        return std::make_unique<ServerAccessor>(m_saved);
    }

private:
    QStringList &m_saved;
};

} // namespace

class TestTemplateEditorFiles : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void closingAsks_data();
    void closingAsks();
    void badInputChangesNothing_data();
    void badInputChangesNothing();
    void failedSavesKeepTheWork();
#ifdef Q_OS_UNIX
    void fullDiskKeepsBoth();
#endif
    void changesOnDiskAreNoticed();
    void savesElsewhereThanOnDisk();
    void crashesLoseNothing();
    void largeTemplatesOpen();
    void markersAreNoHarm();
    void differencesFromFilesAreShown();
};

void TestTemplateEditorFiles::closingAsks_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<bool>("written");

    QTest::newRow("save") << QMessageBox::Save << true << true;
    QTest::newRow("discard") << QMessageBox::Discard << true << false;
    QTest::newRow("cancel") << QMessageBox::Cancel << false << false;
}

void TestTemplateEditorFiles::closingAsks()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    QFETCH(const bool, closed);
    QFETCH(const bool, written);

    EditorFixture f;
    f.answerPath(f.path(u"t.ozt"_s));
    QTest::keyClick(f.child<QTextEdit>("richView"), Qt::Key_A);
    {
        BoxDriver box([answer](OzmMessageBox *shown) { press(shown, answer); });
        QCOMPARE(f.editor.close(), closed);
        QCOMPARE(box.opened(), 1);
    }
    QCOMPARE(QFile::exists(f.path(u"t.ozt"_s)), written);
    QCOMPARE(f.content(), u"<div>a</div>"_s);
    if (!closed) {
        // The question is asked wherever work would go.
        BoxDriver box([](OzmMessageBox *shown) { press(shown, QMessageBox::Cancel); });
        f.trigger("newAction");
        f.trigger("openAction");
        QCOMPARE(box.opened(), 2);
        QCOMPARE(f.content(), u"<div>a</div>"_s);
    }
}

void TestTemplateEditorFiles::badInputChangesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("wrong version") << QByteArray("<ozm_template version=\"1.1\">a</ozm_template>");
    QTest::newRow("truncated") << QByteArray("<ozm_template version=\"1.0\"><p>a");
    QTest::newRow("binary") << QByteArray("\x7f\x45\x4c\x46\x00\x01\x02\xff\xfe\x00", 10);
}

void TestTemplateEditorFiles::badInputChangesNothing()
{
    QFETCH(const QByteArray, bytes);

    EditorFixture f;
    f.setContent(u"<p>mine</p>"_s);
    QTest::keyClick(f.child<QTextEdit>("richView"), Qt::Key_A);
    const QString mine = f.content();
    write(f.path(u"bad.ozt"_s), bytes);
    QStringList texts;
    BoxDriver box([&texts](OzmMessageBox *shown) {
        texts.append(shown->text());
        press(shown, QMessageBox::Ok);
    });
    QVERIFY(!f.editor.setSourceText(QString::fromUtf8(bytes)));
    QCOMPARE(texts, QStringList{u"Wrong template editor content format."_s});
    QVERIFY(!f.editor.openFile(f.path(u"bad.ozt"_s)));
    QCOMPARE(texts.size(), 2);
    QVERIFY2(texts.last().contains("Wrong template editor content format."_L1), qPrintable(texts.last()));
    QVERIFY(!f.editor.openFile(f.path(u"none.ozt"_s)));
    QCOMPARE(texts.size(), 3);
    QCOMPARE(f.content(), mine);
    QVERIFY(f.editor.isModified());
}

void TestTemplateEditorFiles::failedSavesKeepTheWork()
{
    EditorFixture f;
    QTest::keyClick(f.child<QTextEdit>("richView"), Qt::Key_A);
    f.answerPath(f.path(u"no such folder/t.ozt"_s));
    QString text;
    BoxDriver box([&text](OzmMessageBox *shown) {
        text = shown->text();
        press(shown, QMessageBox::Ok);
    });
    f.trigger("saveAction");
    QCOMPARE(box.opened(), 1);
    QVERIFY2(text.contains("unchanged in the window"_L1), qPrintable(text));
    QVERIFY(f.editor.isModified());
    QVERIFY(f.editor.filePath().isEmpty());
    QCOMPARE(f.content(), u"<div>a</div>"_s);
    f.trigger("pdfAction");
    QCOMPARE(box.opened(), 2);
}

#ifdef Q_OS_UNIX
void TestTemplateEditorFiles::fullDiskKeepsBoth()
{
    EditorFixture f;
    f.answerPath(f.path(u"t.ozt"_s));
    QTest::keyClick(f.child<QTextEdit>("richView"), Qt::Key_A);
    f.trigger("saveAction");
    QVERIFY(!f.editor.isModified());
    f.child<QTextEdit>("richView")->insertPlainText(u"b"_s.repeated(100'000));
    const QString mine = f.content();

    QString text;
    BoxDriver box([&text](OzmMessageBox *shown) {
        text = shown->text();
        press(shown, QMessageBox::Ok);
    });
    {
        const FullDisk disk(4096);
        f.trigger("saveAction");
    }
    QCOMPARE(box.opened(), 1);
    QVERIFY2(text.contains("unchanged in the window"_L1), qPrintable(text));
    QVERIFY(f.editor.isModified());
    QCOMPARE(f.content(), mine);
    const auto onDisk = TemplateFile::read(f.path(u"t.ozt"_s));
    QVERIFY(onDisk);
    QCOMPARE(onDisk.value().content, u"<div>a</div>"_s);
}
#endif

void TestTemplateEditorFiles::changesOnDiskAreNoticed()
{
    EditorFixture f;
    f.answerPath(f.path(u"t.ozt"_s));
    f.setContent(u"<p>one</p>"_s);
    f.trigger("saveAction");
    write(f.path(u"t.ozt"_s), "<ozm_template version=\"1.0\"><p>theirs, longer</p></ozm_template>");
    QTest::keyClick(f.child<QTextEdit>("richView"), Qt::Key_A);
    {
        BoxDriver box([](OzmMessageBox *shown) { press(shown, QMessageBox::Cancel); });
        f.trigger("saveAction");
        QCOMPARE(box.opened(), 1);
    }
    QVERIFY(f.editor.isModified());
    QFile theirs(f.path(u"t.ozt"_s));
    QVERIFY(theirs.open(QIODevice::ReadOnly));
    QVERIFY(theirs.readAll().contains("theirs"));
    theirs.close();
    int shown = 0;
    {
        BoxDriver box([&shown](OzmMessageBox *asked) {
            ++shown;
            press(asked, QMessageBox::Yes);
        });
        f.editor.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.editor));
        QEvent activated(QEvent::ActivationChange);
        QApplication::sendEvent(&f.editor, &activated);
        QTRY_COMPARE(shown, 1);
    }
    QCOMPARE(f.content(), u"<p>theirs, longer</p>"_s);
    QVERIFY(!f.editor.isModified());
}

void TestTemplateEditorFiles::savesElsewhereThanOnDisk()
{
    EditorFixture f;
    QStringList saved;
    WidgetCreatorBase::setCustomCreator(std::make_unique<ServerCreator>(saved));
    QTest::keyClick(f.child<QTextEdit>("richView"), Qt::Key_A);
    f.trigger("saveAction");
    QEvent activated(QEvent::ActivationChange);
    QApplication::sendEvent(&f.editor, &activated);
    QCoreApplication::processEvents();
    QVERIFY2(!f.editor.isModified(), "the server's file is not missed on the disk");
    f.trigger("saveAction");
    QCOMPARE(saved, QStringList(2, u"server:lims t.ozt"_s));
    QCOMPARE(f.editor.filePath(), u"lims: t.ozt"_s);
}

void TestTemplateEditorFiles::crashesLoseNothing()
{
    for (const auto answer : {QMessageBox::Yes, QMessageBox::No}) {
        QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(), {kLeaveCopy}), 0);
        int shown = 0;
        BoxDriver box([&shown, answer](OzmMessageBox *asked) {
            ++shown;
            press(asked, answer);
        });
        EditorFixture f(false);
        QTRY_COMPARE(shown, 1);
        QCOMPARE(f.content(), answer == QMessageBox::Yes ? u"<p>rescued</p>"_s : QString());
        QCOMPARE(f.editor.isModified(), answer == QMessageBox::Yes);
        QCOMPARE(f.editor.filePath(), answer == QMessageBox::Yes ? u"/somewhere/t.ozt"_s : QString());
    }
}

void TestTemplateEditorFiles::differencesFromFilesAreShown()
{
    EditorFixture f;
    QVERIFY(!f.child<QAction>("compareSavedAction")->isEnabled());
    const QString path = f.path(u"t.ozt"_s);
    write(path, "<ozm_template version=\"1.0\"><p>First.</p><p>Lot [Lot]</p></ozm_template>");
    f.answerPath(path);
    f.setContent(u"<p>First.</p><p>Lot</p>"_s);
    QStringList told;
    const auto look = [&told](QDialog *dialog) {
        told.append(dialog->findChild<QListWidget *>(u"comparisonList"_s)->item(0)->text());
        const auto *before = dialog->findChild<QTextEdit *>(u"comparisonBefore"_s);
        told.append(before->textCursor().block().text().first(3));
        told.append(QString::number(before->extraSelections().size()));
        dialog->close();
    };
    DialogDriver dialogs({look, look});
    f.trigger("compareAction");
    QTRY_COMPARE(told, QStringList({u"Code [Lot] removed from paragraph 2"_s, u"Lot"_s, u"2"_s}));
    QVERIFY(f.editor.openFile(path));
    f.child<QTextEdit>("richView")->insertPlainText(u"Very "_s);
    told.clear();
    f.trigger("compareSavedAction");
    QTRY_COMPARE(told, QStringList({u"Text added in paragraph 1: \"Very\""_s, u"Fir"_s, u"2"_s}));
}

void TestTemplateEditorFiles::largeTemplatesOpen()
{
    EditorFixture f;
    const QByteArray line = "<p>A line of a large template with [Lot].</p>\n";
    write(f.path(u"large.ozt"_s),
          "<ozm_template version=\"1.0\">" + line.repeated(10'000'000 / line.size()) + "</ozm_template>");
    QVERIFY(f.editor.openFile(f.path(u"large.ozt"_s)));
    QCOMPARE(f.editor.mode(), AbstractTemplateEditor::Mode::Plain);
    f.trigger("richModeAction");
    QCOMPARE(f.editor.mode(), AbstractTemplateEditor::Mode::Plain);
    QVERIFY(f.child<QAction>("plainModeAction")->isChecked());
    QTest::keyClick(f.child<QPlainTextEdit>("plainView"), Qt::Key_X);
    QVERIFY(f.content().startsWith("x<p>A line"_L1));
}

// Wrapping substitutes, which eats such a marker.
void TestTemplateEditorFiles::markersAreNoHarm()
{
    EditorFixture f;
    write(f.path(u"t.ozt"_s), "<ozm_template version=\"1.0\"><p>100%1 %5</p></ozm_template>");
    QVERIFY(f.editor.openFile(f.path(u"t.ozt"_s)));
    QCOMPARE(f.editor.sourceText(), u"<ozm_template version=\"1.0\"><p>100%1 %5</p></ozm_template>"_s);
    f.trigger("saveAction");
    QVERIFY(f.editor.openFile(f.path(u"t.ozt"_s)));
    QCOMPARE(f.content(), u"<p>100%1 %5</p>"_s);
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (!application.arguments().contains(kLeaveCopy)) {
        TestTemplateEditorFiles test;
        return QTest::qExec(&test, argc, argv);
    }
    // Ends as a program that crashes does: nothing is destroyed.
    QStandardPaths::setTestModeEnabled(true);
    auto *autosave = new TemplateAutosave(u"ozm-test-SampleTemplateEditor"_s);
    autosave->store(u"/somewhere/t.ozt"_s, u"<p>rescued</p>"_s);
    std::_Exit(0);
}

#include "tst_templateeditorfiles.moc"
