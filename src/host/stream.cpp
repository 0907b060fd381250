#include "host/stream.h"

#include "host/packer.h"

#include <string_view>

namespace quendal {

namespace {

constexpr std::string_view kHeader = "quendal-stream 1";

// The line that begins at `position`, which moves behind its end; nullopt at the end of the bytes.
std::optional<std::string_view> nextLine(std::string_view bytes, std::size_t& position) {
    if (position >= bytes.size()) {
        return std::nullopt;
    }
    const std::size_t end = bytes.find('\n', position);
    const std::size_t size = end == std::string_view::npos ? end : end - position;
    std::string_view line = bytes.substr(position, size);
    position += line.size() + 1;
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

} // namespace

Stream::Stream(Mode mode, std::string bytes) : mode_(mode), bytes_(std::move(bytes)) {
    if (mode_ == Mode::Write) {
        bytes_.append(kHeader) += '\n';
    } else {
        good_ = nextLine(bytes_, position_) == kHeader;
    }
}

Stream Stream::writer() {
    return {Mode::Write, {}};
}

Stream Stream::reader(std::string bytes) {
    return {Mode::Read, std::move(bytes)};
}

void Stream::WriteItem(const VariantArray& item) {
    if (mode_ == Mode::Write) {
        bytes_.append(Packer().Pack(item)) += '\n';
    }
}

std::optional<VariantArray> Stream::ReadItem() {
    if (mode_ != Mode::Read || !good_) {
        return std::nullopt;
    }
    const auto line = nextLine(bytes_, position_);
    auto item = line ? Packer().Unpack(*line) : std::nullopt;
    good_ = item.has_value();
    return item;
}

} // namespace quendal
