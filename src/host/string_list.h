// Ordered list of texts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quendal {

class StringList {
  public:
    // Appends the pieces of `text`; an empty text has no pieces, an empty piece counts.
    void Split(std::string_view text, char separator);
    // Whether `value` stands in the list as a whole item.
    bool Contains(std::string_view value) const;
    void Clear() { items_.clear(); }
    const std::vector<std::string>& items() const { return items_; }

  private:
    std::vector<std::string> items_;
};

} // namespace quendal
