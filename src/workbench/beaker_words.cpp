#include "workbench/beaker_words.h"

#include "particles/species.h"

#include <vector>

namespace quendal {

namespace {

struct Noun {
    int kind;
    const char* one;
    const char* many;
};

constexpr Noun kNouns[] = {
    {kHydrogenChloride, "Chlorwasserstoff-Molekül", "Chlorwasserstoff-Moleküle"},
    {kHydronium, "Oxonium-Ion", "Oxonium-Ionen"},
    {kHydroxide, "Hydroxid-Ion", "Hydroxid-Ionen"},
    {kSodium, "Natrium-Ion", "Natrium-Ionen"},
    {kChloride, "Chlorid-Ion", "Chlorid-Ionen"},
    {kAceticAcid, "Essigsäure-Molekül", "Essigsäure-Moleküle"},
    {kAcetate, "Acetat-Ion", "Acetat-Ionen"},
    {kSilver, "Silber-Ion", "Silber-Ionen"},
    {kNitrate, "Nitrat-Ion", "Nitrat-Ionen"},
    {kSilverChloride, "Teilchen Silberchlorid", "Teilchen Silberchlorid"},
};

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const bool last = i + 1 == parts.size();
        text += i == 0 ? "" : last ? " und " : ", ";
        text += parts[i];
    }
    return text;
}

} // namespace

std::string beakerWords(std::span<const int> counts) {
    std::vector<std::string> parts;
    for (const Noun& noun : kNouns) {
        const int count = counts[static_cast<std::size_t>(noun.kind)];
        if (count > 0) {
            parts.push_back(std::to_string(count) + " " + (count == 1 ? noun.one : noun.many));
        }
    }
    return parts.empty() ? "Im Becher sind noch keine gelösten Teilchen."
                         : "Im Becher: " + joined(parts) + ".";
}

} // namespace quendal
