#include "curve_file.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace quendal::curves {

namespace {

std::string rowText(const std::vector<CurveColumn>& columns, std::size_t row) {
    std::string text;
    for (const CurveColumn& column : columns) {
        text += text.empty() ? "" : ";";
        text += fixedText(column.values[row], column.decimals);
    }
    return text + "\n";
}

std::string namesText(const std::vector<CurveColumn>& columns) {
    std::string text;
    for (const CurveColumn& column : columns) {
        text += (text.empty() ? "" : ";") + column.name;
    }
    return text + "\n";
}

} // namespace

std::string fixedText(double value, int decimals) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed, decimals)
                         .ptr;
    return {buffer.data(), end};
}

std::string curveText(const CurveFile& file) {
    std::string text;
    for (const std::string& note : file.notes) {
        text += (note.empty() ? "#" : "# " + note) + "\n";
    }
    text += "# x-Achse: " + file.xTitle + "\n# y-Achse: " + file.yTitle + "\n";
    text += namesText(file.columns);
    for (std::size_t row = 0; row < file.columns.front().values.size(); ++row) {
        text += rowText(file.columns, row);
    }
    return text;
}

void writeCurveFile(const std::string& folder, const CurveFile& file) {
    const std::filesystem::path path = std::filesystem::path(folder) / file.name;
    std::ofstream stream(path, std::ios::binary);
    stream << curveText(file);
    stream.close();
    if (!stream) {
        throw std::runtime_error("can't write " + path.string());
    }
}

} // namespace quendal::curves
