#include "particles/cls_Molecules.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace quendal {

namespace {

// The form in which keys are compared.
std::string comparable(std::string_view key) {
    const auto first = key.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    std::string text(key.substr(first, key.find_last_not_of(" \t") - first + 1));
    std::transform(text.begin(), text.end(), text.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return text;
}

} // namespace

cls_Molecules::cls_Molecules() : tmp_Data("cls_Molecules"), tmp_Database(*this) {}

void cls_Molecules::DATABASE_DatabaseClear() {
    mol_.clear();
}

void cls_Molecules::DATABASE_DatabaseImport(std::shared_ptr<cls_Molecule> item,
                                            const std::optional<std::string>& key) {
    mol_.push_back(item ? std::move(item) : std::make_shared<cls_Molecule>());
    mol_.back()->Parent = this;
    if (key) {
        mol_.back()->tmp_Data.Key = *key;
    }
}

cls_Molecule& cls_Molecules::DATABASE_DatabaseItem(int index) {
    return *mol_[checked(index)];
}

void cls_Molecules::DATABASE_DatabaseRemove(int index) {
    std::swap(mol_[checked(index)], mol_.back());
    mol_.pop_back();
}

int cls_Molecules::DATABASE_DatabaseSearch(const std::string& key) const {
    const std::string wanted = comparable(key);
    const auto found = std::find_if(mol_.begin(), mol_.end(), [&](const auto& particle) {
        return comparable(particle->tmp_Data.Key) == wanted;
    });
    return found == mol_.end() ? 0 : static_cast<int>(found - mol_.begin()) + 1;
}

cls_Molecule& cls_Molecules::ITEM(const KeyOrIndex& which, bool /*flag*/) {
    cls_Molecule& particle = tmp_Database.ItemOf(which);
    particle.Parent = this;
    return particle;
}

bool cls_Molecules::REMOVE(const KeyOrIndex& which, bool /*flag*/) {
    return tmp_Database.Remove(which);
}

cls_Molecule& cls_Molecules::ADD(std::shared_ptr<cls_Molecule> particle,
                                 const std::optional<std::string>& key) {
    DATABASE_DatabaseImport(std::move(particle), key);
    return ITEM(COUNT());
}

cls_Molecule& cls_Molecules::CREATE(std::int32_t sort, double x, double y) {
    auto particle = std::make_shared<cls_Molecule>();
    particle->setSORTREAL(sort);
    particle->PosX = particle->TargetX = x;
    particle->PosY = particle->TargetY = y;
    return ADD(std::move(particle));
}

int cls_Molecules::COUNTSORT(std::int32_t sort) const {
    const std::int32_t kind = std::abs(sort);
    return static_cast<int>(std::count_if(
        mol_.begin(), mol_.end(), [=](const auto& particle) { return particle->SORT() == kind; }));
}

bool cls_Molecules::removeParticle(const cls_Molecule& particle) {
    const auto found = std::find_if(mol_.begin(), mol_.end(),
                                    [&](const auto& held) { return held.get() == &particle; });
    if (found == mol_.end()) {
        return false;
    }
    DATABASE_DatabaseRemove(static_cast<int>(found - mol_.begin()) + 1);
    return true;
}

std::shared_ptr<cls_Molecule> cls_Molecules::removeReacted(const cls_Molecule& thinker) {
    std::shared_ptr<cls_Molecule> removedThinker;
    for (int index = 1; index <= COUNT();) {
        const auto& particle = mol_[static_cast<std::size_t>(index - 1)];
        if (particle->SORT() != kReactedAway) {
            ++index;
            continue;
        }
        if (particle.get() == &thinker) {
            removedThinker = particle;
        }
        DATABASE_DatabaseRemove(index);
    }
    return removedThinker;
}

std::size_t cls_Molecules::checked(int index) const {
    if (index < 1 || index > COUNT()) {
        throw std::out_of_range("no such particle");
    }
    return static_cast<std::size_t>(index - 1);
}

} // namespace quendal
