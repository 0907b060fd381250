// Named values of a form or control for whoever looks from outside: the script player and tests.
#pragma once

#include "host/color.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

namespace quendal {

// An empty FieldValue is a value that was never set.
using FieldValue = std::variant<std::monostate, bool, std::int64_t, double, std::string, Color>;

template <class T>
FieldValue toFieldValue(const T& value) {
    if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, Color>) {
        return value;
    } else if constexpr (std::is_enum_v<T> || std::is_integral_v<T>) {
        return static_cast<std::int64_t>(value);
    } else if constexpr (std::is_floating_point_v<T>) {
        return static_cast<double>(value);
    } else {
        return std::string(value);
    }
}

class FieldTable {
  public:
    using Getter = std::function<FieldValue()>;
    using IndexedGetter = std::function<std::optional<FieldValue>(int index)>;

    // The table keeps references: it must not outlive what it describes.
    template <class T>
    void add(std::string name, const T& value) {
        plain_[std::move(name)] = [&value] { return toFieldValue(value); };
    }
    // A field that is there but has no value yet reads as an empty text.
    template <class T>
    void add(std::string name, const std::optional<T>& value) {
        plain_[std::move(name)] = [&value]() -> FieldValue {
            return value ? toFieldValue(*value) : FieldValue{};
        };
    }
    void addGetter(std::string name, Getter getter) { plain_[std::move(name)] = std::move(getter); }

    // `first` is the index of the first element in the form's own counting.
    template <class Array>
    void addArray(std::string name, const Array& values, int first = 0) {
        indexed_[std::move(name)] = [&values, first](int index) -> std::optional<FieldValue> {
            const auto position = static_cast<std::size_t>(index - first);
            if (index < first || position >= std::size(values)) {
                return std::nullopt;
            }
            return toFieldValue(values[position]);
        };
    }
    void addIndexedGetter(std::string name, IndexedGetter getter) {
        indexed_[std::move(name)] = std::move(getter);
    }

    // nullopt when no such field stands in the table.
    std::optional<FieldValue> find(const std::string& name) const;
    std::optional<FieldValue> find(const std::string& name, int index) const;
    // Names of the plain fields in alphabetical order.
    std::vector<std::string> names() const;

  private:
    std::map<std::string, Getter> plain_;
    std::map<std::string, IndexedGetter> indexed_;
};

} // namespace quendal
