#include "workbench/guidance/answer.h"

#include "host/number_service.h"

#include <cmath>

namespace quendal {

namespace {

bool agreeWithin(double number, double target, int digits) {
    const double power = std::pow(10.0, digits);
    return std::nearbyint(power * number) == std::nearbyint(power * target);
}

} // namespace

AnswerVerdict compareAnswer(const NumberService& numbers, std::string_view text, double target,
                            int digits) {
    if (text.empty()) {
        return AnswerVerdict::Empty;
    }
    const auto number = numbers.ParseVariant(text);
    if (!number) {
        return AnswerVerdict::Unreadable;
    }
    if (*number == target || (digits >= 0 && agreeWithin(*number, target, digits))) {
        return AnswerVerdict::Equal;
    }
    return AnswerVerdict::Differs;
}

} // namespace quendal
