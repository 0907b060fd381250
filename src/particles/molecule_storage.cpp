// The stored and the packed form of a particle.
#include "particles/cls_Molecule.h"

#include "host/packer.h"
#include "particles/stored_values.h"

#include <span>
#include <type_traits>

namespace quendal {

namespace {

enum class Form { Stored, Packed };

constexpr std::size_t kFields = 16;                // those that eachField visits
constexpr std::size_t kPackedValues = 2 + kFields; // key and sort in front

// Visits the fields behind the sort in the order of the form, for as long as `visit` gives true.
// The size factor stands in the middle of the stored form and at the end of the packed one.
template <class Particle, class Visit>
bool eachField(Particle& p, Form form, Visit visit) {
    const bool stored = form == Form::Stored;
    return visit(p.PosX) && visit(p.PosY) && visit(p.Mark1) && visit(p.TargetX) &&
           visit(p.TargetY) && visit(p.Fade) && (!stored || visit(p.Scale)) && visit(p.BornAt) &&
           visit(p.Value1) && visit(p.Value2) && visit(p.Mark2) && visit(p.Mark3) &&
           visit(p.Mark4) && visit(p.Count1) && visit(p.Count2) && visit(p.Count3) &&
           (stored || visit(p.Scale));
}

void appendFields(VariantArray& values, const cls_Molecule& particle, Form form) {
    eachField(particle, form, [&](const auto& field) {
        append(values, field);
        return true;
    });
}

// False, and nothing changes, when a value isn't of its field's type.
bool takeFields(cls_Molecule& particle, Form form, std::span<const Variant> values) {
    auto next = values.begin();
    const bool fits = eachField(particle, form, [&](const auto& field) {
        return std::holds_alternative<std::decay_t<decltype(field)>>((next++)->value);
    });
    if (!fits) {
        return false;
    }
    next = values.begin();
    return eachField(particle, form, [&](auto& field) {
        field = std::get<std::decay_t<decltype(field)>>((next++)->value);
        return true;
    });
}

} // namespace

void cls_Molecule::DATA_DataCopy(const cls_Molecule& source, bool& result) {
    VariantArray values;
    appendFields(values, source, Form::Stored);
    takeFields(*this, Form::Stored, values);
    tmp_Data.Key = source.tmp_Data.Key;
    sort_ = source.sort_;
    result = true;
}

void cls_Molecule::DATA_DataPACK(std::string& result) const {
    result = Packer().Pack(packedValues());
}

void cls_Molecule::DATA_DataUnpack(const std::string& text) {
    if (const auto values = Packer().Unpack(text)) {
        takePacked(*values);
    }
}

VariantArray cls_Molecule::packedValues() const {
    VariantArray values;
    append(values, tmp_Data.Key);
    append(values, SORT());
    appendFields(values, *this, Form::Packed);
    return values;
}

bool cls_Molecule::takePacked(const VariantArray& values) {
    if (values.size() != kPackedValues || !std::holds_alternative<std::string>(values[0].value) ||
        !std::holds_alternative<std::int32_t>(values[1].value) ||
        !takeFields(*this, Form::Packed, std::span(values).subspan(2))) {
        return false;
    }
    tmp_Data.Key = std::get<std::string>(values[0].value);
    return true;
}

void cls_Molecule::DATA_DataStore(Stream& stream) {
    writeValue(stream, std::string(kStoredVersion));
    writeValue(stream, tmp_Data.Key);
    writeValue(stream, SORT());
    eachField(*this, Form::Stored, [&](const auto& field) {
        writeValue(stream, field);
        return true;
    });
}

void cls_Molecule::DATA_DataRead(Stream& stream) {
    if (readValue<std::string>(stream) != kStoredVersion) {
        return;
    }
    auto key = readValue<std::string>(stream);
    readValue<std::int32_t>(stream); // the sort, which this format loses
    VariantArray values;
    while (values.size() < kFields) {
        values.push_back(readVariant(stream));
    }
    if (!takeFields(*this, Form::Stored, values)) {
        throw std::runtime_error("stored data of a particle hold another type than expected");
    }
    tmp_Data.Key = std::move(key);
}

void cls_Molecule::DATA_DataSpawn(std::shared_ptr<cls_Molecule>& result) const {
    result = std::make_shared<cls_Molecule>();
}

} // namespace quendal
