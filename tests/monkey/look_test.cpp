#include "headless/headless_host.h"
#include "host/window_system.h"
#include "monkey/invariants.h"
#include "monkey/placement.h"
#include "monkey/planted_form.h"
#include "script/script.h"

#include <gtest/gtest.h>

namespace quendal::test {
namespace {

class LookTest : public testing::Test {
  protected:
    void SetUp() override { CoreLib().Windows.Show(form_); }
    void TearDown() override { CoreLib().Windows.Unload(form_); }

    std::string found() {
        const auto finding = LookWatch().check(form_);
        return finding ? finding->what : "";
    }

    HeadlessHost host_{ScriptSettings{}, "data/"};
    PlantedForm form_{[](PlantedForm&) {}};
};

TEST_F(LookTest, AFormAsItShouldBe) {
    EXPECT_EQ(found(), "");
}

TEST_F(LookTest, AControlOutsideItsForm) {
    form_.but_Press.setPlace(350, 50, 100, 30);
    EXPECT_EQ(found(), "frm_Planted.but_Press lies outside its form");
    form_.but_Press.setVisible(false);
    EXPECT_EQ(found(), "");
}

TEST_F(LookTest, AControlThatIsCovered) {
    form_.frm_Lid.setPlace(0, 40, 150, 50);
    EXPECT_TRUE(isCovered(form_.but_Press));
    EXPECT_EQ(found(), "frm_Planted.but_Press is covered");
    form_.but_Press.setEnabled(false); // nobody wants to press it
    EXPECT_EQ(found(), "");
    form_.but_Press.setEnabled(true);
    form_.frm_Lid.sendToBack();
    EXPECT_EQ(found(), "");
    form_.frm_Lid.bringToFront();
    form_.frm_Lid.setPlace(0, 40, 60, 50); // a part of it still shows
    EXPECT_TRUE(isCoveredAt(form_.but_Press, {20, 60}));
    EXPECT_EQ(found(), "");
}

TEST_F(LookTest, AContainerDoesNotCoverWhatItHolds) {
    form_.but_Press.setContainer(form_.frm_Lid);
    form_.but_Press.setPlace(5, 30, 80, 30);
    EXPECT_EQ(placeOnForm(form_.but_Press), (Rect{205, 230, 80, 30}));
    EXPECT_EQ(found(), "");
}

TEST_F(LookTest, ATextWithoutRoom) {
    form_.lab_Text.setText(
        "Ein Satz, der auch in zwei Zeilen keinen Platz hat, weil er einfach nicht "
        "aufhören will, ist hier zu lang");
    EXPECT_NE(found().find("has no room"), std::string::npos);
    form_.lab_Text.setPlace(10, 10, 200, 40);
    EXPECT_EQ(found(), "");
    form_.lab_Text.setText("Donaudampfschifffahrtsgesellschaftskapitänsmütze");
    EXPECT_NE(found().find("has no room"), std::string::npos);
}

TEST_F(LookTest, ALearnersOwnTextMayBeTooLong) {
    form_.txt_Any.setText(std::string(100, 'x'));
    LookWatch watch;
    EXPECT_FALSE(watch.check(form_));
    form_.lab_Volume.setText(form_.txt_Any.text() + " * 0.01");
    form_.txt_Any.setText("");
    EXPECT_FALSE(watch.check(form_));
    EXPECT_TRUE(LookWatch().check(form_)) << "who didn't see it typed takes it for a fault";
}

TEST_F(LookTest, OnlyTheTutorRepeatsWhatWasTyped) {
    form_.txt_Any.setText("nan");
    LookWatch watch;
    EXPECT_FALSE(watch.check(form_));
    form_.lab_Volume.setText("nan");
    EXPECT_FALSE(watch.check(form_));
    form_.lab_Text.setText("nan mL");
    EXPECT_TRUE(watch.check(form_));
}

TEST_F(LookTest, WhatTheCalculatorGaveMayBeLarge) {
    form_.lab_Result.setText("99999999999999999999999999,000");
    EXPECT_EQ(found(), "");
    form_.lab_Result.setText("nan");
    EXPECT_NE(found().find("no number"), std::string::npos);
}

// How each change looks to a watch that has seen the form before.
TEST_F(LookTest, AChangeOfLettersAndColoursIsSeen) {
    LookWatch watch;
    const auto seen = [&] { return watch.check(form_).has_value(); };
    EXPECT_FALSE(seen());
    form_.lab_Text.setFont({.size = 9});
    EXPECT_TRUE(seen());
    form_.lab_Text.setFont({});
    EXPECT_FALSE(seen());
    form_.lab_OnGround.setTextColor({0, 0, 140});
    EXPECT_FALSE(seen());
    form_.pan_Ground.setBackColor({0, 0, 130});
    EXPECT_TRUE(seen());
    form_.lab_OnGround.setTextColor({0, 0, 0});
    EXPECT_TRUE(seen()) << "black on dark blue";
    form_.lab_OnGround.setTextColor({255, 255, 255});
    EXPECT_FALSE(seen());
    form_.pic_Ground.setBackColor({0, 0, 0});
    EXPECT_TRUE(seen());
}

TEST_F(LookTest, LettersAndColours) {
    form_.lab_Text.setFont({.size = 9});
    EXPECT_NE(found().find("too small"), std::string::npos);
    form_.lab_Text.setFont({.size = 13});
    form_.lab_Text.setTextColor({250, 250, 250});
    EXPECT_NE(found().find("colour of its ground"), std::string::npos);
}

TEST_F(LookTest, TextsThatAreNone) {
    form_.lab_Text.setText("nan mL");
    EXPECT_NE(found().find("no number"), std::string::npos);
    form_.lab_Text.setText("Nanu");
    EXPECT_EQ(found(), "");
    form_.lab_Text.setText("\xc3");
    EXPECT_NE(found().find("UTF-8"), std::string::npos);
}

} // namespace
} // namespace quendal::test
