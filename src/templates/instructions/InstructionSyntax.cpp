#include "templates/instructions/InstructionSyntax.h"

#include "templates/syntax/Codes.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::instructions {

namespace {

constexpr auto kCommentStart = "<!--ozm:"_L1;
constexpr auto kCommentEnd = "-->"_L1;
constexpr auto kFormatName = "data-format"_L1;
constexpr auto kDataPrefix = "data-"_L1;

constexpr auto kRepeat = "repeat"_L1;
constexpr auto kCondition = "if"_L1;
constexpr auto kElse = "else"_L1;
constexpr auto kEnd = "end"_L1;
constexpr auto kPage = "page"_L1;
constexpr auto kContents = "contents"_L1;
constexpr auto kRowSuffix = "-row"_L1;

template <typename Value>
struct Word
{
    Value value;
    QLatin1StringView text;
};

// Clang finds it by itself from version 17 on.
template <typename Value>
Word(Value, QLatin1StringView) -> Word<Value>;

constexpr std::array kTests{Word{Test::Present, "present"_L1}, Word{Test::Absent, "absent"_L1},
                            Word{Test::Equals, "equal"_L1},    Word{Test::Differs, "different"_L1},
                            Word{Test::Above, "above"_L1},     Word{Test::Below, "below"_L1}};
constexpr std::array kKinds{Word{FormatKind::Text, "text"_L1}, Word{FormatKind::Number, "number"_L1},
                            Word{FormatKind::Date, "date"_L1}, Word{FormatKind::Image, "image"_L1}};
constexpr std::array kCases{Word{LetterCase::AsIs, "as-is"_L1}, Word{LetterCase::Upper, "upper"_L1},
                            Word{LetterCase::Lower, "lower"_L1}};
constexpr std::array kTotals{Word{Total::None, "none"_L1},       Word{Total::Sum, "sum"_L1},
                             Word{Total::Mean, "mean"_L1},       Word{Total::Smallest, "smallest"_L1},
                             Word{Total::Largest, "largest"_L1}, Word{Total::Count, "count"_L1}};
constexpr std::array kOrders{Word{false, "ascending"_L1}, Word{true, "descending"_L1}};
constexpr std::array kOrientations{Word{false, "portrait"_L1}, Word{true, "landscape"_L1}};
constexpr std::array kMarkups{Word{false, "text"_L1}, Word{true, "html"_L1}};

template <typename Value, std::size_t Count>
QLatin1StringView wordOf(const std::array<Word<Value>, Count> &words, Value value)
{
    return std::ranges::find(words, value, &Word<Value>::value)->text;
}

QString withoutEntities(const QString &text)
{
    static const QRegularExpression entity(u"&(?:(lt|gt|amp|quot)|#(\\d{1,7})|#[xX]([0-9a-fA-F]{1,6}));"_s);
    QString result;
    qsizetype at = 0;
    for (auto found = entity.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        result += QStringView(text).sliced(at, match.capturedStart() - at);
        at = match.capturedEnd();
        const QString name = match.captured(1);
        if (name.isEmpty()) {
            const bool isHex = match.hasCaptured(3);
            const uint number = isHex ? match.captured(3).toUInt(nullptr, 16) : match.captured(2).toUInt();
            const char32_t character = number;
            result +=
                number <= QChar::LastValidCodePoint ? QString::fromUcs4(&character, 1) : match.captured();
        } else {
            result += name == "lt"_L1 ? u'<' : name == "gt"_L1 ? u'>' : name == "amp"_L1 ? u'&' : u'"';
        }
    }
    return result.append(QStringView(text).sliced(at));
}

QString written(QAnyStringView name, const QString &value)
{
    return u' ' + name.toString() + "=\""_L1 + value.toHtmlEscaped() + u'"';
}

QString writtenUnless(const QString &usual, QAnyStringView name, const QString &value)
{
    return value == usual ? QString() : written(name, value);
}

/// The attributes of a tag or comment; each is taken once, and what is left over is an error.
class Attributes
{
public:
    /// @p text is what stands between the name and the end.
    explicit Attributes(const QString &text)
    {
        static const QRegularExpression attribute(
            u"\\G\\s+([a-zA-Z][a-zA-Z0-9-]*)\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)')"_s);
        qsizetype at = 0;
        for (auto found = attribute.globalMatch(text); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            at = match.capturedEnd();
            const QString value = match.hasCaptured(3) ? match.captured(3) : match.captured(2);
            m_attributes.append({match.captured(1).toLower(), withoutEntities(value)});
        }
        const QString rest = text.sliced(at).trimmed();
        if (!rest.isEmpty() && rest != "/"_L1)
            fail(Texts::tr("\"%1\" is not an attribute.").arg(rest));
    }

    [[nodiscard]] bool has(const QString &name) const
    {
        return std::ranges::find(m_attributes, name, &Attribute::name) != m_attributes.end();
    }

    QString text(QAnyStringView name, const QString &usual = {})
    {
        const auto found = std::ranges::find(m_attributes, name, &Attribute::name);
        if (found == m_attributes.end())
            return usual;
        QString value = found->value;
        m_attributes.erase(found);
        return value;
    }

    QString needed(QLatin1StringView name)
    {
        QString value = text(name);
        if (value.isEmpty())
            fail(Texts::tr("The attribute \"%1\" is missing.").arg(name));
        return value;
    }

    template <typename Value, std::size_t Count>
    Value word(QAnyStringView name, const std::array<Word<Value>, Count> &words)
    {
        const QString value = text(name, words.front().text);
        const auto found = std::ranges::find(words, value, &Word<Value>::text);
        if (found != words.end())
            return found->value;
        return refuse(name, value, words.front().value);
    }

    int number(QLatin1StringView name, int most, int usual)
    {
        const QString value = text(name);
        bool ok = value.isNull();
        const int number = value.isNull() ? usual : value.toInt(&ok);
        return ok && number <= most && (value.isNull() || number >= 0) ? number : refuse(name, value, usual);
    }

    double factor(QLatin1StringView name)
    {
        const QString value = text(name, u"1"_s);
        bool ok = false;
        const double number = value.toDouble(&ok);
        return ok && std::isfinite(number) && number != 0 ? number : refuse(name, value, 1.0);
    }

    /// Four whole numbers with blanks between them.
    QList<int> margins(QLatin1StringView name)
    {
        const QString value = text(name);
        QList<int> margins;
        if (value.isNull())
            return margins;
        for (const QString &part : value.simplified().split(u' ')) {
            bool ok = false;
            margins.append(part.toInt(&ok));
            if (!ok || margins.constLast() < 0 || margins.constLast() > kMostMargin)
                return refuse(name, value, QList<int>());
        }
        return margins.size() == 4 ? margins : refuse(name, value, QList<int>());
    }

    QString pageSize(QLatin1StringView name)
    {
        const QString value = text(name);
        const bool isKnown =
            value.isNull() ||
            std::ranges::any_of(kPageSizes, [&value](QLatin1StringView size) { return value == size; });
        return isKnown ? value : refuse(name, value, QString());
    }

    /// Attributes that others may have set stay out of it.
    void ignoreOthersBut(QLatin1StringView prefix)
    {
        m_attributes.removeIf([prefix](const Attribute &each) { return !each.name.startsWith(prefix); });
    }

    /// The first thing that is wrong; null when nothing is.
    QString finish()
    {
        if (m_error.isNull() && !m_attributes.isEmpty())
            fail(Texts::tr("The attribute \"%1\" is not known here.").arg(m_attributes.constFirst().name));
        return m_error;
    }

private:
    struct Attribute
    {
        QString name;
        QString value;
    };

    void fail(const QString &error)
    {
        if (m_error.isNull())
            m_error = error;
    }

    template <typename Value>
    Value refuse(QAnyStringView name, const QString &value, Value usual)
    {
        fail(Texts::tr("The attribute \"%1\" cannot be \"%2\".").arg(name.toString(), value));
        return usual;
    }

    QList<Attribute> m_attributes;
    QString m_error;
};

Reading reading(Attributes &attributes, const Instruction &instruction)
{
    const QString error = attributes.finish();
    if (!error.isNull())
        return {std::nullopt, error};
    return {instruction, {}};
}

// "sort", "sort-2" and so on: a name may have any sign in it that could stand between names.
QString sortName(int index)
{
    return index == 0 ? u"sort"_s : u"sort-%1"_s.arg(index + 1);
}

QString orderName(int index)
{
    return index == 0 ? u"order"_s : u"order-%1"_s.arg(index + 1);
}

Reading readRepeat(Attributes &attributes, Extent extent)
{
    Repeat repeat{extent, attributes.text("of"_L1)};
    const SortKey first{attributes.text(sortName(0)), attributes.word(orderName(0), kOrders)};
    if (!first.code.isEmpty())
        repeat.sort.append(first);
    for (int index = 1; index < kMostSortKeys && attributes.has(sortName(index)); ++index)
        repeat.sort.append({attributes.text(sortName(index)), attributes.word(orderName(index), kOrders)});
    repeat.empty = attributes.text("empty"_L1);
    return reading(attributes, repeat);
}

Reading readCondition(Attributes &attributes, Extent extent)
{
    Condition condition{extent, attributes.needed("code"_L1), attributes.word("is"_L1, kTests)};
    const bool compares = condition.test != Test::Present && condition.test != Test::Absent;
    if (compares)
        condition.value = attributes.needed("value"_L1);
    return reading(attributes, condition);
}

Reading readPage(Attributes &attributes)
{
    Page page{attributes.pageSize("size"_L1),   attributes.word("orientation"_L1, kOrientations),
              attributes.margins("margins"_L1), attributes.text("header"_L1),
              attributes.text("footer"_L1),     attributes.text("name"_L1),
              attributes.text("version"_L1)};
    return reading(attributes, page);
}

Reading readContents(Attributes &attributes)
{
    Contents contents{attributes.number("levels"_L1, kMostLevels, Contents().levels),
                      attributes.text("title"_L1)};
    contents.levels = std::max(1, contents.levels);
    return reading(attributes, contents);
}

QString nameWith(QLatin1StringView name, Extent extent)
{
    return extent == Extent::Row ? name + kRowSuffix : QString(name);
}

QString comment(const QString &name, const QString &attributes)
{
    return kCommentStart + name + attributes + kCommentEnd;
}

struct Writer
{
    QString operator()(const Repeat &repeat) const
    {
        QString sort;
        for (int index = 0; index < repeat.sort.size(); ++index) {
            const SortKey &key = repeat.sort.at(index);
            sort += written(sortName(index), key.code) +
                    writtenUnless(kOrders.front().text, orderName(index), wordOf(kOrders, key.isDescending));
        }
        return comment(nameWith(kRepeat, repeat.extent), writtenUnless({}, "of"_L1, repeat.of) + sort +
                                                             writtenUnless({}, "empty"_L1, repeat.empty));
    }
    QString operator()(const Condition &condition) const
    {
        return comment(nameWith(kCondition, condition.extent),
                       written("code"_L1, condition.code) + written("is"_L1, wordOf(kTests, condition.test)) +
                           writtenUnless({}, "value"_L1, condition.value));
    }
    QString operator()(const Else & /*other*/) const { return comment(kElse, {}); }
    QString operator()(const End & /*end*/) const { return comment(kEnd, {}); }
    QString operator()(const Page &page) const
    {
        QStringList margins;
        for (const int margin : page.margins)
            margins.append(QString::number(margin));
        return comment(kPage, writtenUnless({}, "size"_L1, page.size) +
                                  writtenUnless(kOrientations.front().text, "orientation"_L1,
                                                wordOf(kOrientations, page.isLandscape)) +
                                  writtenUnless({}, "margins"_L1, margins.join(u' ')) +
                                  writtenUnless({}, "header"_L1, page.header) +
                                  writtenUnless({}, "footer"_L1, page.footer) +
                                  writtenUnless({}, "name"_L1, page.name) +
                                  writtenUnless({}, "version"_L1, page.version));
    }
    QString operator()(const Contents &contents) const
    {
        return comment(kContents, written("levels"_L1, QString::number(contents.levels)) +
                                      writtenUnless({}, "title"_L1, contents.title));
    }
    QString operator()(const CodeFormat &format) const
    {
        const CodeFormat usual;
        QString tag = written(kFormatName, wordOf(kKinds, format.kind));
        tag += writtenUnless({}, "data-empty"_L1, format.empty);
        tag += writtenUnless(kMarkups.front().text, "data-as"_L1, wordOf(kMarkups, format.isHtml));
        tag += writtenUnless(kCases.front().text, "data-case"_L1, wordOf(kCases, format.letterCase));
        if (format.digits >= 0)
            tag += written("data-digits"_L1, QString::number(format.digits));
        tag += writtenUnless({}, "data-thousands"_L1, format.thousands);
        tag += writtenUnless(usual.decimal, "data-decimal"_L1, format.decimal);
        if (format.factor != usual.factor)
            tag += written("data-factor"_L1, QString::number(format.factor, 'g', kMostDigits));
        tag += writtenUnless({}, "data-unit"_L1, format.unit);
        tag += writtenUnless({}, "data-pattern"_L1, format.pattern);
        if (format.width > 0)
            tag += written("data-width"_L1, QString::number(format.width));
        tag += writtenUnless({}, "data-alternative"_L1, format.alternative);
        tag += writtenUnless(kTotals.front().text, "data-total"_L1, wordOf(kTotals, format.total));
        tag += writtenUnless({}, "data-of"_L1, format.of);
        return "<span"_L1 + tag + ">["_L1 + format.code + "]</span>"_L1;
    }
};

} // namespace

bool isInstructionComment(QStringView text)
{
    return text.startsWith(kCommentStart);
}

bool isFormatTag(QStringView tag)
{
    static const QRegularExpression format(u"^<span\\s(?:[^>]*\\s)?data-format\\s*="_s,
                                           QRegularExpression::CaseInsensitiveOption);
    return tag.contains(kFormatName, Qt::CaseInsensitive) && format.match(tag).hasMatch();
}

Reading readComment(const QString &comment)
{
    if (!isInstructionComment(comment) || !comment.endsWith(kCommentEnd))
        return {std::nullopt, Texts::tr("The comment does not end.")};
    const QString text = comment.sliced(kCommentStart.size()).chopped(kCommentEnd.size());
    const auto isInName = [](QChar c) { return c.isLetterOrNumber() || c == u'-'; };
    const auto nameEnd = std::ranges::find_if_not(text, isInName);
    const QString name = text.first(nameEnd - text.begin());
    Attributes attributes(text.sliced(name.size()));
    for (const Extent extent : {Extent::Section, Extent::Row}) {
        if (name == nameWith(kRepeat, extent))
            return readRepeat(attributes, extent);
        if (name == nameWith(kCondition, extent))
            return readCondition(attributes, extent);
    }
    if (name == kPage)
        return readPage(attributes);
    if (name == kContents)
        return readContents(attributes);
    if (name == kElse)
        return reading(attributes, Else());
    if (name == kEnd)
        return reading(attributes, End());
    return {std::nullopt, Texts::tr("The instruction \"%1\" does not exist.").arg(name)};
}

Reading readFormat(const QString &tag, const QString &inner)
{
    if (!syntax::isCode(inner))
        return {std::nullopt, Texts::tr("A format is for one code.")};
    constexpr qsizetype kNameLength = 5; // "<span"
    Attributes attributes(tag.sliced(kNameLength).chopped(1));
    attributes.ignoreOthersBut(kDataPrefix);
    CodeFormat format{inner.sliced(1).chopped(1), attributes.word(kFormatName, kKinds)};
    format.empty = attributes.text("data-empty"_L1);
    format.isHtml = attributes.word("data-as"_L1, kMarkups);
    format.letterCase = attributes.word("data-case"_L1, kCases);
    format.digits = attributes.number("data-digits"_L1, kMostDigits, -1);
    format.thousands = attributes.text("data-thousands"_L1);
    format.decimal = attributes.text("data-decimal"_L1, format.decimal);
    format.factor = attributes.factor("data-factor"_L1);
    format.unit = attributes.text("data-unit"_L1);
    format.pattern = attributes.text("data-pattern"_L1);
    format.width = attributes.number("data-width"_L1, kMostPixels, 0);
    format.alternative = attributes.text("data-alternative"_L1);
    format.total = attributes.word("data-total"_L1, kTotals);
    format.of = attributes.text("data-of"_L1);
    return reading(attributes, format);
}

std::optional<Instruction> readInstruction(const QString &source)
{
    if (isInstructionComment(source))
        return readComment(source).instruction;
    const qsizetype end = isFormatTag(source) ? source.indexOf(u'>') + 1 : 0;
    constexpr auto kClose = "</span>"_L1;
    if (end == 0 || source.size() - end < kClose.size() || !source.endsWith(kClose, Qt::CaseInsensitive))
        return std::nullopt;
    return readFormat(source.first(end), source.sliced(end).chopped(kClose.size())).instruction;
}

QString sourceOf(const Instruction &instruction)
{
    return std::visit(Writer(), instruction);
}

QString attribute(const QString &tag, QLatin1StringView name)
{
    const qsizetype nameEnd = std::max<qsizetype>(tag.indexOf(QRegularExpression(u"\\s"_s)), 0);
    return Attributes(tag.sliced(nameEnd).chopped(nameEnd > 0 ? 1 : 0)).text(name);
}

} // namespace ozm::instructions
