// One JSON object on one line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quendal {

// In double quotes, with all that JSON wants escaped. Bytes that are no UTF-8 become U+FFFD.
std::string jsonText(std::string_view text);

class JsonLine {
  public:
    JsonLine& add(std::string_view key, std::string_view text);
    JsonLine& add(std::string_view key, const std::vector<std::string>& texts);
    // `value` stands as it is: a number, or JSON made elsewhere.
    JsonLine& addRaw(std::string_view key, std::string_view value);
    // Without a line end.
    std::string text() const { return "{" + body_ + "}"; }

  private:
    std::string body_;
};

} // namespace quendal
