#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <algorithm>
#include <array>

/// The elements of HTML by what the reader of rich text makes of them.
namespace ozm::editor {

using namespace Qt::StringLiterals;

// Rich text shows nothing of these, or shows their inner text as if it were the page's.
inline constexpr std::array kMarkupElements{"area"_L1,   "audio"_L1, "base"_L1,     "button"_L1, "canvas"_L1,
                                            "embed"_L1,  "form"_L1,  "head"_L1,     "iframe"_L1, "input"_L1,
                                            "link"_L1,   "map"_L1,   "math"_L1,     "object"_L1, "picture"_L1,
                                            "select"_L1, "svg"_L1,   "template"_L1, "video"_L1};

// Only their own kind of children may stand in these: anything else is moved out when the page is read.
inline constexpr std::array kStructureElements{"colgroup"_L1, "dl"_L1,    "ol"_L1, "table"_L1, "tbody"_L1,
                                               "tfoot"_L1,    "thead"_L1, "tr"_L1, "ul"_L1};

// A table or list that holds these is kept as it is: rich text would lose them.
inline constexpr std::array kKeepWholeElements{"caption"_L1, "col"_L1, "colgroup"_L1, "tfoot"_L1};

inline constexpr std::array kTableParts{"tbody"_L1, "td"_L1,      "tfoot"_L1, "th"_L1,      "thead"_L1,
                                        "tr"_L1,    "caption"_L1, "col"_L1,   "colgroup"_L1};

// Blanks at the edges of these elements mean nothing, but the reader would keep one after a marker.
inline constexpr std::array kBlockElements{
    "blockquote"_L1, "body"_L1, "br"_L1,    "div"_L1, "dd"_L1,    "dl"_L1,  "dt"_L1,
    "h1"_L1,         "h2"_L1,   "h3"_L1,    "h4"_L1,  "h5"_L1,    "h6"_L1,  "head"_L1,
    "hr"_L1,         "html"_L1, "li"_L1,    "ol"_L1,  "p"_L1,     "pre"_L1, "table"_L1,
    "tbody"_L1,      "td"_L1,   "tfoot"_L1, "th"_L1,  "thead"_L1, "tr"_L1,  "ul"_L1};

inline constexpr std::array kLineElements{"div"_L1, "h1"_L1, "h2"_L1, "h3"_L1,
                                          "h4"_L1,  "h5"_L1, "h6"_L1, "p"_L1};

struct SpaceRow
{
    QLatin1StringView name;
    char16_t character;
};

inline constexpr std::array kSpaces{SpaceRow{"ensp"_L1, 0x2002},   SpaceRow{"emsp"_L1, 0x2003},
                                    SpaceRow{"numsp"_L1, 0x2007},  SpaceRow{"puncsp"_L1, 0x2008},
                                    SpaceRow{"thinsp"_L1, 0x2009}, SpaceRow{"hairsp"_L1, 0x200A}};

// The reader folds these; it would fold others, too, which are parts of their own so that they stay.
inline bool isBlank(QChar c)
{
    return QStringView(u" \t\n\r\u2028\u2029").contains(c);
}

inline bool isBlankText(QStringView text)
{
    return std::ranges::all_of(text, isBlank);
}

} // namespace ozm::editor
