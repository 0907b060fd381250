#include "host/string_list.h"

#include <algorithm>

namespace quendal {

void StringList::Split(std::string_view text, char separator) {
    if (text.empty()) {
        return;
    }
    std::size_t start = 0;
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator, start)) {
        items_.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    items_.emplace_back(text.substr(start));
}

bool StringList::Contains(std::string_view value) const {
    return std::find(items_.begin(), items_.end(), value) != items_.end();
}

} // namespace quendal
