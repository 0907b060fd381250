#include "desktop/files/wav_check.h"

#include <cstddef>
#include <cstdint>

namespace quendal {

namespace {

constexpr std::size_t kFileHead = 12;   // bytes: "RIFF", length, "WAVE"
constexpr std::size_t kChunkHead = 8;   // bytes: name, length
constexpr std::size_t kFormatSize = 16; // bytes, at least
constexpr unsigned kPlainSamples = 1;
constexpr unsigned kMostChannels = 2;
constexpr std::uint32_t kHighestRate = 192'000; // Hz

// Low byte first.
unsigned wordAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]) + 256U * static_cast<unsigned char>(bytes[at + 1]);
}
std::uint32_t doubleWordAt(std::string_view bytes, std::size_t at) {
    return wordAt(bytes, at) + 65536U * wordAt(bytes, at + 2);
}

bool isKnownFormat(std::string_view chunk) {
    if (chunk.size() < kFormatSize) {
        return false;
    }
    const unsigned channels = wordAt(chunk, 2);
    const std::uint32_t rate = doubleWordAt(chunk, 4);
    const unsigned bits = wordAt(chunk, 14);
    return wordAt(chunk, 0) == kPlainSamples && channels >= 1 && channels <= kMostChannels &&
           rate > 0 && rate <= kHighestRate && (bits == 8 || bits == 16);
}

} // namespace

std::string_view wavFault(std::string_view bytes) {
    if (bytes.size() < kFileHead || !bytes.starts_with("RIFF") || bytes.substr(8, 4) != "WAVE") {
        return "das ist keine WAV-Datei";
    }
    bytes.remove_prefix(kFileHead);
    bool known = false;
    while (bytes.size() >= kChunkHead) {
        const std::string_view name = bytes.substr(0, 4);
        const std::size_t length = doubleWordAt(bytes, 4);
        bytes.remove_prefix(kChunkHead);
        if (length > bytes.size()) {
            break;
        }
        if (name == "fmt ") {
            known = isKnownFormat(bytes.substr(0, length));
        } else if (name == "data") {
            return known ? "" : "diese Art von WAV-Datei kennt das Programm nicht";
        }
        const std::size_t padded = length + length % 2;
        bytes.remove_prefix(padded < bytes.size() ? padded : bytes.size());
    }
    return "die Datei bricht mittendrin ab";
}

} // namespace quendal
