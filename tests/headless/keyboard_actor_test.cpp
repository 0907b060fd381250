#include "headless/play.h"
#include "headless/small_forms.h"

namespace quendal::test {
namespace {

Played playByKeys(const std::string& lines, const std::function<void()>& program = showSmallForm) {
    return play("start\n" + lines, program, {.byKeys = true});
}

void expectHeld(const std::string& lines) {
    const Played played = playByKeys(lines);
    EXPECT_EQ(played.status, 0) << lines << '\n' << played.errors;
    EXPECT_EQ(played.errors, "");
}

TEST(KeyboardActor, WorksWhatTakesTheFocus) {
    expectHeld("click but_Count\nexpect but_Count.focus == true\nexpect form.sCount == 1");
    expectHeld("choose lst_Items 10\nexpect lst_Items.index == 2");
    expectHeld("check chk_Box on\nexpect chk_Box.checked == true");
}

TEST(KeyboardActor, WritesAndDeletesWholeCharacters) {
    expectHeld("type txt_Value Säure\nexpect txt_Value.text == Säure\n"
               "type txt_Value µ\nexpect txt_Value.text == µ");
}

TEST(KeyboardActor, EndsWhereNoTabLeads) {
    for (const char* step : {"click but_Count", "type txt_Value 1", "key ENTER but_Count",
                             "choose lst_Items 10", "choose tab_Pages 1", "check chk_Box on"}) {
        const Played played = playByKeys(step, showFormThatKeepsTab);
        EXPECT_EQ(played.status, 3) << step;
        EXPECT_NE(played.errors.find("no Tab leads to frm_Small."), std::string::npos)
            << step << '\n'
            << played.errors;
    }
}

} // namespace
} // namespace quendal::test
