#include "../Texts.h"

#include <ozm_audit/Verification.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// In the order of Damage.
constexpr std::array kDamages{"changed"_L1, "missing"_L1, "reordered"_L1,    "index differs"_L1,
                              "cut off"_L1, "rebuilt"_L1, "not the trail"_L1};

} // namespace

QString damageToString(Damage damage)
{
    const auto index = static_cast<std::size_t>(damage);
    return index < kDamages.size() ? QString(kDamages.at(index)) : QString();
}

bool Verification::isWhole() const
{
    return std::ranges::all_of(findings, [](const Finding &finding) { return finding.acknowledgedBy != 0; });
}

QString Verification::toString() const
{
    QStringList lines{
        Texts::tr("Trail %1: %n entries", nullptr, int(size)).arg(trail),
        anchored > 0
            ? Texts::tr("Entries 1 to %1 are vouched for by a checkpoint from outside.").arg(anchored)
            : Texts::tr("No checkpoint from outside vouches for any entry."),
    };
    if (anchored < size)
        lines.append(
            Texts::tr("Entries %1 to %2 are consistent only in themselves.").arg(anchored + 1).arg(size));
    for (const Range &range : disposed)
        lines.append(
            Texts::tr("Entries %1 to %2: disposed of, hashes kept.").arg(range.first).arg(range.last));
    for (const Finding &finding : findings) {
        lines.append(damageToString(finding.damage) + u": "_s + finding.text);
        if (finding.acknowledgedBy != 0)
            lines.last() += u' ' + Texts::tr("Recorded by entry %1.").arg(finding.acknowledgedBy);
    }
    lines.append(isWhole() ? Texts::tr("The trail is whole.") : Texts::tr("THE TRAIL IS DAMAGED."));
    return lines.join(u'\n');
}

} // namespace ozm::audit
