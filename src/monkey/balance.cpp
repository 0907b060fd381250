// The chemistry of the beaker as bookkeeping: what was poured in, less what has reacted.
#include "host/number_service.h"
#include "host/roots.h"
#include "monkey/invariants.h"
#include "monkey/monkey_words.h"
#include "particles/species.h"
#include "shell/session/session.h"
#include "workbench/workbench.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace quendal {

namespace {

constexpr int kSampleMl = 10; // mL of any sample
constexpr int kBalanceLines = 5;
constexpr int kFullBeaker = 30;     // mL
constexpr double kPairsPerMol = 10; // particles of the sample for each mol/L

// A titration: `sample` reacts with `reagent` one to one to `product`; the others only watch.
struct Titration {
    std::string_view form;
    int sample;
    int sampleRider; // comes with the sample; 0: none
    int reagent;
    int reagentRider;
    int product; // 0: water, which fades away
};

constexpr Titration kTitrations[] = {
    {"frm_AppMainStrong", kHydronium, kChloride, kHydroxide, kSodium, 0},
    {"frm_AppMainConducto", kHydronium, kChloride, kHydroxide, kSodium, 0},
    {"frm_AppMainConductolog", kHydronium, kChloride, kHydroxide, kSodium, 0},
    {"frm_AppMainWeak", kAceticAcid, 0, kHydroxide, kSodium, kAcetate},
    {"frm_AppMainConductoWeak", kAceticAcid, 0, kHydroxide, kSodium, kAcetate},
    {"frm_AppMainSilver", kChloride, kSodium, kSilver, kNitrate, kSilverChloride},
    {"frm_AppMainConductoSilver", kChloride, kSodium, kSilver, kNitrate, kSilverChloride},
};

struct Share {
    int kind;
    int count;
};

Finding wrongCount(int kind, int found, int due) {
    const std::string thing = "beaker.countsort(" + std::to_string(kind) + ")";
    return {thing + " is " + std::to_string(found) + " in place of " + std::to_string(due),
            {"expect " + thing + " == " + std::to_string(due)}};
}

Finding wrongField(const Workbench& bench, const std::string& field, int found, int due) {
    const std::string thing = bench.name() + "." + field;
    return {thing + " is " + std::to_string(found) + " in place of " + std::to_string(due),
            {"expect " + thing + " == " + std::to_string(due)}};
}

// Reactions go on, so nobody knows what the count will be when the script comes to it.
Finding wrongPartner(int kind, int found, int due) {
    Finding finding = wrongCount(kind, found, due);
    finding.expects = {
        expectOther("beaker.countsort(" + std::to_string(kind) + ")", std::to_string(found))};
    return finding;
}

template <std::size_t Count>
std::optional<Finding> firstWrong(const Workbench& bench, const Share (&shares)[Count],
                                  Finding (*tell)(int kind, int found, int due)) {
    for (const Share& share : shares) {
        const int found = share.kind != 0 ? bench.vMolecules.COUNTSORT(share.kind) : share.count;
        if (found != share.count) {
            return tell(share.kind, found, share.count);
        }
    }
    return std::nullopt;
}

// While reactions go on, what of the sample is missing tells how many have happened.
std::optional<Finding> checkParticles(const Workbench& bench, const Titration& row) {
    const int sample = static_cast<int>(session().SessionConcentration * kPairsPerMol);
    const int reagent = bench.vSourceVol[1];
    const int most = std::min(sample, reagent);
    const Share riders[] = {{row.sampleRider, row.sampleRider != 0 ? sample : 0},
                            {row.reagentRider, reagent}};
    const bool settled = !bench.vMolecules.hasPairThatCanReact();
    const int left = bench.vMolecules.COUNTSORT(row.sample);
    const int reacted = settled ? most : std::clamp(sample - left, 0, most);
    const Share partners[] = {
        {row.sample, sample - reacted}, {row.reagent, reagent - reacted}, {row.product, reacted}};
    auto finding = firstWrong(bench, riders, wrongCount);
    return finding ? finding : firstWrong(bench, partners, settled ? wrongCount : wrongPartner);
}

std::optional<Finding> checkVolumes(const Workbench& bench) {
    const int reagent = bench.vSourceVol[1];
    if (bench.vSourceVol[0] != kSampleMl) {
        return wrongField(bench, "vSourceVol(0)", bench.vSourceVol[0], kSampleMl);
    }
    if (bench.vVol != kSampleMl + reagent) {
        return wrongField(bench, "vVol", bench.vVol, kSampleMl + reagent);
    }
    // Clicks on a full beaker are counted, and nothing flows.
    const bool clicksCount = bench.vVol < kFullBeaker;
    return clicksCount && bench.sClicks != reagent
               ? std::optional(wrongField(bench, "sClicks", bench.sClicks, reagent))
               : std::nullopt;
}

Finding wrongLabel(const Control& label, const std::string& due) {
    const std::string thing = label.form().name() + "." + label.fullName() + ".text";
    return {thing + " is \"" + label.text() + "\" in place of \"" + due + "\"",
            {"expect " + thing + " == " + scriptWord(due)}};
}

// What the learner is told of it all. Traces have a sign before the number.
std::optional<Finding> checkReadings(const Workbench& bench) {
    for (const int source : {0, 1}) {
        const std::string due = CoreLib().NumberService.Format(bench.hGetVol(source), 3) + " L";
        if (bench.lab_Vol(source).text() != due) {
            return wrongLabel(bench.lab_Vol(source), due);
        }
    }
    for (int i = 0; i < kBalanceLines; ++i) {
        const ctl_TermLabel& label = bench.lab_BilanzCount(i);
        // HCl reacts at once: its line is worked out from the chloride and ends at 0.
        const int count = bench.vMolecules.COUNTSORT(label.tag());
        const std::string due = std::to_string(count) + " mmol";
        if (label.visible() && label.text() != due && label.text() != "~~ " + due) {
            return wrongLabel(label, due);
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<Finding> checkBalance(const Workbench& bench) {
    if (bench.vVol > kFullBeaker) {
        return wrongField(bench, "vVol", bench.vVol, kFullBeaker);
    }
    const auto* row = std::find_if(std::begin(kTitrations), std::end(kTitrations),
                                   [&](const Titration& one) { return bench.name() == one.form; });
    const bool falling = bench.dosing() || bench.vDrops.COUNT() > 0;
    if (row == std::end(kTitrations) || falling) {
        return std::nullopt;
    }
    if (bench.vPipShown) {
        const bool empty = bench.vVol == 0 && bench.vMolecules.COUNT() == 0;
        return empty ? std::nullopt : std::optional(wrongField(bench, "vVol", bench.vVol, 0));
    }
    auto finding = checkVolumes(bench);
    finding = finding ? finding : checkParticles(bench, *row);
    return finding ? finding : checkReadings(bench);
}

} // namespace quendal
