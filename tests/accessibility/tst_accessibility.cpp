#include "Inspection.h"
#include "audit/StoreFixture.h"
#include "editor/EditorFixture.h"
#include "reports/ReportContext.h"
#include "reports/ReportDialog.h"
#include "reports/WorkbenchTemplateEditor.h"
#include "samples/AddSampleDialog.h"
#include "style/Palettes.h"
#include "support/StrictTest.h"
#include "window/FirstStepsSession.h"
#include "window/MainWindow.h"
#include "window/StyleDialog.h"
#include "workbench/SampleFixture.h"

#include <ozm_audit/Logger.h>
#include <ozm_audit_widgets/ReasonDialog.h>
#include <ozm_audit_widgets/ReviewDialog.h>
#include <ozm_audit_widgets/SignDialog.h>
#include <ozm_audit_widgets/SigningSession.h>
#include <ozm_audit_widgets/SubjectHistory.h>
#include <ozm_audit_widgets/TrailView.h>
#include <ozm_widgets/FileCrawlerDialog.h>
#include <ozm_widgets/FileDialog.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmMessageBox.h>
#include <ozm_widgets/SpectrumFileDialog.h>
#include <ozm_widgets/openfilefolderdialog.h>

#include <QAccessible>
#include <QDir>
#include <QMainWindow>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace ozm::test;
using Scheme = OZMStyle::Scheme;

namespace {

class NoPassword : public ozm::audit::Authenticator
{
public:
    ozm::Result<ozm::audit::Person> authenticate(const QString &id, const QString &) override
    {
        return ozm::audit::Person{id, u"Mary Roe"_s, u"reviewer"_s};
    }
};

/// All that the windows show.
struct Laboratory
{
    Laboratory()
        : store(std::move(ozm::audit::Store::open(u"memory:"_s)).value())
        , logger(*store, {.user = {u"jdoe"_s, u"Jane Doe"_s, u"analyst"_s}})
        , session(logger, people)
        , model(*store)
    {
        for (const ozm::audit::Draft &draft : drafts(1, 12))
            (void)logger.record(draft);
        for (int row = 0; row < samples.editor->table().rowCount(); ++row)
            rows.push_back(*samples.editor->table().row(row));
        context = workbench::ReportContext(u"jdoe"_s, samples.csvPath(), rows);
    }

    const FileStateGuard guard;
    const SampleFixture samples;
    std::vector<RowNode> rows;
    workbench::ReportContext context;
    NoPassword people;
    std::unique_ptr<ozm::audit::Store> store;
    ozm::audit::Logger logger;
    ozm::audit::SigningSession session;
    ozm::audit::TrailModel model;
};

using Made = std::shared_ptr<QWidget>;
using Maker = std::function<Made(Laboratory &)>;

struct WindowRow
{
    const char *name;
    Maker make;
};

const ozm::audit::Person kReviewer{u"mroe"_s, u"Mary Roe"_s, u"reviewer"_s};

Made trailView(Laboratory &laboratory)
{
    auto view = std::make_unique<ozm::audit::TrailView>(*laboratory.store);
    view->setLogger(&laboratory.logger, kReviewer);
    view->setSigningSession(&laboratory.session);
    view->resize(1000, 700);
    return view;
}

Made signDialog(Laboratory &laboratory)
{
    const auto content = ozm::audit::SignedContent::of(
        *laboratory.store, ozm::audit::NumberSet(ozm::audit::NumberSet::Run{2, 3}));
    return std::make_unique<ozm::audit::SignDialog>(laboratory.session, content.value());
}

Made messageBox(Laboratory &)
{
    auto box = std::make_unique<ozm::OzmMessageBox>();
    box->setIcon(QMessageBox::Question);
    box->setText(u"Save the changes?"_s);
    box->setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box->setDetailedText(u"Three samples were changed."_s);
    return box;
}

Made templateEditor(Laboratory &)
{
    auto editor = std::make_unique<SampleTemplateEditor>();
    (void)editor->setSourceText(EditorFixture::wrapped(u"<p>[Sample]</p><script>1</script>"_s));
    editor->findChild<QAction *>(u"findAction"_s)->trigger();
    return editor;
}

template <typename Dialog>
Made plain(Laboratory &)
{
    return std::make_unique<Dialog>();
}

const std::vector<WindowRow> &windows()
{
    using namespace ozm::audit;
    static const std::vector<WindowRow> rows{
        {"workbench",
         [](Laboratory &l) {
             return std::make_unique<workbench::MainWindow>(*l.samples.editor, l.samples.trailPath());
         }},
        {"workbench, first steps",
         [](Laboratory &) {
             const std::shared_ptr<workbench::FirstStepsSession> session =
                 std::move(workbench::FirstStepsSession::make(u"jdoe"_s)).value();
             return Made(session, &session->window());
         }},
        {"workbench, new sample",
         [](Laboratory &l) { return std::make_unique<workbench::AddSampleDialog>(*l.samples.editor); }},
        {"workbench, report",
         [](Laboratory &l) { return std::make_unique<workbench::ReportDialog>(l.rows, l.context); }},
        {"workbench, template editor",
         [](Laboratory &l) {
             return std::make_unique<workbench::WorkbenchTemplateEditor>(l.rows, l.context);
         }},
        {"workbench, style", plain<workbench::StyleDialog>},
        {"template editor", templateEditor},
        {"trail", trailView},
        {"trail, reason",
         [](Laboratory &) {
             return std::make_unique<ReasonDialog>(u"Charge of T12"_s, ReasonPolicy::Demand::FromList,
                                                   QStringList{u"Typing error"_s});
         }},
        {"trail, reason in words",
         [](Laboratory &) {
             return std::make_unique<ReasonDialog>(u"Charge of T12"_s, ReasonPolicy::Demand::Required,
                                                   QStringList());
         }},
        {"trail, signature", signDialog},
        {"trail, review",
         [](Laboratory &l) { return std::make_unique<ReviewDialog>(l.model, l.logger, kReviewer); }},
        {"trail, history",
         [](Laboratory &l) {
             return std::make_unique<SubjectHistory>(*l.store, u"Label"_s, u"{\"Name\":\"T1\"}"_s);
         }},
        {"message box", messageBox},
        {"open file", plain<FileDialog>},
        {"save file",
         [](Laboratory &) {
             auto dialog =
                 std::make_unique<FileDialog>(nullptr, u"Save table"_s, QString(), u"Tables (*.csv)"_s);
             dialog->setAcceptMode(QFileDialog::AcceptSave);
             return dialog;
         }},
        {"open data", plain<SpectrumFileDialog>},
        {"find data", plain<FileCrawlerDialog>},
        {"saved",
         [](Laboratory &l) {
             return std::make_unique<openfilefolderdialog>(nullptr, QString(), l.samples.csvPath(), QString(),
                                                           true, true);
         }},
    };
    return rows;
}

/// How a window comes up.
struct Look
{
    const char *name;
    QPalette palette;
    int points = 0; ///< Of the font; 0 is the usual one.
    QLocale::Language language = QLocale::English;
    bool isLong = false; ///< Texts are half again as long.
};

const std::vector<Look> &looks()
{
    static const std::vector<Look> rows{
        {"light, English", OZMStyle::palette(Scheme::Light)},
        {"dark, German", OZMStyle::palette(Scheme::Dark), 0, QLocale::German},
        {"high contrast, 8 points, French", palettes().constLast().second, 8, QLocale::French},
        {"light, 20 points", OZMStyle::palette(Scheme::Light), 20},
        {"dark, long texts", OZMStyle::palette(Scheme::Dark), 0, QLocale::English, true},
    };
    return rows;
}

/// Texts that are half again as long, as those of another language may be.
class LongTexts : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text, const char *, int) const override
    {
        // The names of keys are read back.
        const QString source = QString::fromUtf8(text);
        if (qstrcmp(context, "QShortcut") == 0 || source.size() < 2)
            return {};
        // In front, where neither a key, nor an ending of files, nor a placeholder is in the way.
        return QString((source.size() + 1) / 2, u'o') + source;
    }
};

/// Sets up a look, and the usual one at the end.
class LookGuard
{
public:
    explicit LookGuard(const Look &look)
        : m_font(QApplication::font())
    {
        for (const QString &name : {u"ozm_widgets"_s, u"ozm_audit"_s, u"workbench"_s})
            (void)ozm::OzmCoreApplication::loadTranslation(look.language, name);
        if (look.isLong)
            QCoreApplication::installTranslator(&m_long);
        QFont font = m_font;
        if (look.points > 0)
            font.setPointSize(look.points);
        QApplication::setFont(font);
        QApplication::setPalette(look.palette);
    }
    ~LookGuard()
    {
        QCoreApplication::removeTranslator(&m_long);
        QApplication::setFont(m_font);
    }
    Q_DISABLE_COPY_MOVE(LookGuard)

private:
    const QFont m_font;
    LongTexts m_long;
};

} // namespace

class TestAccessibility : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        OZMStyle::apply();
        QAccessible::setActive(true);
        // Dialogs show the current folder, and a path can be longer than any room for it.
        QDir::setCurrent(QDir::rootPath());
    }

    void windowsAreForAll_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<Look>("look");
        for (int i = 0; i < int(windows().size()); ++i)
            for (const Look &look : looks())
                QTest::addRow("%s, %s", windows()[std::size_t(i)].name, look.name) << i << look;
    }

    void windowsAreForAll()
    {
        QFETCH(const int, index);
        QFETCH(const Look, look);
        const LookGuard guard(look);
        Laboratory laboratory;
        const Made window = windows()[std::size_t(index)].make(laboratory);
        // Who needs large letters has a large screen; the one of the tests is small.
        if (qobject_cast<QMainWindow *>(window.get()))
            window->resize(window->size().expandedTo({1720, 1000}));
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QApplication::processEvents();

        const Inspection found = inspect(*window);
        qInfo("%3d controls, text %4.1f, icons %4.1f", found.controls, found.textContrast,
              found.iconContrast);
        if (const QString folder = qEnvironmentVariable("OZM_PICTURES"); !folder.isEmpty())
            window->grab().save(folder + u'/' + QString::fromLatin1(QTest::currentDataTag()) + u".png"_s);
        QVERIFY2(found.findings.isEmpty(), qPrintable(u'\n' + found.findings.join(u'\n')));
    }
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
