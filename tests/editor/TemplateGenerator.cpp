#include "editor/TemplateGenerator.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

QString TemplateGenerator::oneOf(std::initializer_list<const char *> choices)
{
    return QString::fromUtf8(choices.begin()[below(int(choices.size()))]);
}

QString TemplateGenerator::word()
{
    return oneOf({"mass",      "5 &lt; 7",      "a  b",  "&nbsp;x",    "µm",         "peptide",    "R&amp;D",
                  "10 %1",     "«ß»",           " and ", "[",          "]",          "x < 3",      "𝛼-helix",
                  "tab\tbed",  "&eacute;",      "m/z",   "1\u2009000", "2&thinsp;m", "3&#8239;Da", "]] --",
                  "&lt;b&gt;", "two\r\n  lines"});
}

QString TemplateGenerator::code()
{
    return oneOf({"[Name]", "[Charge]", "[m/z]", "[Retention time (min)]", "[a[b]", "[A&B]", "[%1]", "[äöü]",
                  "[0]", "[Name][Name]", "[x<y]",
                  "<span data-format=\"number\" data-digits=\"2\">[Mass]</span>"});
}

QString TemplateGenerator::script()
{
    return oneOf({"<script>1 + 1</script>", "<script>inputParameters[\"[Name]\"] + \"<b>&amp;</b>\"</script>",
                  "<SCRIPT>var a = 1;\n  if (a < 2 && a > 0) { a = '</p>'; }\n a</SCRIPT>",
                  "<script></script>", "<script>a<script>b</script>c</script>",
                  "<script>\"[Charge]\" // \\u0041\n</script>"});
}

QString TemplateGenerator::image()
{
    // Two equal links side by side would be one link.
    if (chance(20)) {
        return u"<a href=\"https://example.org/?q=[Name]&amp;n=%1\"><img src=\"l.png\"></a>"_s.arg(
            below(1'000'000));
    }
    return oneOf({"<img "
                  "src=\"data:image/"
                  "png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+"
                  "M9QDwADhgGAWjR9awAAAABJRU5ErkJggg==\" width=\"16\" height=\"16\">",
                  "<img src='logo.png' alt='the logo'/>", "<img src=\"[Photo]\" width=40>",
                  "<img src=\"x.png\" style=\"float:right\">"});
}

QString TemplateGenerator::inlines(int depth)
{
    QString html;
    for (int i = below(4) + 1; i > 0; --i) {
        const int kind = below(14);
        if (kind < 4 || depth > 3) {
            html += word();
        } else if (kind < 8) {
            html += code();
        } else if (kind < 9) {
            html += script();
        } else if (kind < 10) {
            html += image();
        } else {
            const QString tag =
                oneOf({"b", "i", "u", "s", "sub", "sup", "em", "strong", "tt", "big", "small"});
            html += chance(25)
                        ? u"<span style=\"%1\">"_s.arg(oneOf(
                              {"color:#ff0000", "font-size:14pt", "font-family:'Arial'; font-weight:600",
                               "background-color:yellow", "text-decoration: underline; font-style:italic",
                               "letter-spacing:2px"})) +
                              inlines(depth + 1) + u"</span>"_s
                        : u'<' + tag + u'>' + inlines(depth + 1) + "</"_L1 + tag + u'>';
        }
        html += oneOf({"", " ", "<br>", ""});
    }
    return html;
}

QString TemplateGenerator::list(int depth)
{
    const QString tag = oneOf({"ul", "ol"});
    QString html = u'<' + tag + oneOf({"", " type=\"square\"", " type=\"A\""}) + ">\n"_L1;
    for (int i = below(3) + 1; i > 0; --i) {
        html += "<li>"_L1 + oneOf({"", "", "", "<!--ozm:repeat-row of=\"Ions\"-->"}) + inlines(depth) +
                (depth < 3 && chance(25) ? list(depth + 1) : QString());
        html += chance(70) ? u"</li>\n"_s : u"\n"_s;
        html += chance(10) ? oneOf({"<li></li>", "<li>\n", "<li class=k> </li>\r\n"}) : QString();
    }
    return html + (chance(5) ? script() : QString()) + "</"_L1 + tag + ">\n"_L1;
}

QString TemplateGenerator::table(int depth)
{
    const int columns = below(3) + 1;
    QString html = u"<table%1>"_s.arg(
        oneOf({"", " border=\"1\"", " width=\"100%\" cellpadding=\"4\" cellspacing=\"0\"",
               " style=\"border-collapse:collapse\" border=2", " align=\"center\"",
               " class=k style=\"border:3px dotted #c00; float:right; page-break-before:always\""}));
    if (chance(10))
        html += u"<caption>Table [Name]</caption>"_s;
    if (chance(30)) {
        html += "<thead><tr>"_L1;
        for (int c = 0; c < columns; ++c)
            html += "<th>"_L1 + (depth < 2 && chance(15) ? block(depth + 1) : inlines(3)) + "</th>"_L1;
        html += "</tr></thead>"_L1;
    }
    for (int r = below(3) + 1; r > 0; --r) {
        html += chance(10) ? script() + "<tr>"_L1 : u"<tr>"_s;
        if (columns > 1 && chance(20)) {
            html += u"<td colspan=\"%1\" bgcolor=\"#eeeeee\">"_s.arg(columns) + inlines(2) + "</td>"_L1;
        } else {
            for (int c = 0; c < columns; ++c) {
                html += u"<td%1>"_s.arg(oneOf({"", " align=\"right\"", " valign=\"top\"",
                                               " style=\"color:[Colour]\"", " width=\"30%\"", "", "",
                                               " style='border-left:1px solid red; padding:7px' class=y"}));
                if (chance(8)) {
                    html += u"</td>"_s;
                    continue;
                }
                html += depth < 2 && chance(15) ? block(depth + 2) : inlines(2);
                html += chance(85) ? u"</td>"_s : QString();
            }
        }
        html += u"</tr>\n"_s;
    }
    return html + u"</table>\n"_s;
}

QString TemplateGenerator::hostile()
{
    return oneOf({"<!-- a [comment] <script>no</script> -->",
                  "</div></p>",
                  "<b><p>crossed</b> [Name]</p>",
                  "<unknown [Name]>x</unknown>",
                  "<style>p { color: red }</style>",
                  "<svg><text>[Name]</text></svg>",
                  "<p style=\"color:[Colour]\">coloured</p>",
                  "<input value=\"[Name]\">",
                  "<",
                  "&;",
                  "<3",
                  "</script>",
                  "<script type=\"text/x\">kept</script>",
                  "<p>\xEE\x80\x80private</p>",
                  "<![CDATA[ x ]]>",
                  "<pre>one\n  two [Name]\n</pre>",
                  "<div class=a\">odd quote</div>",
                  "<table></table>",
                  "<ul></ul>",
                  "<p>open<p id=z>again [Name]",
                  "<div class=a>text<p>line</p><p class=b>line [Name]</p>rest</div>",
                  "<center>in the middle</center>",
                  "<font color=red>[Name]</font> loose",
                  "<dl><dt>term<dd>[Name]</dl>",
                  "<p style='border:1px solid'>b</p>",
                  "<h2 style='page-break-before:always' id=q>new page</h2>"});
}

QString TemplateGenerator::block(int depth)
{
    const int kind = below(12);
    if (kind < 2 && depth < 3)
        return table(depth + 1);
    if (kind < 4)
        return list(depth + 1);
    if (kind == 4)
        return script() + u'\n';
    if (kind == 5)
        return hostile() + u'\n';
    if (kind == 6) {
        return oneOf(
            {"<hr>", "<p></p>", "<p>&nbsp;</p>", "<p style=\"-qt-paragraph-type:empty\"><br/></p>", "<br>"});
    }
    const QString tag = oneOf({"p", "div", "h1", "h2", "h3", "h6", "p", "p", "blockquote"});
    const QString style =
        oneOf({"", "", "", " align=\"center\"", " style=\"margin-left:40px\"", " style=\"text-align:right\"",
               " style=\"background-color:#ddeeff\"", " style=\"line-height:150%\"",
               " style=\"margin-top:0px; margin-bottom:6px\"", " class=\"report-note\"",
               " CLASS='lead  two' align=right", " class=report-title"});
    return u'<' + tag + style + u'>' + inlines(0) + "</"_L1 + tag + ">\n"_L1;
}

QStringList TemplateGenerator::blocksWithLines()
{
    QStringList all;
    if (chance(10))
        all += oneOf({"<!--ozm:page size=\"A5\" header=\"Lot [Name]\"-->\n",
                      "<div><!--ozm:contents levels=\"2\" title=\"Of [Name]\"--></div>\n"});
    for (int i = below(8) + 1; i > 0; --i) {
        const bool isSection = chance(15);
        if (isSection)
            all += oneOf({"<!--ozm:repeat of=\"Ions\" sort=\"Mass\"-->\n",
                          "<p><!--ozm:if code=\"Mass\" is=\"above\" value=\"1\"--></p>\n"});
        all += block(0);
        if (isSection)
            all += oneOf({"<!--ozm:end-->\n", "<p><!--ozm:else--></p>\n<p>none</p><!--ozm:end-->\n"});
    }
    return all;
}

QStringList TemplateGenerator::blocks()
{
    QStringList all = blocksWithLines();
    if (chance(15))
        all.replaceInStrings(QRegularExpression(u"\r?\n"_s), u"\r\n"_s);
    return all;
}

QString TemplateGenerator::next()
{
    QString html = blocks().join(QString());
    if (chance(20)) {
        html = "<html><head><title>[Name]</title></head><body style=\"font-family:'Arial'\">"_L1 + html +
               "</body></html>"_L1;
    }
    return html;
}
