#include "host/form.h"

#include "host/buttons.h"
#include "host/labels.h"
#include "host/panels.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

class TestForm final : public Form {
  public:
    TestForm() : Form("frm_Test", {400, 300}) { but_C.setContainer(frm_Group); }

    bool Form_KeyDown(Key key) override {
        keys.push_back(key);
        return swallows;
    }
    bool Form_KeyPress(const std::string& character) override {
        characters.push_back(character);
        return takesCharacters;
    }

    ctl_Button but_A{*this, "but_A"};
    ctl_Label lab_Text{*this, "lab_Text"};
    clt_TermInput txt_B{*this, "txt_B"};
    ctl_Frame frm_Group{*this, "frm_Group"};
    ctl_Button but_C{*this, "but_C"};
    std::vector<Key> keys;
    std::vector<std::string> characters;
    bool swallows = false;
    bool takesCharacters = false;
};

class Forms : public testing::Test {
  protected:
    test::FakeHost host;
    TestForm form;
};

TEST_F(Forms, TheTabChainHoldsWhatTakesTheFocus) {
    for (const Control* expected :
         {static_cast<Control*>(&form.but_A), static_cast<Control*>(&form.txt_B),
          static_cast<Control*>(&form.but_C), static_cast<Control*>(&form.but_A)}) {
        form.focusNext();
        EXPECT_EQ(form.focus(), expected);
    }
    form.focusNext(true);
    EXPECT_EQ(form.focus(), &form.but_C);
    form.focusNext(true);
    EXPECT_EQ(form.focus(), &form.txt_B);
}

TEST_F(Forms, TheTabChainLeavesOutWhatCantBeReached) {
    form.txt_B.setEnabled(false);
    form.frm_Group.setVisible(false);
    form.focusNext();
    form.focusNext();
    EXPECT_EQ(form.focus(), &form.but_A);
    form.but_A.setVisible(false);
    form.focusNext();
    EXPECT_EQ(form.focus(), &form.but_A); // nowhere to go
}

TEST_F(Forms, FromAHiddenControlTheFocusGoesOnWhereThatStood) {
    form.txt_B.setFocus();
    form.txt_B.setVisible(false);
    form.focusNext();
    EXPECT_EQ(form.focus(), &form.but_C);
    form.txt_B.setVisible(true);
    form.txt_B.setFocus();
    form.txt_B.setVisible(false);
    form.focusNext(true);
    EXPECT_EQ(form.focus(), &form.but_A);
}

TEST_F(Forms, FocusGoesOnlyWhereItCanStand) {
    form.lab_Text.setFocus();
    EXPECT_EQ(form.focus(), nullptr);
    form.frm_Group.setEnabled(false);
    form.but_C.setFocus();
    EXPECT_EQ(form.focus(), nullptr);
    form.txt_B.setFocus();
    EXPECT_TRUE(form.txt_B.hasFocus());
}

TEST_F(Forms, AControlThatGoesAwayGivesTheFocusBack) {
    auto extra = std::make_unique<ctl_Button>(form, "but_Extra");
    extra->setFocus();
    extra.reset();
    EXPECT_EQ(form.focus(), nullptr);
}

TEST_F(Forms, TheFormSeesKeysFirst) {
    std::vector<Key> atControl;
    form.txt_B.onKey = [&atControl](Key key) {
        atControl.push_back(key);
        return true;
    };
    form.txt_B.setFocus();
    EXPECT_TRUE(form.userKey(Key::Enter));
    EXPECT_EQ(atControl, std::vector<Key>{Key::Enter});
    form.swallows = true;
    EXPECT_TRUE(form.userKey(Key::Enter));
    EXPECT_EQ(atControl.size(), 1U);
    EXPECT_EQ(form.keys, (std::vector<Key>{Key::Enter, Key::Enter}));
}

TEST_F(Forms, TheFormSeesCharactersBeforeTheControl) {
    int clicks = 0;
    form.but_A.onClick = [&clicks] { ++clicks; };
    form.but_A.setFocus();
    EXPECT_TRUE(form.userKey(Key::Other, " "));
    EXPECT_FALSE(form.userKey(Key::Other, "ü"));
    EXPECT_EQ(clicks, 1);
    form.takesCharacters = true;
    EXPECT_TRUE(form.userKey(Key::Other, " "));
    EXPECT_TRUE(form.userKey(Key::Other, "ü"));
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(form.characters, (std::vector<std::string>{" ", "ü", " ", "ü"}));
}

TEST_F(Forms, KeysThatDontWriteArentCharacters) {
    form.userKey(Key::Tab);
    form.userKey(Key::Other);
    EXPECT_TRUE(form.characters.empty());
    form.swallows = true; // what the form takes as a key it doesn't see again
    EXPECT_TRUE(form.userKey(Key::Other, "x"));
    EXPECT_TRUE(form.characters.empty());
}

TEST_F(Forms, ReturnPressesTheFocusedButton) {
    int clicks = 0;
    form.but_A.onClick = [&clicks] { ++clicks; };
    EXPECT_FALSE(form.userKey(Key::Enter));
    form.but_A.setFocus();
    EXPECT_TRUE(form.userKey(Key::Enter));
    EXPECT_TRUE(form.userKey(Key::Other, " "));
    EXPECT_FALSE(form.userKey(Key::Other, "a"));
    form.but_A.setEnabled(false);
    EXPECT_FALSE(form.userKey(Key::Enter));
    EXPECT_EQ(clicks, 2);
}

TEST_F(Forms, TabMovesTheFocus) {
    EXPECT_TRUE(form.userKey(Key::Tab));
    EXPECT_EQ(form.focus(), &form.but_A);
    EXPECT_TRUE(form.userKey(Key::Tab));
    EXPECT_EQ(form.focus(), &form.txt_B);
}

TEST_F(Forms, MenusStandInTheirOrder) {
    Menu bar(form, "mnu_Help", "&Hilfe");
    Menu item(bar, "mnu_HelpText", "Hilfetext");
    int clicks = 0;
    item.onClick = [&clicks] { ++clicks; };
    item.userClicked();
    bar.userClicked();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(form.menus(), (std::vector<Menu*>{&bar, &item}));
    EXPECT_EQ(item.parent(), &bar);
    EXPECT_EQ(&item.form(), &form);
}

} // namespace
} // namespace quendal
