#include "headless/play.h"
#include "headless/small_forms.h"
#include "host/roots.h"
#include "host/window_system.h"

namespace quendal::test {
namespace {

// Plays lines behind "start" against the small form.
Played playForm(const std::string& lines, bool keepGoing = false) {
    return play("start\n" + lines, showSmallForm, {.keepGoing = keepGoing});
}

void expectHeld(const std::string& lines) {
    const Played played = playForm(lines);
    EXPECT_EQ(played.status, 0) << lines << '\n' << played.errors;
    EXPECT_EQ(played.errors, "");
}

void expectRefused(const std::string& lines, int status, const std::string& found) {
    const Played played = playForm(lines);
    EXPECT_EQ(played.status, status) << lines << '\n' << played.errors;
    EXPECT_NE(played.errors.find(found), std::string::npos) << lines << '\n' << played.errors;
}

TEST(ScriptActions, ReachTheControls) {
    expectHeld("click but_Count\nclick but_Count\nexpect form.sCount == 2");
    expectHeld("click but_Indexed(3)\nexpect form.sLast == indexed");
    expectHeld("click frm_Small.but_Count\nexpect form.sCount == 1");
    expectHeld(
        "type txt_Value 0,25\nexpect txt_Value.text == 0,25\n"
        "expect txt_Value.focus == true\ntype txt_Value \"\"\nexpect txt_Value.text == \"\"");
    expectHeld("click opt_Choice(1)\nexpect opt_Choice(1).checked == true\n"
               "expect opt_Choice(0).checked == false\nexpect form.sLast == two");
    expectHeld(
        "check chk_Box on\nexpect chk_Box.checked == true\ncheck chk_Box on\n"
        "expect chk_Box.checked == true\ncheck chk_Box off\nexpect chk_Box.checked == false");
    expectHeld("menu mnu_Item\nexpect form.sLast == menu");
    expectHeld("click bar_Buttons\nexpect form.sLast == \"DIALOG.OK();\"\n"
               "command bar_Buttons \"DIALOG.ABORT();\"\nexpect form.sLast == \"DIALOG.ABORT();\"\n"
               "command bar_Buttons \"dialog.other\"\nexpect form.sLast == \"dialog.other\"");
    expectHeld("command exe_Commands \"FRAGE 3\"\nexpect form.sLast == \"FRAGE 3\"");
}

TEST(ScriptActions, ChooseByTextBeforeNumber) {
    expectHeld("choose lst_Items 1.0\nexpect form.sLast == \"item 1.0\"");
    expectHeld("choose lst_Items 0\nexpect lst_Items.index == 0\nexpect lst_Items.text == \"0.8\"");
    expectHeld("choose lst_Items 10\nexpect lst_Items.index == 2");
    expectHeld("expect tab_Pages.index == 0\nchoose tab_Pages 1\nexpect form.sLast == \"page 1\"\n"
               "click but_OnPage\nexpect form.sLast == \"on page\"");
}

TEST(ScriptActions, SendKeys) {
    expectHeld("key ESC\nexpect form.sLast == escape");
    expectHeld("key ENTER txt_Value\nexpect form.sLast == \"enter in value\"");
    expectHeld("type txt_Value 1\nkey 2\nkey 3 txt_Value\nexpect txt_Value.text == 123");
    expectHeld("key TAB but_Count\nexpect but_Frames.focus == true");
    expectHeld("key ENTER but_Count\nexpect form.sCount == 1");
    expectHeld("key ENTER\nexpect form.sLast == \"DIALOG.OK();\"");
}

TEST(ScriptActions, PressTheMouse) {
    expectHeld("click pic_Field\nexpect form.sLast == \"50 25 left\"");
    expectHeld("mouse pic_Field 3 4 right\nexpect form.sLast == \"3 4 right\"");
    expectHeld("mouse frm_Small 7 8\nexpect form.sLast == \"form 7 8\"");
}

// Plays against the small form with a picture in front of its field.
Played playBehindPicture(const std::string& lines, const std::function<void(PictureBox&)>& setUp) {
    return play("start\n" + lines, [&] {
        SmallForm form;
        PictureBox front(form, "pic_Front");
        front.setPlace(40, 30, 60, 30);
        front.setOverlay(true);
        setUp(front);
        CoreLib().Windows.ShowModal(form);
    });
}

TEST(ScriptActions, APictureThatNobodyWatchesLetsClicksThrough) {
    const auto nothing = [](PictureBox&) {};
    const Played field =
        playBehindPicture("click pic_Front\nexpect form.sLast == \"50 25 left\"", nothing);
    EXPECT_EQ(field.status, 0) << field.errors; // the field beneath is pressed
    const auto beside = [](PictureBox& front) { front.setPlace(500, 300, 20, 40); };
    const Played form =
        playBehindPicture("click pic_Front\nexpect form.sLast == \"form 510 320\"", beside);
    EXPECT_EQ(form.status, 0) << form.errors;
}

TEST(ScriptActions, APictureThatIsWatchedIsPressedInItsScale) {
    const auto watch = [](PictureBox& front) {
        front.setScaleSize({10, 20});
        front.onMouse = [&front](double x, double y, MouseButton) {
            static_cast<SmallForm&>(front.form()).sLast =
                std::to_string(int(x)) + "/" + std::to_string(int(y));
        };
    };
    const Played middle = playBehindPicture("click pic_Front\nexpect form.sLast == 5/10", watch);
    EXPECT_EQ(middle.status, 0) << middle.errors;
    const Played place = playBehindPicture("mouse pic_Front 3 4\nexpect form.sLast == 3/4", watch);
    EXPECT_EQ(place.status, 0) << place.errors;
}

TEST(ScriptActions, AreRefusedWhereALearnerCouldNot) {
    expectRefused("click but_Hidden", 3, "test:2: click but_Hidden: but_Hidden is hidden");
    expectRefused("click but_Disabled", 3, "is disabled");
    expectRefused("click but_OnPage", 3, "is hidden");
    expectRefused("click but_Dialog\nclick but_Count", 3, "but_Count is not on the topmost form");
    expectRefused("click but_Dialog\nclick frm_Small.but_Count", 3, "is not on the topmost form");
    expectRefused("click but_Dialog\nmouse frm_Small 1 1", 3, "is not on the topmost form");
    expectRefused("click but_Dialog\nmenu mnu_Item", 3, "is not on the topmost form");
    expectRefused("click but_Dialog\nclick but_Close\nclick frm_SmallDialog.but_Close", 3,
                  "is not on the topmost form");
    expectRefused("type lab_Text x", 3, "can't be typed into");
    expectRefused("check but_Count on", 3, "can't be checked");
    expectRefused("choose but_Count 1", 3, "can't be chosen from");
    expectRefused("choose lst_Items 3", 3, "has no \"3\"");
    expectRefused("choose tab_Pages 2", 3, "has no \"2\"");
    expectRefused("command but_Count HELP", 3, "can't be given a command");
}

TEST(ScriptActions, NeedNamesThatExist) {
    expectRefused("click but_None", 2, "there is no but_None");
    expectRefused("click but_Indexed", 2, "there is no but_Indexed");
    expectRefused("click but_Count(1)", 2, "there is no but_Count(1)");
    expectRefused("click frm_None.but_Count", 2, "there is no frm_None.but_Count");
    expectRefused("menu mnu_None", 2, "there is no menu item");
    expectRefused("print but_Count.size", 2, "there is no but_Count.size");
    expectRefused("print form.sNone", 2, "there is no form.sNone");
    expectRefused("print form.sFlags(4)", 2, "there is no form.sFlags(4)");
    expectRefused("print session.Nothing", 2, "there is no session.Nothing");
    expectRefused("print beaker.count", 2, "there is no beaker.count");
    expectRefused("expect series(1).count == 0", 2, "there is no series(1).count");
    expectRefused("until form.sNone == 1 5", 2, "there is no form.sNone");
}

TEST(ScriptLooks, PrintValues) {
    const Played played =
        playForm("print form.sNumber\nprint form.sFlags(2)\nprint form.sUnset\nprint top\n"
                 "print lab_Text.text\nprint lab_Term.text\nprint lab_Term.term\n"
                 "print but_Count.textcolor\nprint lst_Items.items\nprint session.SessionDemo\n"
                 "print clock\nprint pic_Field.width\nprint frm_Small.caption");
    EXPECT_EQ(played.status, 0) << played.errors;
    const char* parts[] = {R"("thing":"form.sNumber","value":"0.1")",
                           R"-("thing":"form.sFlags(2)","value":"true")-",
                           R"("thing":"form.sUnset","value":"")",
                           R"("thing":"top","value":"frm_Small")",
                           R"("value":"Zeile 1\r\nZeile 2")",
                           R"-("thing":"lab_Term.text","value":"c(HCl)")-",
                           R"-("thing":"lab_Term.term","value":"c(HCl)")-",
                           R"("value":"#000000")",
                           R"("value":"0.8,1.0,10")",
                           R"("thing":"session.SessionDemo","value":"false")",
                           R"("thing":"clock","value":"0")",
                           R"("thing":"pic_Field.width","value":"100")",
                           R"("thing":"frm_Small.caption","value":"Klein")"};
    for (const char* part : parts) {
        EXPECT_TRUE(played.printed(part)) << part << '\n' << played.out;
    }
}

TEST(ScriptLooks, CompareValues) {
    expectHeld("expect form.sNumber == 0.10\nexpect form.sNumber != 0.2\n"
               "expect form.sNumber ~= 0.11 0.01\nexpect lab_Text.text == \"Zeile 1\\nZeile 2\"\n"
               "expect form.sUnset == \"\"");
    expectRefused("expect form.sNumber == 0.2", 1, "found \"0.1\"");
    expectRefused("expect form.sNumber != 0.1", 1, "found \"0.1\"");
    expectRefused("expect form.sNumber ~= 0.2 0.05", 1, "found \"0.1\"");
}

TEST(ScriptLooks, KeepGoingGoesOnAfterFailuresOnly) {
    const std::string lines = "expect form.sCount == 1\nclick but_Count\n"
                              "expect form.sCount == 1\nexpect form.sCount == 7\nprint clock";
    const Played first = playForm(lines);
    EXPECT_EQ(first.status, 1);
    EXPECT_EQ(first.errors, "test:2: expect form.sCount == 1: found \"0\"\n");
    const Played all = playForm(lines, true);
    EXPECT_EQ(all.status, 1);
    EXPECT_NE(all.errors.find("test:5:"), std::string::npos);
    EXPECT_TRUE(all.printed("\"thing\":\"clock\""));
    const Played refused = playForm("expect form.sCount == 1\nclick but_Hidden\nprint clock", true);
    EXPECT_EQ(refused.status, 3);
    EXPECT_FALSE(refused.printed("\"thing\":\"clock\""));
}

TEST(ScriptLooks, DumpEveryControl) {
    const Played played = playForm("dump\nscreenshot shot.png");
    EXPECT_EQ(played.status, 0);
    EXPECT_TRUE(
        played.printed(R"-("event":"control","form":"frm_Small","name":"but_Indexed(3)")-"));
    EXPECT_TRUE(played.printed(R"("visible":"false")"));
    EXPECT_TRUE(played.printed(R"("event":"screenshot","file":"shot.png","taken":false)"));
}

TEST(ScriptLooks, TellTheFormsInOrder) {
    const Played played = playForm("click but_Dialog\nexpect form frm_SmallDialog\n"
                                   "click but_Close\nexpect form frm_Small\nclose\nexpect ended");
    EXPECT_EQ(played.status, 0) << played.errors;
    EXPECT_EQ(played.out, R"({"t":0,"event":"shown","form":"frm_Small","caption":"Klein"}
{"t":0,"event":"shown","form":"frm_SmallDialog","caption":""}
{"t":0,"event":"closed","form":"frm_SmallDialog"}
{"t":0,"event":"closed","form":"frm_Small"}
{"t":0,"event":"ended"}
)");
}

} // namespace
} // namespace quendal::test
