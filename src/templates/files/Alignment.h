#pragma once

#include <algorithm>
#include <vector>

namespace ozm::comparison {

/// Two things that belong together, by their indexes; -1 for one without a partner.
struct Pairing
{
    int before = -1;
    int after = -1;
};

// A table of this many pairs takes milliseconds.
inline constexpr int kMostPairs = 250'000;

/**
 * Pairs @p before things with @p after things, in their order and so that their likenesses add up to the most.
 * @p likeness gives 1 for equals and 0 for what cannot be paired. Too many things stay without partners.
 */
template <typename Likeness>
[[nodiscard]] std::vector<Pairing> align(int before, int after, const Likeness &likeness)
{
    std::vector<Pairing> pairs;
    const bool isTooMuch = before > 0 && after > kMostPairs / before;
    const auto width = static_cast<std::size_t>(after) + 1;
    std::vector<float> best;
    std::vector<float> alike;
    if (!isTooMuch) {
        best.resize((static_cast<std::size_t>(before) + 1) * width);
        alike.resize(best.size());
    }
    const auto at = [width](int i, int j) {
        return static_cast<std::size_t>(i) * width + static_cast<std::size_t>(j);
    };
    for (int i = before - 1; i >= 0 && !isTooMuch; --i) {
        for (int j = after - 1; j >= 0; --j) {
            alike[at(i, j)] = likeness(i, j);
            best[at(i, j)] = std::max(best[at(i + 1, j)], best[at(i, j + 1)]);
            if (alike[at(i, j)] > 0)
                best[at(i, j)] = std::max(best[at(i, j)], alike[at(i, j)] + best[at(i + 1, j + 1)]);
        }
    }
    int i = 0;
    int j = 0;
    while (i < before || j < after) {
        const bool mayPair = !isTooMuch && i < before && j < after && alike[at(i, j)] > 0;
        if (mayPair && best[at(i, j)] == alike[at(i, j)] + best[at(i + 1, j + 1)])
            pairs.push_back({i++, j++});
        else if (i < before && (isTooMuch || j == after || best[at(i + 1, j)] >= best[at(i, j + 1)]))
            pairs.push_back({i++, -1});
        else
            pairs.push_back({-1, j++});
    }
    return pairs;
}

} // namespace ozm::comparison
