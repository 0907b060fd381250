// Forms that can be shown alone, in place of the whole program: for looking at one without the way
// that leads to it.
#pragma once

#include "host/form.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace quendal {

// What whoever shows a form sets before, under its name in the code.
struct SingleFormField {
    const char* name;
    // False when the text is no value of the field. Without a form it only looks at the text.
    bool (*take)(Form* form, std::string_view text);
};

struct SingleForm {
    const char* name;
    std::unique_ptr<Form> (*make)();
    std::span<const SingleFormField> fields;
};

// All that there are.
std::span<const SingleForm> singleForms();

using FieldTexts = std::vector<std::pair<std::string, std::string>>; // name and value
// Shows the form on a prepared session and comes back, or doesn't, when it has left the screen.
using ShowAlone = std::function<void(Form& form, const std::string& commandLine)>;

// A program that hands the form with its fields set to `show`. Empty, and the reason in `fault`,
// when `forms` has no such form, the form no such field or the field no such value.
std::function<void(const std::string& commandLine)>
singleFormProgram(std::span<const SingleForm> forms, const std::string& name,
                  const FieldTexts& fields, const ShowAlone& show, std::string& fault);

// Whole texts only: "true" and "false", numbers with a point.
std::optional<bool> readBool(std::string_view text);
std::optional<std::int32_t> readInt(std::string_view text);
std::optional<double> readDouble(std::string_view text);

// The `take` of the field `field` of the form class F.
template <class F, auto field>
bool takeText(Form* form, std::string_view text) {
    using Value = std::remove_cvref_t<decltype(std::declval<F&>().*field)>;
    std::optional<Value> value;
    if constexpr (std::is_same_v<Value, bool>) {
        value = readBool(text);
    } else if constexpr (std::is_same_v<Value, double>) {
        value = readDouble(text);
    } else {
        value = readInt(text);
    }
    if (form != nullptr && value) {
        static_cast<F*>(form)->*field = *value;
    }
    return value.has_value();
}

} // namespace quendal
