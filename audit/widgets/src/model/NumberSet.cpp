#include "../Texts.h"

#include <ozm_audit_widgets/NumberSet.h>

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::audit {

NumberSet::NumberSet(Run run)
{
    add(run);
}

Result<NumberSet> NumberSet::fromText(const QString &text)
{
    NumberSet set;
    const QStringList parts = text.split(u',', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const qsizetype dash = part.indexOf(u'-');
        bool firstIsNumber = false;
        bool lastIsNumber = false;
        const qint64 first = part.left(dash).trimmed().toLongLong(&firstIsNumber);
        const qint64 last = part.mid(dash + 1).trimmed().toLongLong(&lastIsNumber);
        if (!firstIsNumber || !lastIsNumber || first < 1 || last < first) {
            return Error(ErrorCode::BadParameter,
                         WidgetTexts::tr("\"%1\" is not a list of entry numbers, such as \"3, 7-9\".")
                             .arg(text))
                .ecatch(OZM_HERE);
        }
        set.add(Run{first, last});
    }
    return set;
}

QString NumberSet::toText() const
{
    QStringList parts;
    for (const Run &run : m_runs)
        parts.append(run.first == run.last ? QString::number(run.first)
                                           : u"%1-%2"_s.arg(run.first).arg(run.last));
    return parts.join(u',');
}

bool NumberSet::contains(qint64 number) const
{
    const auto after = std::ranges::upper_bound(m_runs, number, {}, &Run::first);
    return after != m_runs.begin() && std::prev(after)->last >= number;
}

qint64 NumberSet::count() const
{
    return m_runs.isEmpty() ? 0 : countUpTo(m_runs.constLast().last);
}

qint64 NumberSet::countUpTo(qint64 last) const
{
    qint64 sum = 0;
    for (const Run &run : m_runs) {
        if (run.first > last)
            break;
        sum += qMin(run.last, last) - run.first + 1;
    }
    return sum;
}

void NumberSet::add(Run run)
{
    // The first run that touches or follows the new one.
    auto at = std::ranges::lower_bound(m_runs, run.first - 1, {}, &Run::last);
    const auto begin = at;
    for (; at != m_runs.end() && at->first <= run.last + 1; ++at) {
        run.first = qMin(run.first, at->first);
        run.last = qMax(run.last, at->last);
    }
    if (begin == at) {
        m_runs.insert(begin, run);
        return;
    }
    *begin = run;
    m_runs.erase(std::next(begin), at);
}

void NumberSet::add(const NumberSet &other)
{
    for (const Run &run : other.m_runs)
        add(run);
}

} // namespace ozm::audit
