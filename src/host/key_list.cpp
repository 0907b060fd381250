#include "host/key_list.h"

#include <algorithm>

namespace quendal {

void KeyList::Add(std::string key, std::string item) {
    entries_.push_back({std::move(key), std::move(item)});
}

const std::string& KeyList::Item(int index) const {
    static const std::string kNothing;
    return Exists(index) ? entries_[static_cast<std::size_t>(index - 1)].item : kNothing;
}

bool KeyList::Exists(std::string_view key) const {
    return std::any_of(entries_.begin(), entries_.end(),
                       [key](const Entry& entry) { return entry.key == key; });
}

bool KeyList::Remove(std::string_view key) {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [key](const Entry& entry) { return entry.key == key; });
    if (found == entries_.end()) {
        return false;
    }
    entries_.erase(found);
    return true;
}

void KeyList::Sort(int order) {
    if (order != -1) {
        return;
    }
    std::stable_sort(entries_.begin(), entries_.end(),
                     [](const Entry& a, const Entry& b) { return a.item < b.item; });
}

} // namespace quendal
