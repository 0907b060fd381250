#include "script/json_line.h"

#include <algorithm>

namespace quendal {

namespace {

// Length in bytes of the well-formed character at the start of `text`; 0 when there is none.
std::size_t characterLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    if (lead < 0x80U) {
        return 1;
    }
    const std::size_t length = lead >= 0xf0U ? 4 : lead >= 0xe0U ? 3 : 2;
    if (lead < 0xc2U || lead > 0xf4U || text.size() < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xc0U) != 0x80U) {
            return 0;
        }
    }
    // Overlong forms, surrogates and what lies behind the last code point.
    const unsigned second = byte(1);
    const bool refused = (lead == 0xe0U && second < 0xa0U) || (lead == 0xedU && second >= 0xa0U) ||
                         (lead == 0xf0U && second < 0x90U) || (lead == 0xf4U && second >= 0x90U);
    return refused ? 0 : length;
}

void addControlSign(std::string& out, char c) {
    static constexpr char kDigits[] = "0123456789abcdef";
    switch (c) {
    case '\n':
        out += "\\n";
        return;
    case '\r':
        out += "\\r";
        return;
    case '\t':
        out += "\\t";
        return;
    default:
        out += "\\u00";
        out += kDigits[static_cast<unsigned char>(c) >> 4];
        out += kDigits[static_cast<unsigned char>(c) & 15];
    }
}

} // namespace

std::string jsonText(std::string_view text) {
    std::string out = "\"";
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        const char c = text.front();
        if (length == 0) {
            out += "\xef\xbf\xbd";
        } else if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if ((static_cast<unsigned char>(c) < 0x20U) || c == 0x7f) {
            addControlSign(out, c);
        } else {
            out += text.substr(0, length);
        }
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return out + '"';
}

JsonLine& JsonLine::add(std::string_view key, std::string_view text) {
    return addRaw(key, jsonText(text));
}

JsonLine& JsonLine::add(std::string_view key, const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts) {
        list += (list.empty() ? "" : ",") + jsonText(text);
    }
    return addRaw(key, "[" + list + "]");
}

JsonLine& JsonLine::addRaw(std::string_view key, std::string_view value) {
    body_ += body_.empty() ? "" : ",";
    body_ += jsonText(key);
    body_ += ':';
    body_ += value;
    return *this;
}

} // namespace quendal
