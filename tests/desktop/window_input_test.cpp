// What the learner does reaches the form once, and what the form does reaches the widget.
#include "desktop/window_rig.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>

namespace quendal::test {

namespace {

using Events = std::vector<std::string>;

class InputTest : public WindowTest {
  protected:
    GalleryForm form;
};

TEST_F(InputTest, AClickIsReportedOnce) {
    steps.add([&] { actor.click(form.but_Plain); });
    play(form);
    EXPECT_EQ(form.events, Events{"click but_Plain"});
}

TEST_F(InputTest, ADisabledButtonReportsNothing) {
    steps.add([&] { actor.click(form.but_Off); });
    play(form);
    EXPECT_TRUE(form.events.empty());
}

TEST_F(InputTest, TypingTellsEachStateOfTheTextOnce) {
    steps.add([&] { actor.type(form.txt_Ph, "0,8"); });
    play(form);
    EXPECT_EQ(form.events, (Events{"typed 0", "typed 0,", "typed 0,8"}));
    EXPECT_EQ(form.txt_Ph.text(), "0,8");
}

TEST_F(InputTest, TypingTakesThePlaceOfWhatStoodThere) {
    form.txt_Ph.setText("12,5");
    steps.add([&] { actor.type(form.txt_Ph, "7"); });
    play(form);
    EXPECT_EQ(form.txt_Ph.text(), "7");
}

TEST_F(InputTest, TextFromTheFormIsShownAndNotReportedBack) {
    steps.add([&] {
        form.txt_Ph.setText("1,25");
        EXPECT_EQ(widgetAs<QLineEdit>(form.txt_Ph).text(), "1,25");
    });
    play(form);
    EXPECT_TRUE(form.events.empty());
}

TEST_F(InputTest, ALockedInputTakesNothing) {
    form.txt_Locked.setText("0,010 L");
    steps.add([&] { form.tabs.setTab(0); });
    steps.add([&] { actor.type(form.txt_Locked, "9"); });
    play(form);
    EXPECT_EQ(form.txt_Locked.text(), "0,010 L");
}

TEST_F(InputTest, ATextIsCutAtTheLongestThatIsKept) {
    steps.add([&] {
        widgetAs<QLineEdit>(form.txt_Ph).setText(QString(500, '1'));
        EXPECT_EQ(form.txt_Ph.text().size(), clt_TermInput::kMaxLength);
    });
    play(form);
}

TEST_F(InputTest, AHandlerThatRefusesATextIsShown) {
    form.txt_Ph.onChange = [&] { form.txt_Ph.setText("3"); };
    steps.add([&] {
        actor.type(form.txt_Ph, "8");
        EXPECT_EQ(widgetAs<QLineEdit>(form.txt_Ph).text(), "3");
    });
    play(form);
    EXPECT_EQ(form.txt_Ph.text(), "3");
}

TEST_F(InputTest, CheckBoxesSwitchByClickAndByTheForm) {
    steps.add([&] { actor.check(form.check, false); });
    steps.add([&] {
        EXPECT_FALSE(form.check.checked());
        EXPECT_FALSE(widgetAs<QCheckBox>(form.check).isChecked());
        form.check.setChecked(true);
        EXPECT_TRUE(widgetAs<QCheckBox>(form.check).isChecked());
    });
    play(form);
    EXPECT_EQ(form.events, Events{"click check"});
}

TEST_F(InputTest, OneOptionOfSeveralIsChosen) {
    steps.add([&] { actor.click(form.options(2)); });
    steps.add([&] {
        EXPECT_TRUE(widgetAs<QRadioButton>(form.options(2)).isChecked());
        EXPECT_FALSE(widgetAs<QRadioButton>(form.options(1)).isChecked());
    });
    play(form);
    EXPECT_TRUE(form.options(2).checked());
    EXPECT_FALSE(form.options(1).checked());
    EXPECT_EQ(form.events, Events{"click opt_Calc(2)"});
}

TEST_F(InputTest, AClickOnAChosenOptionLeavesItChosen) {
    steps.add([&] { actor.click(form.options(1)); });
    steps.add([&] { EXPECT_TRUE(widgetAs<QRadioButton>(form.options(1)).isChecked()); });
    play(form);
}

TEST_F(InputTest, AListReportsTheChosenItemOnce) {
    steps.add([&] { actor.chooseItem(form.list, 1); });
    play(form);
    EXPECT_EQ(form.list.text(), "0.8");
    EXPECT_EQ(form.events, Events{"click list"});
}

TEST_F(InputTest, ATabControlThatIsLockedGoesBack) {
    form.tabs.onClick = [&] { form.tabs.setTab(0); };
    steps.add([&] {
        actor.chooseTab(form.tabs, 1);
        EXPECT_EQ(dynamic_cast<QTabBar&>(*widgetOf(form.tabs).findChild<QTabBar*>()).currentIndex(),
                  0);
        EXPECT_TRUE(widgetOf(form.check).isVisible());
    });
    play(form);
    EXPECT_EQ(form.tabs.tab(), 0);
}

TEST_F(InputTest, ThePagesOfATabControlShowTheirControlsOnly) {
    steps.add([&] {
        EXPECT_TRUE(widgetOf(form.check).isVisible());
        EXPECT_FALSE(widgetOf(form.picture).isVisible());
        actor.chooseTab(form.tabs, 1);
        EXPECT_FALSE(widgetOf(form.check).isVisible());
        EXPECT_TRUE(widgetOf(form.picture).isVisible());
    });
    play(form);
    EXPECT_EQ(form.events, Events{"click tabs"});
}

TEST_F(InputTest, APressOnAPictureComesInItsOwnUnits) {
    steps.add([&] { actor.chooseTab(form.tabs, 1); });
    steps.add([&] { actor.mouse(form, &form.picture, {50, 40}, MouseButton::Left); });
    play(form);
    // The overlay in front of it lets the press through.
    EXPECT_EQ(form.events, (Events{"click tabs", "press 50 40"}));
}

TEST_F(InputTest, MenusAreWorked) {
    steps.add([&] { actor.menu(form.fileNew); });
    play(form);
    EXPECT_EQ(form.events, Events{"menu mnu_FileNew"});
}

TEST_F(InputTest, TheFormSeesAKeyFirstAndCanSwallowIt) {
    form.swallowed = Key::Enter;
    steps.add([&] { actor.key(form, &form.txt_Ph, Key::Enter, ""); });
    play(form);
    EXPECT_EQ(form.keys, std::vector<Key>{Key::Enter});
    EXPECT_TRUE(form.events.empty());
}

TEST_F(InputTest, EnterGoesToTheInputThatHasTheFocus) {
    steps.add([&] { actor.key(form, &form.txt_Ph, Key::Enter, ""); });
    play(form);
    EXPECT_EQ(form.events, Events{"enter txt_Ph"});
    EXPECT_EQ(form.keys, std::vector<Key>{Key::Enter});
}

TEST_F(InputTest, BlankPressesAButtonOnce) {
    steps.add([&] { actor.key(form, &form.but_Plain, Key::Other, " "); });
    play(form);
    EXPECT_EQ(form.events, Events{"click but_Plain"});
}

TEST_F(InputTest, EscapePressesTheButtonThatAborts) {
    steps.add([&] { actor.key(form, nullptr, Key::Escape, ""); });
    play(form);
    EXPECT_EQ(form.events, Events{"command DIALOG.ABORT();"});
    EXPECT_FALSE(form.shown());
}

TEST_F(InputTest, EnterPressesTheButtonOfTheBarThatHasTheFocus) {
    steps.add([&] { actor.key(form, &form.bar, Key::Tab, ""); });
    steps.add([&] { actor.key(form, nullptr, Key::Enter, ""); });
    play(form);
    EXPECT_EQ(form.events, Events{"command DIALOG.ABORT();"});
}

TEST_F(InputTest, TabWalksThroughTheControlsInTheirOrder) {
    steps.add([&] { actor.key(form, &form.but_Plain, Key::Tab, ""); });
    steps.add([&] {
        EXPECT_EQ(form.focus(), &form.but_Now);
        EXPECT_TRUE(widgetOf(form.but_Now).hasFocus());
    });
    steps.add([&] { actor.key(form, nullptr, Key::Tab, ""); });
    steps.add([&] { EXPECT_EQ(form.focus(), &form.but_Wide); }); // the disabled one is left out
    play(form);
}

TEST_F(InputTest, FocusIsKeptInBothDirections) {
    steps.add([&] {
        form.txt_Ph.setFocus();
        EXPECT_TRUE(widgetOf(form.txt_Ph).hasFocus());
        actor.click(form.but_Now);
        EXPECT_EQ(form.focus(), &form.but_Now);
    });
    play(form);
}

TEST_F(InputTest, AHiddenControlDoesntHandItsFocusToANeighbour) {
    steps.add([&] {
        form.txt_Ph.setFocus();
        form.txt_Ph.setVisible(false);
        EXPECT_FALSE(widgetOf(form.but_Plain).hasFocus());
        EXPECT_EQ(form.focus(), &form.txt_Ph);
    });
    play(form);
}

TEST_F(InputTest, AMnemonicWorksFromAnywhere) {
    steps.add([&] {
        const auto found = widgetOf(form.but_Plain).findChildren<QWidget*>();
        EXPECT_EQ(dynamic_cast<QAbstractButton&>(widgetOf(form.but_Plain)).shortcut(),
                  QKeySequence(Qt::ALT | Qt::Key_F));
        EXPECT_TRUE(found.isEmpty());
    });
    play(form);
}

} // namespace

} // namespace quendal::test
