// The form that opens the task of chloride with silver ions.
#include "case_fixture.h"

#include "weak_silver/frm_AppMainSilverStart.h"

namespace quendal::test {
namespace {

class SilverStart : public ShellTest {
  protected:
    frm_AppMainSilverStart form;
};

struct CommandCase {
    const char* command;
    bool accepted;
};

class StartCommand : public SilverStart, public testing::WithParamInterface<CommandCase> {};

TEST_P(StartCommand, IsReadInAnyCase) {
    host.windows.Show(form);
    form.bar_Buttons.userCommand(GetParam().command);
    EXPECT_EQ(form.Accepted, GetParam().accepted);
    EXPECT_EQ(form.shown(), !GetParam().accepted);
}

INSTANTIATE_TEST_SUITE_P(
    All, StartCommand,
    testing::Values(CommandCase{"DIALOG.OK();", true}, CommandCase{"DIALOG.ABORT();", true},
                    CommandCase{"dialog.ok();", true}, CommandCase{"Dialog.Abort();", true},
                    CommandCase{"DIALOG.HELP();", false}, CommandCase{"DIALOG.OK()", false},
                    CommandCase{" DIALOG.OK();", false}, CommandCase{"", false}));

TEST_F(SilverStart, IsNotAcceptedBeforeAnybodyChose) {
    form.Accepted = true;
    host.windows.Show(form);
    EXPECT_FALSE(form.Accepted);
    host.windows.userClosed(form);
    EXPECT_FALSE(form.Accepted);
    EXPECT_FALSE(form.shown());
}

TEST_F(SilverStart, ShowsTheApparatus) {
    host.graphics.addPicture("data/silver_start.gif", 720, 440);
    host.windows.Show(form);
    EXPECT_EQ(form.pic_Start.picture(), host.graphics.LoadPicture("data/silver_start.gif"));
    EXPECT_NE(form.pic_Start.picture(), nullptr);
    ASSERT_FALSE(form.bar_Buttons.buttons().empty());
    EXPECT_EQ(form.bar_Buttons.buttons()[0].command, "DIALOG.OK();");
}

class SilverLoad : public SilverTest {
  protected:
    void beforeShow() override {
        if (asks) {
            asks();
        }
    }
    std::function<void()> asks;
};

TEST_F(SilverLoad, GoesOnWhenTheTaskIsAccepted) {
    for (const char* text : {"DIALOG.OK();", "dialog.abort();"}) {
        asks = [this, text] { command(text); };
        open();
        EXPECT_TRUE(bench().loaded());
        EXPECT_TRUE(bench().shown());
    }
}

TEST_F(SilverLoad, AWindowThatIsClosedTakesTheWorkbenchWithIt) {
    asks = [this] {
        later([this] {
            EXPECT_TRUE(bench().loaded()); // set up by now, but not on the screen
            EXPECT_FALSE(bench().shown());
            EXPECT_EQ(bench().lab_Step(0).text().substr(0, 6), "Klicke");
        });
        command("DIALOG.HELP();"); // none that it knows
        later([this] { host.windows.userClosed(*host.windows.top()); });
    };
    open();
    EXPECT_FALSE(bench().loaded());
    EXPECT_FALSE(bench().shown());
    EXPECT_FALSE(session().SessionRestart);
}

TEST_F(SilverLoad, AModalWorkbenchThatIsDeclinedIsOverAtOnce) {
    session().SessionConcentration = 1.0;
    frm_AppMainSilver workbench;
    later([this] { host.windows.userClosed(*host.windows.top()); });
    host.windows.ShowModal(workbench);
    EXPECT_FALSE(workbench.loaded());
    EXPECT_FALSE(workbench.sActivated); // its main loop has never run
}

} // namespace
} // namespace quendal::test
