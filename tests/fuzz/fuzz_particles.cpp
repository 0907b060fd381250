// Stored and packed particles: a collection is read whole or not at all, and what was read can be
// written and read again.
#include "fuzz_input.h"
#include "host/stream.h"
#include "particles/cls_Molecules.h"
#include "support/fake_roots.h"

#include <stdexcept>

namespace quendal {
namespace {

constexpr std::int32_t kAcid = 7; // any sort will do

bool readStored(cls_Molecules& particles, std::string_view bytes) {
    try {
        Stream stream = Stream::reader(std::string(bytes));
        particles.DATA_DataRead(stream);
        return true;
    } catch (const std::runtime_error&) {
        return false;
    }
}

std::string stored(cls_Molecules& particles) {
    Stream stream = Stream::writer();
    particles.DATA_DataStore(stream);
    return stream.bytes();
}

void checkStored(std::string_view bytes) {
    cls_Molecules particles;
    particles.CREATE(kAcid, 10, 20);
    const std::string before = stored(particles);
    const bool read = readStored(particles, bytes);
    const std::string once = stored(particles);
    require(read || once == before);
    if (once == before) { // broken, or of another version
        return;
    }
    for (const auto& particle : particles.particles()) {
        require(particle->Parent == &particles);
    }
    cls_Molecules again;
    require(readStored(again, once) && again.COUNT() == particles.COUNT());
    require(stored(again) == once);
}

void checkPacked(const std::string& text) {
    cls_Molecules particles;
    particles.DATA_DataUnpack(text);
    const std::string once = particles.DATA_DataPACK();
    cls_Molecules again;
    again.DATA_DataUnpack(once);
    require(again.COUNT() == particles.COUNT() && again.DATA_DataPACK() == once);
}

void checkSinglePacked(const std::string& text) {
    cls_Molecule particle;
    particle.DATA_DataUnpack(text);
    std::string once;
    particle.DATA_DataPACK(once);
    cls_Molecule again;
    again.DATA_DataUnpack(once);
    std::string twice;
    again.DATA_DataPACK(twice);
    require(twice == once);
}

} // namespace
} // namespace quendal

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    static test::FakeHost host; // stored objects ask it for the ending of their class names
    const std::string text(fuzzText(data, size));
    checkStored(text);
    checkPacked(text);
    checkSinglePacked(text);
    return 0;
}
