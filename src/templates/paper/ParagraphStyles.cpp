#include "templates/paper/ParagraphStyles.h"

#include "templates/document/LetterSizes.h"

#include <ozm_widgets/ReportPaper.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

struct StyleRow
{
    QLatin1StringView className;
    const char *name;
    QLatin1StringView rules;
};

// Of names that no template has for something else.
constexpr std::array kStyles{
    StyleRow{editor::kTitleClass, QT_TRANSLATE_NOOP("ozm::editor::ParagraphStyles", "Title"),
             "font-size: 20pt; font-weight: bold; margin-top: 0px; margin-bottom: 10px;"_L1},
    StyleRow{"report-table-heading"_L1, QT_TRANSLATE_NOOP("ozm::editor::ParagraphStyles", "Table heading"),
             "font-weight: bold; color: #24506f; margin-top: 0px; margin-bottom: 0px;"_L1},
    StyleRow{"report-caption"_L1, QT_TRANSLATE_NOOP("ozm::editor::ParagraphStyles", "Caption"),
             "font-size: 8pt; font-style: italic; margin-top: 3px; margin-bottom: 10px;"_L1},
    StyleRow{"report-note"_L1, QT_TRANSLATE_NOOP("ozm::editor::ParagraphStyles", "Note"),
             "font-size: 8pt; color: #51606d; margin-top: 4px; margin-bottom: 4px;"_L1},
};

// Paragraphs that nobody writes: those of a table of contents. The layout takes their left margins for dots of paper.
constexpr auto kContentsRules =
    ".report-contents-title { font-weight: bold; margin-top: 0px; margin-bottom: 4px; }\n"
    ".report-contents-1 { font-weight: bold; margin: 0px; }\n"
    ".report-contents-2 { margin-top: 0px; margin-bottom: 0px; margin-left: 50px; }\n"
    ".report-contents-3 { margin-top: 0px; margin-bottom: 0px; margin-left: 100px; }\n"
    ".report-contents-4 { margin-top: 0px; margin-bottom: 0px; margin-left: 150px; }\n"
    ".report-contents-5 { margin-top: 0px; margin-bottom: 0px; margin-left: 200px; }\n"
    ".report-contents-6 { margin-top: 0px; margin-bottom: 0px; margin-left: 250px; }\n"
    ".report-contents-page { margin: 0px; }\n"_L1;

} // namespace

QString paragraphStyleSheet()
{
    QString sheet;
    for (const StyleRow &style : kStyles)
        sheet += u'.' + style.className + " { "_L1 + style.rules + " }\n"_L1;
    return sheet + kContentsRules;
}

QList<editor::ParagraphStyle> editor::paragraphStyles(const QString &styleSheet)
{
    QList<ParagraphStyle> styles;
    for (const StyleRow &style : kStyles)
        styles.append({style.className.toString(),
                       QCoreApplication::translate("ozm::editor::ParagraphStyles", style.name)});
    static const QRegularExpression rule(u"(?:^|[\\s,}])p?\\.([A-Za-z_][\\w-]*)(?=\\s*[,{])"_s);
    for (auto rules = rule.globalMatch(styleSheet); rules.hasNext();) {
        const QString name = rules.next().captured(1);
        if (std::ranges::find(styles, name, &ParagraphStyle::className) == styles.end())
            styles.append({name, name});
    }
    return styles;
}

QTextCharFormat editor::lookOfClass(const QString &className, const QString &styleSheet)
{
    QTextDocument document;
    document.setDefaultStyleSheet(paragraphStyleSheet() + styleSheet);
    document.setHtml(u"<p class=\"%1\">x</p>"_s.arg(className));
    sizeLettersInPoints(document);
    return document.begin().begin().fragment().charFormat();
}

} // namespace ozm
