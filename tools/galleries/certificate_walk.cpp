// Makes a certificate in the template editor as a person would, by mouse and keyboard alone, prints it, and sets the
// pages of the PDF beside those of the preview: certificate_walk <folder> [dark]. A picture is left of each step. Fails
// where a step leads nowhere, or where editor, preview and PDF show different things.

#include "galleries/Person.h"
#include "galleries/PrintedPages.h"
#include "reports/WorkbenchTemplateEditor.h"
#include "samples/SampleTable.h"

#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>
#include <ozm_widgets/ReportView.h>
#include <ozm_widgets/TemplateDocument.h>

#include <QLabel>
#include <QPlainTextEdit>
#include <QTextEdit>

using namespace Qt::StringLiterals;
using namespace workbench;
using namespace ozm::gallery;

namespace {

constexpr int kSamples = 60;
constexpr auto kHeadingKeys = Qt::ControlModifier | Qt::AltModifier;
constexpr auto kInsertKeys = Qt::ControlModifier | Qt::ShiftModifier;
// Letters are drawn with other hints on paper; a line that stands elsewhere makes three times as much.
constexpr int kMostDifference = 60;
// The slower the machine, the later a preview is filled anew.
constexpr int kMostPreviewMs = 30000;
// The numbers of the rows, as a share of the width of the page.
constexpr double kFirstColumn = 0.108;

std::vector<RowNode> measuredSamples()
{
    const QStringList sequences{u"SAMPLERPEPTIDE"_s, u"LVNELTEFAK"_s, u"YLYEIAR"_s, u"EVQLVESGGGLVQPGGSLR"_s};
    const QList<double> masses{1523.7102, 1162.6234, 926.4862, 1880.9956};
    std::vector<RowNode> rows;
    for (int number = 1; number <= kSamples; ++number) {
        RowNode row = SampleTable::emptyRow();
        row.setDataAt(u"Name"_s, u"HC-T%1"_s.arg(number, 2, 10, QChar(u'0')));
        row.setDataAt(u"Sequence"_s, sequences.at(number % sequences.size()));
        row.setDataAt(u"Mass"_s, masses.at(number % masses.size()));
        row.setDataAt(u"Charge"_s, 2 + number % 2);
        rows.push_back(row);
    }
    return rows;
}

class Walk
{
public:
    Walk(AbstractTemplateEditor &editor, const QString &folder)
        : m_editor(editor)
        , m_folder(folder)
        , m_person(editor, folder)
        , m_preview(*editor.findChild<ozm::ReportView *>(u"previewPages"_s))
        , m_text(*editor.findChild<QTextEdit *>(u"richView"_s))
    {}

    bool run()
    {
        writeLetter();
        showPlot();
        writeTable();
        setUpPages();
        changeFormat();
        chooseData();
        checkSource();
        save();
        comparePages();
        return !m_person.isLost();
    }

private:
    void writeHeading(int level, const QString &text)
    {
        m_person.press(Qt::Key_0 + level, kHeadingKeys);
        m_person.type(text + u'\n');
    }

    void writeLetter()
    {
        QTest::mouseClick(m_text.viewport(), Qt::LeftButton, {}, {40, 20});
        writeHeading(1, u"Certificate of [Name]"_s);
        m_person.take(u"heading"_s);
        m_person.type(
            u"The peptide [Sequence] was measured on the instrument of our laboratory, and its mass was "
            "found to be "_s);
        m_person.answer(u"number"_s, {{u"formatCode"_s, u"Mass"_s},
                                      {u"formatKind"_s, u"Number"_s},
                                      {u"formatDigits"_s, u"2"_s},
                                      {u"formatThousands"_s, u"Comma"_s},
                                      {u"formatUnit"_s, u"Da"_s}});
        m_person.choose(u"insertMenu"_s, u"codeFormatAction"_s);
        m_person.type(u" by three injections, with the charge [Charge]+. Reported on "_s);
        m_person.answer(u"date"_s, {{u"formatCode"_s, u"ReportTime"_s},
                                    {u"formatKind"_s, u"Date"_s},
                                    {u"formatPattern"_s, u"d MMMM yyyy"_s}});
        m_person.pressShortcut(Qt::Key_M, kInsertKeys);
        m_person.type(u".\nThe mass is above 1500 Da: the calibration for heavy peptides was used.\n"_s);
        m_person.take(u"letter"_s);
        m_person.press(Qt::Key_Up);
        m_person.answer(u"condition"_s, {{u"conditionCode"_s, u"Mass"_s},
                                         {u"conditionTest"_s, u"is above"_s},
                                         {u"conditionValue"_s, u"1500"_s}});
        m_person.pressShortcut(Qt::Key_K, kInsertKeys);
        m_person.press(Qt::Key_End, Qt::ControlModifier);
        m_person.take(u"condition"_s);
    }

    void showPlot()
    {
        writeHeading(2, u"Expected ions"_s);
        m_person.answer(u"plot"_s, {{u"formatCode"_s, u"IonPlot"_s},
                                    {u"formatKind"_s, u"Image"_s},
                                    {u"formatWidth"_s, u"480"_s},
                                    {u"formatAlternative"_s, u"Expected ions over m/z"_s}});
        m_person.clickButton(u"codeFormatAction"_s);
        m_person.type(u"\n"_s);
        m_person.take(u"plot"_s);
    }

    void writeTable()
    {
        writeHeading(2, u"All samples of the batch"_s);
        m_person.answer(
            u"table"_s,
            {{u"tableRows"_s, u"2"_s}, {u"tableColumns"_s, u"4"_s}, {u"tableHeading"_s, QString()}});
        m_person.clickButton(u"insertTableAction"_s);
        m_person.type(u"No.\tName\tSequence\tMass\t[RowNumber]\t[Name]\t[Sequence]\t"_s);
        m_person.answer(u"row-number"_s, {{u"formatCode"_s, u"Mass"_s},
                                          {u"formatKind"_s, u"Number"_s},
                                          {u"formatDigits"_s, u"4"_s},
                                          {u"formatUnit"_s, u"Da"_s}});
        m_person.choose(u"insertMenu"_s, u"codeFormatAction"_s);
        m_person.take(u"table"_s);
        m_person.answer(u"repeat"_s, {{u"repeatOf"_s, u"Samples"_s}, {u"repeatSort"_s, u"Name"_s}});
        m_person.pressShortcut(Qt::Key_R, kInsertKeys);
        m_person.press(Qt::Key_End, Qt::ControlModifier);
        m_person.type(u"Issued by [ReportUser]."_s);
        m_person.take(u"repeat"_s);
    }

    void setUpPages()
    {
        m_person.answer(u"page"_s, {{u"pageSize"_s, u"A4"_s},
                                    {u"pageHeader"_s, u"Laboratory 3, [Name]"_s},
                                    {u"pageFooter"_s, u"Checked by hand"_s},
                                    {u"pageName"_s, u"Certificate [Name]"_s},
                                    {u"pageVersion"_s, u"2.1"_s}});
        m_person.choose(u"fileMenu"_s, u"templatePageAction"_s);
        m_person.take(u"page"_s);
    }

    /// A double click on the chip of the number in the letter.
    void changeFormat()
    {
        const auto *document = qobject_cast<ozm::TemplateDocument *>(m_text.document());
        const QString source = document->source();
        const int chip = document->positionOf(source.indexOf(u"data-digits=\"2\""_s));
        QTextCursor before(m_text.document());
        before.setPosition(qMax(0, chip));
        const QPoint place = m_text.cursorRect(before).center() + QPoint(10, 0);
        m_person.answer(u"change"_s, {{u"formatDigits"_s, u"3"_s}});
        QTest::mouseClick(m_text.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(m_text.viewport(), Qt::LeftButton, {}, place);
        m_person.comeBack(u"change"_s);
        m_person.take(u"change"_s);
    }

    /// A sample for which the condition holds.
    void chooseData()
    {
        m_person.pick(*m_editor.findChild<QComboBox *>(u"previewRow"_s), u"HC-T03"_s);
        const bool isFilled = QTest::qWaitFor(
            [this] {
                const QString text = m_preview.toPlainText();
                return text.contains(u"mass was found to be 1,880.996 Da"_s) &&
                       text.contains(u"heavy peptides"_s);
            },
            kMostPreviewMs);
        m_person.take(u"data"_s);
        if (!isFilled)
            m_person.getLost(u"data"_s);
    }

    void checkSource()
    {
        m_person.press(Qt::Key_U, kInsertKeys);
        const QString source = m_editor.findChild<QPlainTextEdit *>(u"plainView"_s)->toPlainText();
        m_person.take(u"source"_s);
        for (
            const QString &part :
            {u"<!--ozm:page size=\"A4\""_s, u"header=\"Laboratory 3, [Name]\" footer=\"Checked by hand\""_s,
             u"name=\"Certificate [Name]\" version=\"2.1\"-->"_s, u"<h1>Certificate of [Name]</h1>"_s,
             u"<span data-format=\"number\" data-digits=\"3\" data-thousands=\",\" data-unit=\"Da\">[Mass]</span>"_s,
             u"<span data-format=\"date\" data-pattern=\"d MMMM yyyy\">[ReportTime]</span>"_s,
             u"<!--ozm:if code=\"Mass\" is=\"above\" value=\"1500\"-->"_s, u"<!--ozm:end-->"_s,
             u"<span data-format=\"image\" data-width=\"480\" data-alternative=\"Expected ions over "
             "m/z\">[IonPlot]</span>"_s,
             u"<thead><tr><th>No.</th><th>Name</th><th>Sequence</th><th>Mass</th></tr></thead>"_s,
             u"<tr><td>[RowNumber]</td><td>[Name]</td><td>[Sequence]</td><td><!--ozm:repeat-row "
             u"of=\"Samples\" "
             "sort=\"Name\"--><span data-format=\"number\" data-digits=\"4\" data-unit=\"Da\">[Mass]</span></td>"_s})
            if (!source.contains(part))
                m_person.getLost(part);
        m_person.press(Qt::Key_F, kInsertKeys);
    }

    void save()
    {
        m_person.answerPath(u"save"_s, m_folder + u"/certificate.ozt"_s);
        m_person.pressShortcut(Qt::Key_S, Qt::ControlModifier);
        m_person.answerPath(u"pdf"_s, pdf());
        m_person.clickButton(u"pdfAction"_s);
        m_person.take(u"saved"_s);
        if (m_editor.isModified() || !QFile::exists(m_folder + u"/certificate.ozt"_s))
            m_person.getLost(u"save"_s);
    }

    [[nodiscard]] QString pdf() const { return m_folder + u"/certificate.pdf"_s; }

    void comparePages()
    {
        const QStringList printed = pdfPages(pdf());
        const auto count = int(printed.size());
        qInfo("%d pages in the preview, %d in the PDF", m_preview.pageCount(), count);
        if (count < 2 || m_preview.pageCount() != count)
            return m_person.getLost(u"pages"_s);
        QStringList rows;
        QStringList left;
        for (int page = 1; page <= count; ++page) {
            comparePage(page, count, printed.at(page - 1));
            rows += rowsIn(printed.at(page - 1));
            left += wordsOf(printed.at(page - 1));
        }
        QStringList expected;
        for (int number = 1; number <= kSamples; ++number)
            expected.append(QString::number(number));
        if (rows != expected)
            m_person.getLost(u"rows "_s + rows.join(u' '));
        const QStringList words = wordsOf(m_preview.toPlainText().remove(QChar::ObjectReplacementCharacter));
        for (const QString &word : words)
            if (!left.removeOne(word))
                m_person.getLost(u"\"%1\" of the preview, in the PDF"_s.arg(word));
        // The plot, and the edges of the pages.
        qInfo("all %d words of the preview are in the PDF, and \"%s\"", int(words.size()),
              qPrintable(left.join(u' ')));
    }

    /// The numbers of the rows of the table.
    static QStringList rowsIn(const QString &text)
    {
        static const QRegularExpression row(u"^\\s*(\\d+)\\s+HC-T\\d+\\b"_s,
                                            QRegularExpression::MultilineOption);
        QStringList rows;
        for (auto match = row.globalMatch(text); match.hasNext();)
            rows.append(match.next().captured(1));
        return rows;
    }

    void comparePage(int page, int count, const QString &printed)
    {
        SeenPages seen(m_preview);
        const QImage onScreen = seen.picture(page);
        const QImage onPaper = pdfPicture(pdf(), page, onScreen.size());
        sideBySide(onScreen, onPaper).save(m_folder + u"/page-%1.png"_s.arg(page));
        const int difference = coarseDifference(onScreen, onPaper);
        if (difference > kMostDifference)
            m_person.getLost(u"picture of page %1"_s.arg(page));
        const QString words = wordsOf(printed).join(u' ');
        for (const QString &edge :
             {u"Laboratory 3, HC-T03"_s, u"Certificate HC-T03 · Version 2.1 · Checked by hand"_s,
              u"Page %1 of %2"_s.arg(page).arg(count), u"No. Name Sequence Mass"_s})
            if (!words.contains(edge))
                m_person.getLost(u"\"%1\" on page %2"_s.arg(edge).arg(page));
        QStringList rows = seen.wordsDown(page, kFirstColumn);
        rows.removeIf([](const QString &word) { return word.toInt() == 0; });
        if (rows != rowsIn(printed))
            m_person.getLost(u"rows \"%1\" on page %2"_s.arg(rows.join(u' ')).arg(page));
        qInfo("page %d: rows %s to %s in both, grey differs by %d", page, qPrintable(rows.value(0)),
              qPrintable(rows.value(rows.size() - 1)), difference);
    }

    AbstractTemplateEditor &m_editor;
    const QString m_folder;
    Person m_person;
    ozm::ReportView &m_preview;
    QTextEdit &m_text;
};

int walk(const QString &folder)
{
    const std::vector<RowNode> rows = measuredSamples();
    WorkbenchTemplateEditor editor(rows, ReportContext(u"jane"_s, u"samples.csv"_s, rows));
    editor.setAttribute(Qt::WA_DeleteOnClose, false);
    editor.show();
    editor.activateWindow();
    if (!QTest::qWaitForWindowActive(&editor))
        return 1;
    return Walk(editor, folder).run() ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString folder = QDir(arguments.value(1, u"."_s)).absolutePath();
    if (!QDir().mkpath(folder))
        return 1;
    for (const QString &former : {u"certificate.ozt"_s, u"certificate.pdf"_s})
        QFile::remove(folder + u'/' + former);
    QStandardPaths::setTestModeEnabled(true);
    // A walk that was ended would have its rescued template offered.
    QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
    QLocale::setDefault(QLocale(u"en"_s));
    ozm::OzmCoreApplication::start();
    QApplication::setPalette(OZMStyle::palette(arguments.value(2) == u"dark"_s ? OZMStyle::Scheme::Dark
                                                                               : OZMStyle::Scheme::Light));
    return walk(folder);
}
