#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringView>

#include <array>
#include <optional>
#include <variant>

/// How instructions for filling a template are written in it.
namespace ozm::instructions {

using namespace Qt::StringLiterals;

/// The context of all texts about instructions.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ozm::instructions)
};

/// The part of the template that an instruction is about.
enum class Extent
{
    Section, ///< Up to the instruction "end".
    Row      ///< The table row or list item around it.
};

struct SortKey
{
    QString code = {}; ///< Without brackets.
    bool isDescending = false;

    bool operator==(const SortKey &) const = default;
};

/// Has a part repeat for each row of data.
struct Repeat
{
    Extent extent = Extent::Section;
    QString of = {}; ///< The name of a list of rows; empty for the rows of the report.
    QList<SortKey> sort =
        {}; ///< Each is for rows that are alike in those before; without, the rows keep their order.
    QString empty = {}; ///< Shown where there is no row.

    bool operator==(const Repeat &) const = default;
};

enum class Test
{
    Present,
    Absent,
    Equals,
    Differs,
    Above,
    Below
};

/// Has a part shown only where a code answers a test.
struct Condition
{
    Extent extent = Extent::Section;
    QString code = {}; ///< Without brackets.
    Test test = Test::Present;
    QString value = {};

    bool operator==(const Condition &) const = default;
};

/// Begins the other part of the section that was begun last: for a condition that does not hold, and for no row.
struct Else
{
    bool operator==(const Else &) const = default;
};

/// Ends the section that was begun last.
struct End
{
    bool operator==(const End &) const = default;
};

enum class FormatKind
{
    Text,
    Number,
    Date,
    Image
};

enum class LetterCase
{
    AsIs,
    Upper,
    Lower
};

enum class Total
{
    None,
    Sum,
    Mean,
    Smallest,
    Largest,
    Count
};

/// The way in which the value of one code is shown.
struct CodeFormat
{
    QString code = {}; ///< Without brackets.
    FormatKind kind = FormatKind::Text;
    QString empty = {};  ///< Shown in the place of no value.
    bool isHtml = false; ///< The value is put in as HTML rather than as text.
    LetterCase letterCase = LetterCase::AsIs;
    int digits = -1; ///< After the point; -1 for as many as there are.
    QString thousands = {};
    QString decimal = QStringLiteral(".");
    double factor = 1;
    QString unit = {};        ///< Stands behind a number, after a blank.
    QString pattern = {};     ///< Of a date.
    int width = 0;            ///< Of an image, in pixels; 0 for its own.
    QString alternative = {}; ///< In the place of an image that is not shown.
    Total total = Total::None;
    QString of = {}; ///< The list of a total; empty for the rows of the report.

    bool operator==(const CodeFormat &) const = default;
};

/// Sets up the pages of the report.
struct Page
{
    QString size = {}; ///< "A4" and the like; empty for that of the application or printer.
    bool isLandscape = false;
    QList<int> margins = {}; ///< Top, right, bottom and left, in millimetres; empty for the usual ones.
    QString header = {};     ///< With codes; at the top of each page.
    QString footer = {};     ///< With codes; at the foot, beside the number of the page.
    QString name = {};       ///< Of the document, with codes; at the foot, and in the file.
    QString version = {};    ///< Of the document, with codes; beside its name.

    bool operator==(const Page &) const = default;
};

/// Stands for the headings of the report with the numbers of their pages.
struct Contents
{
    int levels = 3;     ///< Headings of these, from 1 on.
    QString title = {}; ///< With codes; above the list.

    bool operator==(const Contents &) const = default;
};

using Instruction = std::variant<Repeat, Condition, End, CodeFormat, Page, Else, Contents>;

/// An instruction, or the reason why a text that looks like one is none.
struct Reading
{
    std::optional<Instruction> instruction;
    QString error = {};
};

// More digits than a number can have would only be zeros.
inline constexpr int kMostDigits = 15;
inline constexpr int kMostPixels = 10000;
inline constexpr int kMostMargin = 100;
inline constexpr int kMostLevels = 6;
inline constexpr int kMostSortKeys = 3;
inline constexpr std::array kPageSizes{"A3"_L1, "A4"_L1, "A5"_L1, "Letter"_L1, "Legal"_L1};

/// True for a comment that begins as instructions do.
[[nodiscard]] bool isInstructionComment(QStringView text);
/// True for the start tag of a span that says a format.
[[nodiscard]] bool isFormatTag(QStringView tag);

/// Reads a comment.
[[nodiscard]] Reading readComment(const QString &comment);
/// Reads a span with a format: its start tag, and all that stands in it.
[[nodiscard]] Reading readFormat(const QString &tag, const QString &inner);
/// Reads either of them as a whole; nothing for any other text.
[[nodiscard]] std::optional<Instruction> readInstruction(const QString &source);

[[nodiscard]] QString sourceOf(const Instruction &instruction);

/// The value of an attribute of @p tag, without its entities; null where there is none.
[[nodiscard]] QString attribute(const QString &tag, QLatin1StringView name);

} // namespace ozm::instructions
