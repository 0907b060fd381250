// Boxes, sounds and reports, as a script answers and asks about them.
#include "headless/play.h"
#include "headless/small_forms.h"

namespace quendal::test {
namespace {

Played playForm(const std::string& lines) {
    return play(lines, showSmallForm);
}

TEST(ScriptBoxes, QuestionsTakeTheirAnswers) {
    const Played played =
        playForm("start\nanswer text Anna\nanswer yes\nclick but_Ask\n"
                 "expect form.sLast == \"yes Anna\"\n"
                 "expect box yesno \"\" \"Weiter?\"\n"
                 "expect box input Name \"Wie*\"\nexpect box.default == Vorschlag\n"
                 "expect nobox");
    EXPECT_EQ(played.status, 0) << played.errors;
    EXPECT_TRUE(played.printed(
        R"("event":"box","kind":"input","title":"Name","text":"Wie heißt Du?","proposal":"Vorschlag","answer":"text Anna")"))
        << played.out;
    EXPECT_EQ(
        playForm("answer no\nanswer cancel\nstart\nclick but_Ask\nexpect form.sLast == \"no \"")
            .status,
        0);
}

TEST(ScriptBoxes, AQuestionWithoutAnAnswerEndsTheScript) {
    const Played played = playForm("start\nanswer ok\nclick but_Ask\nprint clock");
    EXPECT_EQ(played.status, 3);
    EXPECT_NE(played.errors.find("test:3: click but_Ask:"), std::string::npos) << played.errors;
    EXPECT_TRUE(played.printed("\"answer\":null"));
    EXPECT_FALSE(played.printed("\"event\":\"print\""));
}

TEST(ScriptBoxes, WhatOnlyShowsIsAnsweredWithOk) {
    const Played played = playForm("start\nclick but_Boxes\nexpect box ok \"\" \"Eins\\r\\nZwei\"\n"
                                   "expect box info Punkt Fertig\nexpect box alarm Achtung *\n"
                                   "expect box about * \"\"\nexpect nobox");
    EXPECT_EQ(played.status, 0) << played.errors;
    EXPECT_EQ(playForm("start\nclick but_Boxes\nexpect nobox").status, 1);
    EXPECT_EQ(playForm("start\nclick but_Boxes\nexpect box info \"\" *").status, 1);
    EXPECT_EQ(playForm("start\nexpect box ok * *").status, 1);
}

TEST(ScriptBoxes, TheCalculatorTakesValuesAndLines) {
    const Played played =
        playForm("start\nanswer value 0,25\nclick but_Calc\nexpect form.sLast == 0.25\n"
                 "expect box calculator * \"\"\nexpect presets \"2*0,5\" 1/0\nanswer preset 1\n"
                 "click but_Calc\nexpect form.sLast == 1\nanswer cancel\nclick but_Calc\n"
                 "expect form.sLast == aborted");
    EXPECT_EQ(played.status, 0) << played.errors;
    EXPECT_EQ(playForm("start\nexpect presets").status, 1);
    EXPECT_EQ(playForm("start\nanswer cancel\nclick but_Calc\nexpect presets").status, 1);
}

TEST(ScriptBoxes, ALineThatGivesNoNumberCantBeTaken) {
    EXPECT_EQ(playForm("start\nanswer preset 3\nclick but_Calc").status, 3);
    EXPECT_EQ(playForm("start\nanswer preset 2\nclick but_Calc").status, 3);
}

TEST(ScriptBoxes, SoundsAndReportsWaitToBeAskedAbout) {
    const Played played = playForm("start\nexpect nosound\nexpect noreport\nclick but_Sounds\n"
                                   "expect sound signal 1\nexpect sound correct\n"
                                   "expect sound \"sounds\\\\ex.wav\"\nexpect nosound\n"
                                   "expect report progress 3 1\n"
                                   "expect report result 900 1.30 \"Sehr gut\"\nexpect noreport");
    EXPECT_EQ(played.status, 0) << played.errors;
    EXPECT_EQ(playForm("start\nclick but_Sounds\nexpect noreport").status, 1);
    EXPECT_EQ(playForm("start\nclick but_Sounds\nexpect report result 900 1.3 *").status, 1);
}

TEST(ScriptBoxes, NothingIsHeardInSilence) {
    EXPECT_EQ(playForm("sound 2\nstart\nclick but_Sounds\nexpect nosound").status, 0);
}

TEST(ScriptBoxes, TeacherKeysAndNameComeFromTheScript) {
    EXPECT_EQ(playForm("name Mia\ncontrol CON \"1.2 x\"\nstart\nexpect form.sKey == \"1.2 x\"\n"
                       "expect host.UserName == Mia")
                  .status,
              0);
    EXPECT_EQ(playForm("start\nexpect form.sKey == \"\"\nexpect host.UserName == \"\"").status, 0);
}

} // namespace
} // namespace quendal::test
