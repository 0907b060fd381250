// The stored and the packed form of a collection.
#include "particles/cls_Molecules.h"

#include "host/file_service.h"
#include "host/packer.h"
#include "host/roots.h"
#include "particles/stored_values.h"

#include <algorithm>
#include <exception>

namespace quendal {

void cls_Molecules::DATA_DataCopy(const cls_Molecules& source, bool& result) {
    result = true;
    if (&source == this) {
        return;
    }
    tmp_Data.Key = source.tmp_Data.Key;
    mol_.clear();
    for (const auto& particle : source.mol_) {
        DATABASE_DatabaseImport(nullptr, std::nullopt);
        mol_.back()->DATA_DataCopy(*particle, result);
    }
}

std::string cls_Molecules::DATA_DataPACK() const {
    VariantArray particles;
    for (const auto& particle : mol_) {
        append(particles, particle->packedValues());
    }
    VariantArray values;
    append(values, tmp_Data.Key);
    append(values, std::move(particles));
    return Packer().Pack(values);
}

void cls_Molecules::DATA_DataUnpack(const std::string& text) {
    const auto values = Packer().Unpack(text);
    if (!values || values->size() != 2) {
        return;
    }
    const auto* key = std::get_if<std::string>(&(*values)[0].value);
    const auto* packed = std::get_if<VariantArray>(&(*values)[1].value);
    if (key == nullptr || packed == nullptr) {
        return;
    }
    std::vector<std::shared_ptr<cls_Molecule>> particles;
    for (const Variant& one : *packed) {
        const auto* fields = std::get_if<VariantArray>(&one.value);
        particles.push_back(std::make_shared<cls_Molecule>());
        if (fields == nullptr || !particles.back()->takePacked(*fields)) {
            return;
        }
    }
    tmp_Data.Key = *key;
    adopt(std::move(particles));
}

void cls_Molecules::DATA_DataStore(Stream& stream) {
    writeValue(stream, std::string(kStoredVersion));
    writeValue(stream, tmp_Data.Key);
    writeValue(stream, static_cast<std::int32_t>(COUNT()));
    for (const auto& particle : mol_) {
        particle->DATA_DataStore(stream);
    }
}

void cls_Molecules::DATA_DataRead(Stream& stream) {
    if (readValue<std::string>(stream) != kStoredVersion) {
        return;
    }
    auto key = readValue<std::string>(stream);
    const auto count = readValue<std::int32_t>(stream);
    // One by one: a count that lies ends with the stream, before it can ask for much memory.
    std::vector<std::shared_ptr<cls_Molecule>> particles;
    for (std::int32_t i = 0; i < count; ++i) {
        particles.push_back(std::make_shared<cls_Molecule>());
        particles.back()->DATA_DataRead(stream);
    }
    tmp_Data.Key = std::move(key);
    adopt(std::move(particles));
}

std::shared_ptr<cls_Molecules> cls_Molecules::DATA_DataSpawn() const {
    return std::make_shared<cls_Molecules>();
}

bool cls_Molecules::LOAD(const std::string& file, const std::string& /*key*/) {
    try {
        const auto bytes = CoreLib().FileService.read(file);
        if (!bytes) {
            return false;
        }
        Stream stream = Stream::reader(*bytes);
        tmp_Data.Read(*this, stream);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool cls_Molecules::SAVE(const std::string& file, const std::string& /*key*/) {
    try {
        Stream stream = Stream::writer();
        tmp_Data.Store(*this, stream);
        return CoreLib().FileService.write(file, stream.bytes());
    } catch (const std::exception&) {
        return false;
    }
}

void cls_Molecules::adopt(std::vector<std::shared_ptr<cls_Molecule>> particles) {
    mol_ = std::move(particles);
    for (const auto& particle : mol_) {
        particle->Parent = this;
    }
}

} // namespace quendal
