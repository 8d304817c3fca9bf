#include "templates/instructions/InstructionCaption.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::instructions {

namespace {

template <typename Value>
struct NameRow
{
    Value value;
    const char *text;
};

// Clang finds it by itself from version 17 on.
template <typename Value>
NameRow(Value, const char *) -> NameRow<Value>;

constexpr std::array kTestNames{
    NameRow{Test::Present, QT_TRANSLATE_NOOP("ozm::instructions", "has a value")},
    NameRow{Test::Absent, QT_TRANSLATE_NOOP("ozm::instructions", "has no value")},
    NameRow{Test::Equals, QT_TRANSLATE_NOOP("ozm::instructions", "is equal to")},
    NameRow{Test::Differs, QT_TRANSLATE_NOOP("ozm::instructions", "is not equal to")},
    NameRow{Test::Above, QT_TRANSLATE_NOOP("ozm::instructions", "is above")},
    NameRow{Test::Below, QT_TRANSLATE_NOOP("ozm::instructions", "is below")},
};

constexpr std::array kTotalNames{
    NameRow{Total::None, QT_TRANSLATE_NOOP("ozm::instructions", "none")},
    NameRow{Total::Sum, QT_TRANSLATE_NOOP("ozm::instructions", "sum")},
    NameRow{Total::Mean, QT_TRANSLATE_NOOP("ozm::instructions", "mean")},
    NameRow{Total::Smallest, QT_TRANSLATE_NOOP("ozm::instructions", "smallest")},
    NameRow{Total::Largest, QT_TRANSLATE_NOOP("ozm::instructions", "largest")},
    NameRow{Total::Count, QT_TRANSLATE_NOOP("ozm::instructions", "count")},
};

template <typename Value, std::size_t Count>
QString nameIn(const std::array<NameRow<Value>, Count> &rows, Value value)
{
    return Texts::tr(std::ranges::find(rows, value, &NameRow<Value>::value)->text);
}

QString numberPattern(const CodeFormat &format)
{
    QString pattern = format.thousands.isEmpty() ? u"0"_s : u'0' + format.thousands + "000"_L1;
    if (format.digits != 0)
        pattern += format.decimal + (format.digits < 0 ? u"…"_s : QString(format.digits, u'0'));
    return format.unit.isEmpty() ? pattern : pattern + u' ' + format.unit;
}

struct Captioner
{
    QString operator()(const Repeat &repeat) const
    {
        QString text =
            repeat.of.isEmpty() ? Texts::tr("For each row") : Texts::tr("For each of %1").arg(repeat.of);
        QStringList codes;
        for (const SortKey &key : repeat.sort)
            codes.append(key.code);
        if (!codes.isEmpty())
            text += Texts::tr(", by %1").arg(codes.join(", "_L1));
        return repeat.extent == Extent::Row ? text : text + u'…';
    }
    QString operator()(const Condition &condition) const
    {
        const QString text =
            Texts::tr("If %1 %2 %3").arg(condition.code, testName(condition.test), condition.value).trimmed();
        return condition.extent == Extent::Row ? text : text + u'…';
    }
    QString operator()(const Else & /*other*/) const { return Texts::tr("Else") + u'…'; }
    QString operator()(const End & /*end*/) const { return Texts::tr("End"); }
    QString operator()(const Page &page) const
    {
        return page.size.isEmpty() ? Texts::tr("Page set-up") : Texts::tr("Page set-up, %1").arg(page.size);
    }
    QString operator()(const Contents & /*contents*/) const { return Texts::tr("Table of contents"); }
    QString operator()(const CodeFormat &format) const
    {
        if (format.total != Total::None)
            return Texts::tr("%1 of %2").arg(totalName(format.total), format.code);
        switch (format.kind) {
        case FormatKind::Number:
            return format.code + u' ' + numberPattern(format);
        case FormatKind::Date:
            return format.code + u' ' + format.pattern;
        case FormatKind::Image:
            return Texts::tr("Image %1").arg(format.code);
        case FormatKind::Text:
            break;
        }
        return Texts::tr("%1 as text").arg(format.code);
    }
};

} // namespace

QString captionOf(const Instruction &instruction)
{
    return std::visit(Captioner(), instruction);
}

QString testName(Test test)
{
    return nameIn(kTestNames, test);
}

QString totalName(Total total)
{
    return nameIn(kTotalNames, total);
}

} // namespace ozm::instructions
