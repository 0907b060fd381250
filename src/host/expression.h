// The arithmetic of the popup calculator.
#pragma once

#include <string>
#include <string_view>

namespace quendal {

enum class ExpressionFault {
    None,
    Empty,          // nothing to work out
    Syntax,         // a sign that doesn't belong there
    DivisionByZero, // also 0 to a negative power
    LogarithmRange, // logarithm of 0 or of a negative number
    Range           // the result is no finite real number
};

struct ExpressionResult {
    double value = 0; // valid only without a fault
    ExpressionFault fault = ExpressionFault::None;

    explicit operator bool() const { return fault == ExpressionFault::None; }
};

// + - * / ^ (right associative, binds tighter than a sign before it), parentheses, signs, "log"
// (decadic), comma or point, "E" numbers. Missing closing parentheses are closed, a trailing
// operator is dropped. Texts above 1000 characters or 200 nestings are a Syntax fault.
ExpressionResult evaluateExpression(std::string_view text);

// The German word for a fault, as the display shows it; empty for None.
std::string faultText(ExpressionFault fault);

} // namespace quendal
