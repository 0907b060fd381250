#include "particles/reactions.h"

#include <algorithm>

namespace quendal {

const Reaction* findReaction(int self, int other) {
    const auto found = std::find_if(kReactions.begin(), kReactions.end(), [=](const Reaction& one) {
        return one.self == self && one.other == other;
    });
    return found == kReactions.end() ? nullptr : &*found;
}

} // namespace quendal
