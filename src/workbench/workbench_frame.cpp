// One frame of the workbench, and the pace of frames.
#include "workbench/beaker_words.h"
#include "workbench/workbench.h"

#include "host/clock.h"
#include "host/number_service.h"
#include "host/random_source.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "particles/species.h"
#include "shell/session/session.h"

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr double kTurn = 0.02;     // s, the pace of a turn
constexpr double kFallTime = 1.0;  // s from the glass to the surface
constexpr double kPatience = 10.0; // s that a click waits for the beaker
constexpr double kWaterGone = 100; // Fade at which a helper water molecule disappears

// Water that helps no reaction fades out, everything else in. True when it is out.
bool fadedAway(cls_Molecule& particle) {
    if (particle.SORT() == kWater && !particle.Reacting) {
        particle.Fade += 1;
        return particle.Fade >= kWaterGone;
    }
    if (particle.Fade > 0) {
        particle.Fade -= 10;
    }
    return false;
}

} // namespace

bool Workbench::leaving() const {
    return vUnload || session().SessionRestart;
}

void Workbench::turn() {
    Clock& clock = CoreLib().Clock;
    CoreLib().Windows.DoEvents();
    if (session().SessionRestart) {
        return;
    }
    const double before = clock.Now();
    hThinkDo();
    const double needed = clock.Now() - before;
    CoreLib().Windows.DoEvents();
    if (!session().SessionRestart && needed < kTurn) {
        clock.Sleep(kTurn - needed, 0);
    }
}

void Workbench::mainLoop() {
    while (!vUnload) {
        turn();
    }
}

void Workbench::hXEvents() {
    CoreLib().Windows.DoEvents();
    hThinkDo();
    if (session().SessionRestart) {
        return;
    }
    Clock& clock = CoreLib().Clock;
    const double before = clock.Now();
    hThinkDo();
    const double needed = clock.Now() - before;
    CoreLib().Windows.DoEvents();
    if (!session().SessionRestart && needed < kTurn) {
        clock.Sleep(kTurn - needed, 0);
    }
}

void Workbench::hWait(double seconds, bool /*pump*/) {
    const double start = CoreLib().Clock.Now();
    do {
        turn();
        if (session().SessionRestart) {
            return;
        }
    } while (CoreLib().Clock.Now() - start < seconds);
}

bool Workbench::settleBeaker() {
    const Occupation occupation(*this);
    if (session().SessionBusy || !occupation.taken()) {
        return false;
    }
    const double start = CoreLib().Clock.Now();
    const auto moving = [this] {
        return vDrops.COUNT() > 0 || (variant_.countsParticles && vMolecules.hasPairThatCanReact());
    };
    while (moving() && !leaving() && CoreLib().Clock.Now() - start < kPatience) {
        turn();
    }
    return !leaving();
}

void Workbench::hThinkDo() {
    hDropsStep();
    hBeakerStep(vCalm);
    tellBeaker();
    showBalance();
    showVolumes();
    frameDone();
}

void Workbench::hDropsStep() {
    const bool falling = vDrops.COUNT() > 0;
    vStreamFade = std::clamp(vStreamFade + (falling ? 10.0 : -10.0), 0.0, 100.0);
    const bool still = !falling && vStreamFade == 0.0;
    if (still && shown_.stillScene) {
        return; // what stands on the screen is what would be drawn
    }
    pic_Bowl.surface().Clear();
    drawStream();
    drawGlasses();
    moveDrops();
    pic_Bowl.drawn();
    shown_.stillScene = still;
}

void Workbench::drawStream() {
    if (vStreamFade <= 0.0) {
        return;
    }
    constexpr double kBuretteStream = 5;
    constexpr double kPipetteStream = 30;
    const double width = vStreamFade * (vBurShown ? kBuretteStream : kPipetteStream) / 100.0;
    Surface& bowl = pic_Bowl.surface();
    const double middle = bowl.ScaleWidth() / 2;
    const double waterline = bowl.ScaleHeight() - waterHeight();
    bowl.Box({middle - width / 2, 0}, {middle + width / 2, waterline}, session().ParticleBackColor);
}

void Workbench::moveDrops() {
    const double bowlHeight = pic_Bowl.place().height;
    const double reach = (bowlHeight - waterHeight() + 5) * 100 / bowlHeight;
    for (int i = 1; i <= vDrops.COUNT();) {
        cls_Molecule& drop = vDrops.ITEM(i);
        const double now = CoreLib().Clock.Now();
        if (drop.BornAt == 0) {
            drop.BornAt = now;
        }
        const double age = now - drop.BornAt;
        if (age >= kFallTime) {
            land(i);
            continue;
        }
        drop.PosY = reach * age;
        drop.DRAW(pic_Bowl.surface());
        ++i;
    }
}

void Workbench::land(int index) {
    constexpr double kUnderSurface = 20;
    cls_Molecule& drop = vDrops.ITEM(index);
    vMolecules.CREATE(drop.SORTREAL(), drop.PosX, kUnderSurface);
    const auto& counting = variant_.countingKinds;
    if (std::find(counting.begin(), counting.end(), drop.SORT()) != counting.end()) {
        ++vVol;
        ++vSourceVol[static_cast<std::size_t>(vSource)];
    }
    vDrops.REMOVE(index);
}

void Workbench::hBeakerStep(bool calm) {
    placeWater();
    hParticleStep(calm);
    hDrawBeaker();
    showReading();
    guidance().beakerChanged();
}

double Workbench::waterHeight() const {
    const double millilitres = hGetVol(-1) * 1000 + variant_.scale.waterMl;
    const double scaleEnd = kScaleTicks * variant_.scale.mlPerTick;
    return std::max(0.0, pic_Bowl.place().height * millilitres / scaleEnd);
}

void Workbench::placeWater() {
    const Rect& bowl = pic_Bowl.place();
    const double height = std::min(waterHeight(), bowl.height);
    pic_Water.setVisible(height > 0);
    if (height > 0) {
        pic_Water.setPlace(bowl.left, bowl.bottom() - height, bowl.width, height);
    }
}

void Workbench::hParticleStep(bool calm) {
    if (calm) {
        topUpWater();
        bool found = vMolecules.REACT();
        if (!found && vMolecules.COUNTSORT(kHydrogenChloride) > 0) {
            found = vMolecules.REACT();
        }
        if (!found) {
            vMolecules.GRID();
        }
    }
    for (int i = 1; i <= vMolecules.COUNT();) {
        const std::shared_ptr<cls_Molecule> particle = vMolecules.share(i);
        particle->Fade = std::max(0.0, particle->Fade);
        particle->THINK();
        if (fadedAway(*particle)) {
            vMolecules.removeParticle(*particle);
        }
        const bool stays = i <= vMolecules.COUNT() && vMolecules.share(i) == particle;
        if (stays) {
            ++i; // else it is gone, and another one has taken its place
        }
    }
}

// An HCl needs a water molecule to react with; the missing ones fade in where chance puts them.
void Workbench::topUpWater() {
    constexpr double kHardlySeen = 99;
    RandomSource& random = CoreLib().Random;
    for (int n = vMolecules.COUNTSORT(kHydrogenChloride) - vMolecules.COUNTSORT(kWater); n > 0;
         --n) {
        const double x = random.next() * 100;
        const double y = random.next() * 100;
        vMolecules.CREATE(kWater, x, y).Fade = kHardlySeen;
    }
}

void Workbench::hDrawBeaker() {
    Surface& water = pic_Water.surface();
    water.Clear();
    std::fill(vCount.begin() + 1, vCount.end(), 0);
    for (int i = 1; i <= vMolecules.COUNT(); ++i) {
        cls_Molecule& particle = vMolecules.ITEM(i);
        particle.DRAW(water);
        const auto kind = static_cast<std::size_t>(particle.SORT());
        if (kind < vCount.size()) {
            ++vCount[kind];
        }
    }
    pic_Water.drawn();
}

void Workbench::showReading() {
    if (const std::optional<Reading> reading = presentReading()) {
        vPhNow = reading->shown;
        session().ParticleBackColor = reading->liquid;
        pic_Water.setBackColor(reading->liquid);
    }
}

int Workbench::balanceOf(const BalanceLine& species) const {
    if (species.balance == Balance::SampleLessChloride) {
        return roundToInt(session().SessionConcentration * 10 - vCount[kChloride]);
    }
    return vCount[static_cast<std::size_t>(species.kind)];
}

// Described at each change; announced when a dosing has come to rest.
void Workbench::tellBeaker() {
    if (vCount != shown_.counts) {
        shown_.counts = vCount;
        pic_Water.setDescription(beakerWords(vCount));
    }
    const auto atRest = [this] {
        return vDrops.COUNT() == 0 && vCalm && !vMolecules.hasPairThatCanReact();
    };
    if (vVol > 0 && shown_.told != vVol && atRest()) {
        shown_.told = vVol;
        announce(std::to_string(vSourceVol[1]) + " mL aus der Bürette. " + beakerWords(vCount));
    }
}

void Workbench::showBalance() {
    const double equivalence = session().SessionConcentration * 10 + 10; // mL in the beaker
    for (std::size_t i = 0; i < variant_.species.size(); ++i) {
        const BalanceLine& species = variant_.species[i];
        const int amount = balanceOf(species);
        vCount[static_cast<std::size_t>(species.kind)] = amount;
        const bool trace = (species.trace == Trace::FromEquivalence && vVol >= equivalence) ||
                           (species.trace == Trace::UpToEquivalence && vVol <= equivalence);
        if (amount == shown_.balance[i] && trace == shown_.trace[i]) {
            continue;
        }
        shown_.balance[i] = amount;
        shown_.trace[i] = trace;
        const int index = static_cast<int>(i);
        const Color color = palette(amount == 0 ? 8 : 0);
        lab_Bilanz(index).setTextColor(color);
        lab_BilanzCount(index).setTextColor(color);
        lab_BilanzCount(index).setTerm((trace ? "~~ " : "") + std::to_string(amount) + " mmol");
    }
}

void Workbench::showVolumes() {
    for (const int source : {0, 1}) {
        const auto at = static_cast<std::size_t>(source);
        if (vSourceVol[at] != shown_.volume[at]) {
            shown_.volume[at] = vSourceVol[at];
            lab_Vol(source).setTerm(CoreLib().NumberService.Format(hGetVol(source), 3) + " L");
        }
    }
    if (variant_.totalVolumeShown) {
        showTotalVolume();
    } else if (shown_.concentration != session().SessionConcentration) {
        shown_.concentration = session().SessionConcentration;
        lab_Vol(2).setTerm(NumberService::pointText(shown_.concentration) + " mol/L");
    }
}

void Workbench::showTotalVolume() {
    if (vVol != shown_.total) {
        shown_.total = vVol;
        const double litres = (vVol + variant_.scale.waterMl) / 1000.0;
        lab_Vol(2).setTerm(CoreLib().NumberService.Format(litres, 3) + " L");
    }
}

} // namespace quendal
