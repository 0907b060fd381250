// The forms that open the conductometric tasks.
#include "conducto_fixture.h"

#include "conducto/conducto_start_forms.h"

namespace quendal::test {
namespace {

struct StartCase {
    Titration titration;
    std::unique_ptr<StartForm> (*make)();
    const char* name;
    const char* picture;
};

void PrintTo(const StartCase& row, std::ostream* out) {
    PrintTo(row.titration, out);
}

class Start : public ConductoTest, public testing::WithParamInterface<StartCase> {
  protected:
    void beforeShow() override {
        if (asks) {
            asks();
        }
    }
    std::function<void()> asks;
    const std::unique_ptr<StartForm> form = GetParam().make();
};

struct CommandCase {
    const char* command;
    bool accepted;
};

constexpr CommandCase kCommands[] = {
    {"DIALOG.OK();", true},    {"DIALOG.ABORT();", true},
    {"dialog.ok();", true},    {"Dialog.Abort();", true},
    {"DIALOG.HELP();", false}, {"DIALOG.OK()", false},
    {" DIALOG.OK();", false},  {"", false},
};

TEST_P(Start, IsAcceptedByBothButtonsInAnyCase) {
    for (const CommandCase& row : kCommands) {
        SCOPED_TRACE(row.command);
        host.windows.Show(*form);
        EXPECT_FALSE(form->Accepted); // whatever it was before
        form->bar_Buttons.userCommand(row.command);
        EXPECT_EQ(form->Accepted, row.accepted);
        EXPECT_EQ(form->shown(), !row.accepted);
    }
}

TEST_P(Start, IsDeclinedByItsWindow) {
    host.windows.Show(*form);
    host.windows.userClosed(*form);
    EXPECT_FALSE(form->Accepted);
    EXPECT_FALSE(form->shown());
}

TEST_P(Start, ShowsItsApparatus) {
    const std::string file = std::string("data/") + GetParam().picture;
    host.graphics.addPicture(file, 720, 440);
    host.windows.Show(*form);
    EXPECT_EQ(form->name(), GetParam().name);
    ASSERT_NE(form->pic_Start.picture(), nullptr);
    EXPECT_EQ(form->pic_Start.picture(), host.graphics.LoadPicture(file));
    EXPECT_FALSE(form->pic_Start.accessibleName().empty());
    ASSERT_FALSE(form->bar_Buttons.buttons().empty());
    EXPECT_EQ(form->bar_Buttons.buttons()[0].command, "DIALOG.OK();");
}

TEST_P(Start, OpensWhenTheWorkbenchIsSetUp) {
    std::string name;
    asks = [&] {
        later([&] {
            name = host.windows.top()->name();
            EXPECT_TRUE(bench().loaded());
            EXPECT_FALSE(bench().shown());
            EXPECT_EQ(bench().lab_Step(0).text().substr(0, 6), "Klicke");
            EXPECT_NE(bench().Series[5], nullptr);
        });
        command("dialog.abort();");
    };
    openForm(GetParam().titration);
    EXPECT_EQ(name, GetParam().name);
    EXPECT_TRUE(bench().loaded());
    EXPECT_TRUE(bench().shown());
}

TEST_P(Start, DeclinedTakesTheWorkbenchWithIt) {
    asks = [this] {
        command("DIALOG.HELP();"); // none that it knows
        later([this] { host.windows.userClosed(*host.windows.top()); });
    };
    openForm(GetParam().titration);
    EXPECT_FALSE(bench().loaded());
    EXPECT_FALSE(bench().shown());
    EXPECT_FALSE(session().SessionRestart);
    EXPECT_FALSE(host.app.shutDown);
    const bool plain =
        GetParam().titration == Titration::Weak || GetParam().titration == Titration::Silver;
    EXPECT_EQ(session().PlainChloride, plain);
}

TEST_P(Start, DeclinedLeavesNoLoopBehind) {
    const auto workbench = makeBench(GetParam().titration);
    later([this] { host.windows.userClosed(*host.windows.top()); });
    host.windows.ShowModal(*workbench); // comes back at once
    EXPECT_FALSE(workbench->loaded());
    EXPECT_FALSE(workbench->sActivated);
    EXPECT_EQ(host.clock.slept, 0);
}

INSTANTIATE_TEST_SUITE_P(
    All, Start,
    testing::Values(StartCase{Titration::Strong, makeStart<frm_AppMainConductoStart>,
                              "frm_AppMainConductoStart", "conducto_start.gif"},
                    StartCase{Titration::Log, makeStart<frm_AppMainConductoStart>,
                              "frm_AppMainConductoStart", "conducto_start.gif"},
                    StartCase{Titration::Weak, makeStart<frm_AppMainConductoWeakStart>,
                              "frm_AppMainConductoWeakStart", "conducto_weak_start.gif"},
                    StartCase{Titration::Silver, makeStart<frm_AppMainConductoSilverStart>,
                              "frm_AppMainConductoSilverStart", "conducto_silver_start.gif"}));

} // namespace
} // namespace quendal::test
