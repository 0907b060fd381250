// The handbook taken apart: fenced blocks, rows of tables, pictures, links.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quendal::test {

struct FencedBlock {
    std::string language; // behind the opening fence
    std::string text;     // without the indent of its fence
};

using TableRow = std::vector<std::string>; // cells without blanks around and without "`"

class HandbookText {
  public:
    explicit HandbookText(std::string text) : text_(std::move(text)) {}

    const std::string& text() const { return text_; }
    std::vector<FencedBlock> blocks(std::string_view language) const;
    // The rows beneath the head that begins with `head`, up to the table's end.
    std::vector<TableRow> table(std::string_view head) const;
    // What stands in parentheses behind "](".
    std::vector<std::string> targets() const;
    // Headings without "#" and "`".
    std::vector<std::string> headings() const;

  private:
    std::vector<std::string> lines() const;

    std::string text_;
};

} // namespace quendal::test
