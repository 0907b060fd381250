// Comparing a learner's answer with a reference value.
#pragma once

#include <string_view>

namespace quendal {

class NumberService;

enum class AnswerVerdict {
    Equal,
    Differs,
    Empty,     // neither a mistake nor an answer
    Unreadable // characters that belong to no number
};

// `digits` decimals count: both numbers are multiplied by 10^digits and rounded half to even before
// they are compared; below 0 only equal numbers agree.
AnswerVerdict compareAnswer(const NumberService& numbers, std::string_view text, double target,
                            int digits);

} // namespace quendal
