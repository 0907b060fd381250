#include "host/packer.h"

#include "host/number_text.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>

namespace quendal {

namespace {

constexpr std::string_view kHeader = "quendal-pack 1 ";
constexpr int kMaxNesting = 32;
constexpr std::string_view kHexDigits = "0123456789abcdef";

template <class... Handlers>
struct Overloaded : Handlers... {
    using Handlers::operator()...;
};
template <class... Handlers>
Overloaded(Handlers...) -> Overloaded<Handlers...>;

std::string numberText(auto... arguments) {
    std::array<char, 32> buffer;
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), arguments...);
    return {buffer.data(), written.ptr};
}

std::string doubleText(double value) {
    if (!std::isnan(value)) {
        return "d" + numberText(value);
    }
    return "x" + numberText(std::bit_cast<std::uint64_t>(value), 16);
}

std::string quoted(const std::string& text) {
    std::string out = "s\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (byte < 0x20 || byte == 0x7f) {
            out += "\\x";
            out += kHexDigits[byte >> 4];
            out += kHexDigits[byte & 15];
        } else {
            out += c;
        }
    }
    return out + '"';
}

std::string arrayText(const VariantArray& values);

std::string itemText(const Variant& item) {
    return std::visit(Overloaded{[](std::monostate) { return std::string("n"); },
                                 [](bool flag) { return std::string(flag ? "t" : "f"); },
                                 [](std::int32_t number) { return "i" + numberText(number); },
                                 [](double number) { return doubleText(number); },
                                 [](const std::string& text) { return quoted(text); },
                                 [](const VariantArray& values) { return arrayText(values); }},
                      item.value);
}

std::string arrayText(const VariantArray& values) {
    std::string out = "[";
    for (const Variant& item : values) {
        if (out.size() > 1) {
            out += ' ';
        }
        out += itemText(item);
    }
    return out + ']';
}

class Unpacker {
  public:
    explicit Unpacker(std::string_view text) : rest_(text) {}

    std::optional<VariantArray> read() {
        VariantArray values;
        if (!take('[') || !readArray(values) || !rest_.empty()) {
            return std::nullopt;
        }
        return values;
    }

  private:
    // Reads behind "[" to the end of the array.
    bool readArray(VariantArray& values) {
        if (++nesting_ > kMaxNesting) {
            return false;
        }
        while (!take(']')) {
            if (!values.empty() && !take(' ')) {
                return false;
            }
            if (!readItem(values.emplace_back())) {
                return false;
            }
        }
        --nesting_;
        return true;
    }

    bool readItem(Variant& item) {
        if (rest_.empty()) {
            return false;
        }
        const char type = rest_.front();
        rest_.remove_prefix(1);
        switch (type) {
        case 'n':
            return true;
        case 't':
        case 'f':
            item.value = type == 't';
            return true;
        case 'i':
            return readInteger(item);
        case 'd':
            return readDouble(item);
        case 'x':
            return readNotANumber(item);
        case 's':
            return readString(item.value.emplace<std::string>());
        case '[':
            return readArray(item.value.emplace<VariantArray>());
        default:
            return false;
        }
    }

    std::string_view word() {
        const std::string_view word = rest_.substr(0, rest_.find_first_of(" ]"));
        rest_.remove_prefix(word.size());
        return word;
    }

    bool readInteger(Variant& item) {
        return readWhole(word(), item.value.emplace<std::int32_t>());
    }

    bool readDouble(Variant& item) {
        const std::string_view number = word();
        double& value = item.value.emplace<double>();
        // Texts such as "nan(1)" are more than the packer writes.
        const bool known = number == "inf" || number == "-inf" ||
                           number.find_first_not_of("0123456789+-.e") == std::string_view::npos;
        return known && readWhole(number, value);
    }

    bool readNotANumber(Variant& item) {
        const std::string_view number = word();
        std::uint64_t bits = 0;
        if (number.size() != 16 || !readWhole(number, bits, 16)) {
            return false;
        }
        const double value = std::bit_cast<double>(bits);
        item.value = value;
        return std::isnan(value);
    }

    bool readWhole(std::string_view number, auto& value, auto... base) {
        const char* const end = number.data() + number.size();
        const auto read = std::from_chars(number.data(), end, value, base...);
        return read.ec == std::errc() && read.ptr == end;
    }

    bool readString(std::string& text) {
        if (!take('"')) {
            return false;
        }
        while (!take('"')) {
            if (rest_.empty() || static_cast<unsigned char>(rest_.front()) < 0x20) {
                return false;
            }
            const bool escaped = take('\\');
            if (escaped ? !readEscaped(text) : !readPlain(text)) {
                return false;
            }
        }
        return true;
    }

    bool readPlain(std::string& text) {
        text += rest_.front();
        rest_.remove_prefix(1);
        return true;
    }

    bool readEscaped(std::string& text) {
        if (rest_.starts_with('"') || rest_.starts_with('\\')) {
            return readPlain(text);
        }
        unsigned char byte = 0;
        if (rest_.size() < 3 || !take('x') || !readWhole(rest_.substr(0, 2), byte, 16)) {
            return false;
        }
        rest_.remove_prefix(2);
        text += static_cast<char>(byte);
        return true;
    }

    bool take(char c) {
        if (!rest_.starts_with(c)) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }

    std::string_view rest_;
    int nesting_ = 0;
};

} // namespace

std::string Packer::Pack(const VariantArray& values) const {
    return std::string(kHeader) + arrayText(values);
}

std::optional<VariantArray> Packer::Unpack(std::string_view text) const {
    if (!text.starts_with(kHeader)) {
        return std::nullopt;
    }
    return Unpacker(text.substr(kHeader.size())).read();
}

} // namespace quendal
