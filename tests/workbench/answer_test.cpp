#include "workbench/guidance/answer.h"

#include "host/number_service.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

struct AnswerCase {
    const char* text;
    double target;
    int digits;
    AnswerVerdict verdict;
};

class Answer : public testing::TestWithParam<AnswerCase> {};

TEST_P(Answer, IsJudged) {
    const AnswerCase& row = GetParam();
    EXPECT_EQ(compareAnswer(NumberService(), row.text, row.target, row.digits), row.verdict)
        << row.text << " against " << row.target;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Answer,
    testing::Values(AnswerCase{"", 0.5, 3, AnswerVerdict::Empty},
                    AnswerCase{"abc", 0.5, 3, AnswerVerdict::Unreadable},
                    AnswerCase{"1+1", 2, 3, AnswerVerdict::Unreadable},
                    AnswerCase{"0,01", 0.01, -1, AnswerVerdict::Equal},
                    AnswerCase{"0.01", 0.01, -1, AnswerVerdict::Equal},
                    AnswerCase{"0.010", 0.01, -1, AnswerVerdict::Equal},
                    AnswerCase{"0.0101", 0.01, -1, AnswerVerdict::Differs},
                    // Halves go to the even neighbour on both sides: 9.5 and 8.5 to 10 and 8.
                    AnswerCase{"0.0095", 0.0085, 3, AnswerVerdict::Differs},
                    // 9.5 and 10.5 both go to 10.
                    AnswerCase{"0.0095", 0.0105, 3, AnswerVerdict::Equal},
                    AnswerCase{"1,0*10^-07", 1e-7, 3, AnswerVerdict::Equal},
                    AnswerCase{"0,0004", 1e-7, 3, AnswerVerdict::Equal},
                    AnswerCase{"13,52", 13.523, 2, AnswerVerdict::Equal},
                    AnswerCase{"13,53", 13.523, 2, AnswerVerdict::Differs},
                    AnswerCase{" 7 ", 7.0, 2, AnswerVerdict::Equal},
                    AnswerCase{"1E-07", 1e-7, -1, AnswerVerdict::Equal}));

} // namespace
} // namespace quendal
