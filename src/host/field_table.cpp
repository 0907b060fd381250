#include "host/field_table.h"

namespace quendal {

std::optional<FieldValue> FieldTable::find(const std::string& name) const {
    const auto found = plain_.find(name);
    return found == plain_.end() ? std::nullopt : std::optional(found->second());
}

std::optional<FieldValue> FieldTable::find(const std::string& name, int index) const {
    const auto found = indexed_.find(name);
    return found == indexed_.end() ? std::nullopt : found->second(index);
}

std::vector<std::string> FieldTable::names() const {
    std::vector<std::string> names;
    for (const auto& [name, getter] : plain_) {
        names.push_back(name);
    }
    return names;
}

} // namespace quendal
