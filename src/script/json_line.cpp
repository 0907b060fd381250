#include "script/json_line.h"

#include "host/utf8.h"

#include <algorithm>

namespace quendal {

namespace {

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
        const std::size_t length = utf8Length(text, 0);
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
