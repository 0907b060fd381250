// The evaluator held against an independent one on what both understand.
#include "host/expression.h"

#include <gtest/gtest.h>
#include <muParser.h>

#include <cmath>
#include <random>

namespace quendal {
namespace {

// Makes expressions that both evaluators read alike: no sign directly behind another operator, no
// comma, "log" written as `log`.
class RandomExpression {
  public:
    explicit RandomExpression(std::uint64_t seed) : random_(seed) {}

    std::string make(const std::string& log) {
        log_ = log;
        return sum(2);
    }

  private:
    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

    std::string sum(int depth) {
        std::string text = (pick(6) == 0 ? "-" : "") + product(depth);
        for (int i = pick(3); i > 0; --i) {
            text += (pick(2) == 0 ? " + " : "-") + product(depth);
        }
        return text;
    }
    std::string product(int depth) {
        std::string text = power(depth);
        for (int i = pick(3); i > 0; --i) {
            text += (pick(2) == 0 ? "*" : " / ") + power(depth);
        }
        return text;
    }
    std::string power(int depth) {
        const std::string base = primary(depth);
        return pick(4) == 0 ? base + "^" + primary(depth) : base;
    }
    std::string primary(int depth) {
        const int what = depth > 0 ? pick(5) : 4;
        if (what == 0) {
            return "(" + sum(depth - 1) + ")";
        }
        return what == 1 ? log_ + "(" + sum(depth - 1) + ")" : number();
    }
    std::string number() {
        static const char* const kNumbers[] = {"0",  "1",    "2",    "10",    "0.5",   ".25",
                                               "14", "4.76", "1E-3", "2.5e2", "0.011", "7."};
        return kNumbers[pick(12)];
    }

    std::mt19937_64 random_;
    std::string log_;
};

// nullopt where the result is no finite number.
std::optional<double> reference(const std::string& text) {
    mu::Parser parser;
    parser.SetExpr(text);
    const double value = parser.Eval();
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

TEST(Expression, AgreesWithAnotherEvaluator) {
    int compared = 0;
    for (std::uint64_t seed = 0; seed < 20'000; ++seed) {
        const std::string text = RandomExpression(seed).make("log");
        const ExpressionResult own = evaluateExpression(text);
        ASSERT_NE(own.fault, ExpressionFault::Syntax) << text;
        const auto expected = reference(RandomExpression(seed).make("log10"));
        // The other one goes on with infinities where ours names the fault: 1 / (1 / 0) is 0 there.
        if (own && expected) {
            ASSERT_NEAR(own.value, *expected, 1e-9 * std::max(1.0, std::fabs(*expected))) << text;
            ++compared;
        } else {
            ASSERT_FALSE(own) << text;
        }
    }
    EXPECT_GT(compared, 5'000);
}

} // namespace
} // namespace quendal
