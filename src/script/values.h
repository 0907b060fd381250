// How a script writes values and compares them.
#pragma once

#include "host/field_table.h"

#include <optional>
#include <string>
#include <string_view>

namespace quendal {

// 15 significant digits with a point, as "%.15G".
std::string numberText(double value);

// Truth as "true" or "false", numbers by numberText, colours as "#rrggbb", what was never set as
// the empty text.
std::string valueText(const FieldValue& value);

// The whole text as a number with a point: sign, digits, exponent. nullopt for all else.
std::optional<double> plainNumber(std::string_view text);

// Whole text as a number of type int.
std::optional<int> wholeNumber(std::string_view text);

// As numbers where both are numbers, else as texts in which "\r\n" and "\n" are the same.
bool sameValue(std::string_view found, std::string_view asked);

// `found` may have a decimal comma, as what the learner sees has; false when it is no number.
bool nearValue(std::string_view found, double asked, double tolerance);

// `pattern` is the text itself, "*" for anything, or a beginning with "*" behind it. Line ends are
// compared as in sameValue.
bool fitsPattern(std::string_view text, std::string_view pattern);

// Whether `name` names the sound `played`: the same, or the end of its path. "\" and "/" are the
// same.
bool namesSound(std::string_view name, std::string_view played);

} // namespace quendal
