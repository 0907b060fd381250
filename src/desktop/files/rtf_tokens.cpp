#include "desktop/files/rtf_tokens.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr int kGreatestParameter = 1000000;
constexpr std::size_t kLongestWord = 32;

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

int hexValue(char c) {
    if (isDigit(c)) {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

} // namespace

RtfToken RtfTokenizer::next() {
    while (at_ < bytes_.size() && (bytes_[at_] == '\r' || bytes_[at_] == '\n')) {
        ++at_;
    }
    if (at_ >= bytes_.size()) {
        return {};
    }
    switch (bytes_[at_]) {
    case '{':
        return {.kind = RtfToken::Kind::GroupOpen, .text = bytes_.substr(at_++, 1)};
    case '}':
        return {.kind = RtfToken::Kind::GroupClose, .text = bytes_.substr(at_++, 1)};
    case '\\':
        ++at_;
        return control();
    default:
        return plain();
    }
}

RtfToken RtfTokenizer::control() {
    if (at_ >= bytes_.size()) {
        return {};
    }
    if (isLetter(bytes_[at_])) {
        return word();
    }
    const char sign = bytes_[at_++];
    if (sign == '\'') {
        return hexByte();
    }
    return {.kind = RtfToken::Kind::Symbol, .text = bytes_.substr(at_ - 1, 1)};
}

RtfToken RtfTokenizer::word() {
    const std::size_t start = at_;
    while (at_ < bytes_.size() && isLetter(bytes_[at_]) && at_ - start < kLongestWord) {
        ++at_;
    }
    RtfToken token{.kind = RtfToken::Kind::Word, .text = bytes_.substr(start, at_ - start)};
    const bool minus = at_ + 1 < bytes_.size() && bytes_[at_] == '-' && isDigit(bytes_[at_ + 1]);
    at_ += minus ? 1 : 0;
    token.hasNumber = at_ < bytes_.size() && isDigit(bytes_[at_]);
    token.number = minus ? -parameter() : parameter();
    if (at_ < bytes_.size() && bytes_[at_] == ' ') {
        ++at_;
    }
    if (token.text == "bin" && token.number > 0) {
        at_ = std::min(bytes_.size(), at_ + static_cast<std::size_t>(token.number));
    }
    return token;
}

int RtfTokenizer::parameter() {
    int value = 0;
    for (; at_ < bytes_.size() && isDigit(bytes_[at_]); ++at_) {
        value = std::min(kGreatestParameter, value * 10 + (bytes_[at_] - '0'));
    }
    return value;
}

RtfToken RtfTokenizer::hexByte() {
    int value = 0;
    for (int digit = 0; digit < 2 && at_ < bytes_.size(); ++digit) {
        const int half = hexValue(bytes_[at_]);
        if (half < 0) {
            return {.kind = RtfToken::Kind::Byte, .text = {}, .number = '?', .hasNumber = true};
        }
        value = value * 16 + half;
        ++at_;
    }
    return {.kind = RtfToken::Kind::Byte, .text = {}, .number = value, .hasNumber = true};
}

RtfToken RtfTokenizer::plain() {
    const std::size_t start = at_;
    at_ = std::min(bytes_.size(), bytes_.find_first_of("\\{}\r\n", at_));
    return {.kind = RtfToken::Kind::Text, .text = bytes_.substr(start, at_ - start)};
}

} // namespace quendal
