// Single values as items of a stream: an array of one variant each.
#pragma once

#include "host/stream.h"

#include <stdexcept>
#include <utility>
#include <variant>

namespace quendal {

inline constexpr const char* kStoredVersion = "1.0"; // of a particle's and of a collection's form

template <class T>
void append(VariantArray& values, T value) {
    values.emplace_back().value = std::move(value);
}

template <class T>
void writeValue(Stream& stream, T value) {
    VariantArray item;
    append(item, std::move(value));
    stream.WriteItem(item);
}

inline Variant readVariant(Stream& stream) {
    auto item = stream.ReadItem();
    if (!item || item->size() != 1) {
        throw std::runtime_error("stored data break off");
    }
    return std::move(item->front());
}

// Throws std::runtime_error when the next item isn't one value of this type.
template <class T>
T readValue(Stream& stream) {
    Variant value = readVariant(stream);
    if (T* held = std::get_if<T>(&value.value)) {
        return std::move(*held);
    }
    throw std::runtime_error("stored data hold another type than expected");
}

} // namespace quendal
