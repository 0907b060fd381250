#include "handbook_text.h"

#include <algorithm>
#include <sstream>

namespace quendal::test {

namespace {

constexpr std::string_view kFence = "```";

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string withoutMarks(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '`'), text.end());
    return trimmed(text);
}

TableRow cells(const std::string& line) {
    TableRow row;
    std::istringstream parts(line.substr(1)); // behind the first bar
    for (std::string cell; std::getline(parts, cell, '|');) {
        row.push_back(withoutMarks(cell));
    }
    return row;
}

} // namespace

std::vector<std::string> HandbookText::lines() const {
    std::vector<std::string> all;
    std::istringstream stream(text_);
    for (std::string line; std::getline(stream, line);) {
        all.push_back(line);
    }
    return all;
}

std::vector<FencedBlock> HandbookText::blocks(std::string_view language) const {
    std::vector<FencedBlock> found;
    bool inside = false;
    std::size_t indent = 0;
    for (const std::string& line : lines()) {
        const std::size_t start = std::min(line.find_first_not_of(' '), line.size());
        const bool fence = std::string_view(line).substr(start, kFence.size()) == kFence;
        if (fence && !inside) {
            indent = start;
            found.push_back({.language = line.substr(start + kFence.size()), .text = {}});
        } else if (!fence && inside) {
            found.back().text += line.substr(std::min(indent, start)) + "\n";
        }
        inside = fence ? !inside : inside;
    }
    std::erase_if(found, [language](const FencedBlock& one) { return one.language != language; });
    return found;
}

std::vector<TableRow> HandbookText::table(std::string_view head) const {
    std::vector<TableRow> rows;
    bool inside = false;
    for (const std::string& line : lines()) {
        const bool row = !line.empty() && line.front() == '|';
        if (inside && !row) {
            break;
        }
        if (inside && line.substr(0, 4) != "|---") {
            rows.push_back(cells(line));
        }
        inside = inside || line.compare(0, head.size(), head) == 0;
    }
    return rows;
}

std::vector<std::string> HandbookText::targets() const {
    std::vector<std::string> found;
    for (std::size_t at = text_.find("]("); at != std::string::npos; at = text_.find("](", at)) {
        at += 2;
        found.push_back(text_.substr(at, text_.find(')', at) - at));
    }
    return found;
}

std::vector<std::string> HandbookText::headings() const {
    std::vector<std::string> found;
    for (const std::string& line : lines()) {
        if (!line.empty() && line.front() == '#') {
            found.push_back(withoutMarks(line.substr(line.find_first_not_of('#'))));
        }
    }
    return found;
}

} // namespace quendal::test
