#include "host/expression.h"

#include "host/number_text.h"

#include <cmath>

namespace quendal {

namespace {

constexpr std::size_t kMaxLength = 1000;
constexpr int kMaxNesting = 200;

// Works the text out while it reads it. A sign that doesn't belong there outweighs a fault of the
// arithmetic, even one met before it: what can't be read has no value to complain about.
class Reader {
  public:
    explicit Reader(std::string_view text) : rest_(text) {}

    ExpressionResult result() {
        const double value = sum();
        if (!rest_.empty()) {
            syntax();
        }
        return fault_ == ExpressionFault::None ? ExpressionResult{value, fault_}
                                               : ExpressionResult{0, fault_};
    }

  private:
    double sum() {
        double value = product();
        for (;;) {
            if (take('+')) {
                value = finite(value + product());
            } else if (take('-')) {
                value = finite(value - product());
            } else {
                return value;
            }
        }
    }

    double product() {
        double value = factor();
        for (;;) {
            if (take('*')) {
                value = finite(value * factor());
            } else if (take('/')) {
                value = quotient(value, factor());
            } else {
                return value;
            }
        }
    }

    double factor() {
        bool negative = false;
        for (;;) {
            if (take('-')) {
                negative = !negative;
            } else if (!take('+')) {
                break;
            }
        }
        const double value = power();
        return negative ? -value : value;
    }

    // The exponent may begin with a sign: "10^-14".
    double power() {
        const double base = primary();
        return take('^') ? raised(base, factor()) : base;
    }

    double primary() {
        if (takeLog()) {
            return logarithm(parenthesis());
        }
        skipBlanks();
        if (!rest_.empty() && rest_.front() == '(') {
            return parenthesis();
        }
        const ScannedNumber number = scanNumber(rest_, DecimalSigns::PointOrComma);
        if (!number) {
            return syntax();
        }
        rest_.remove_prefix(number.length);
        return finite(number.value);
    }

    double parenthesis() {
        if (!take('(') || ++nesting_ > kMaxNesting) {
            return syntax();
        }
        const double value = sum();
        --nesting_;
        skipBlanks();
        const bool closedByTheEnd = rest_.empty();
        if (!closedByTheEnd && !take(')')) {
            return syntax();
        }
        return value;
    }

    double quotient(double dividend, double divisor) {
        return divisor == 0 ? failed(ExpressionFault::DivisionByZero) : finite(dividend / divisor);
    }
    double raised(double base, double exponent) {
        if (base == 0 && exponent < 0) {
            return failed(ExpressionFault::DivisionByZero);
        }
        return finite(std::pow(base, exponent));
    }
    double logarithm(double value) {
        return value > 0 ? std::log10(value) : failed(ExpressionFault::LogarithmRange);
    }
    double finite(double value) {
        return std::isfinite(value) ? value : failed(ExpressionFault::Range);
    }

    // What stands for a value that can't be had while the rest is read.
    double failed(ExpressionFault fault) {
        if (fault_ == ExpressionFault::None) {
            fault_ = fault;
        }
        return 1;
    }
    // Nothing behind the fault is read any more.
    double syntax() {
        fault_ = ExpressionFault::Syntax;
        rest_ = {};
        return 1;
    }

    void skipBlanks() {
        while (!rest_.empty() && isBlank(rest_.front())) {
            rest_.remove_prefix(1);
        }
    }
    bool take(char c) {
        skipBlanks();
        if (rest_.empty() || rest_.front() != c) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }
    bool takeLog() {
        skipBlanks();
        const auto is = [this](std::size_t at, char c) { return (rest_[at] | 0x20) == c; };
        if (rest_.size() < 3 || !is(0, 'l') || !is(1, 'o') || !is(2, 'g')) {
            return false;
        }
        rest_.remove_prefix(3);
        return true;
    }

    std::string_view rest_;
    ExpressionFault fault_ = ExpressionFault::None;
    int nesting_ = 0;
};

std::string_view withoutTrailingOperators(std::string_view text) {
    constexpr std::string_view kDropped = "+-*/^ \t";
    const std::size_t last = text.find_last_not_of(kDropped);
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

} // namespace

ExpressionResult evaluateExpression(std::string_view text) {
    if (text.size() > kMaxLength) {
        return {0, ExpressionFault::Syntax};
    }
    const std::string_view kept = withoutTrailingOperators(text);
    return kept.empty() ? ExpressionResult{0, ExpressionFault::Empty} : Reader(kept).result();
}

std::string faultText(ExpressionFault fault) {
    switch (fault) {
    case ExpressionFault::None:
        return {};
    case ExpressionFault::Empty:
        return "Da steht noch nichts";
    case ExpressionFault::Syntax:
        return "Das kann ich nicht lesen";
    case ExpressionFault::DivisionByZero:
        return "Durch 0 kann man nicht teilen";
    case ExpressionFault::LogarithmRange:
        return "log gibt es nur über 0";
    case ExpressionFault::Range:
        return "Das ergibt keine Zahl";
    }
    return {};
}

} // namespace quendal
