#include "host/calc_presets.h"

namespace quendal {

void CalcPresets::Init(int capacity) {
    lines_.clear();
    capacity_ = capacity;
    open_ = true;
}

void CalcPresets::Add(const std::string& /*label*/, const std::string& term) {
    if (open_ && static_cast<int>(lines_.size()) < capacity_) {
        lines_.push_back(term);
    }
}

void CalcPresets::Finish() {
    open_ = false;
}

} // namespace quendal
