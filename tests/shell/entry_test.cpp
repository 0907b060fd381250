#include "shell/entry.h"

#include "shell/forms/frm_AppResource.h"
#include "shell/forms/frm_AppSplash.h"
#include "shell/frm_DialogStartup.h"
#include "shell/picture_buffers.h"
#include "shell_fixture.h"

namespace quendal::test {
namespace {

class Entry : public ShellTest {
  protected:
    Entry() { host.control.UserName = "Mia"; }

    void click(const char* control) {
        Control* found = host.windows.top()->findControl(control);
        ASSERT_NE(found, nullptr) << control;
        found->userClicked();
    }
    void choose(const char* menu) {
        for (Menu* item : host.windows.top()->menus()) {
            if (item->name() == menu) {
                item->userClicked();
                return;
            }
        }
        FAIL() << menu;
    }
    // Lets the splash's turn of the pump pass, so that the next event meets the start dialog.
    void passSplash() {
        later([] {});
    }
    void run() { EXPECT_THROW(runSession("--data somewhere"), ProcessEnded); }
    std::string top() { return host.windows.top() == nullptr ? "" : host.windows.top()->name(); }
};

TEST_F(Entry, ShowsTheSplashBeforeItWorksAndTakesItAwayForTheDialog) {
    bool splashSeen = false;
    later([&] {
        splashSeen = appSplash().shown();
        EXPECT_EQ(host.clock.slept, 0.0);
        EXPECT_EQ(host.app.commandLine, "");
    });
    later([&] {
        EXPECT_EQ(top(), "frm_DialogStartup");
        EXPECT_FALSE(appSplash().shown());
        EXPECT_EQ(host.clock.slept, 0.5);
        EXPECT_EQ(host.app.commandLine, "--data somewhere");
        EXPECT_FALSE(host.app.shutDown);
        click("ctl_Button5");
    });
    run();
    EXPECT_TRUE(splashSeen);
    EXPECT_TRUE(host.app.shutDown);
}

TEST_F(Entry, PresetsTheSession) {
    session().SessionConcentration = 0.6;
    session().SessionRequiredPoints.Split("7", ',');
    session().SessionRestart = true;
    session().SessionBusy = true;
    passSplash();
    later([&] {
        EXPECT_EQ(session().SessionConcentration, 1.0);
        StringList preset;
        preset.Split("1,5,9,10,11,15", ',');
        EXPECT_EQ(session().SessionRequiredPoints.items(), preset.items());
        EXPECT_FALSE(session().SessionRestart);
        EXPECT_FALSE(session().SessionBusy);
        EXPECT_EQ(session().SessionChartFactory, &host.calculator.ChartFactory());
        EXPECT_EQ(host.soundOptions.Title, "Quendal");
        EXPECT_EQ(host.soundOptions.ProductName, "Quendal");
        EXPECT_EQ(host.soundOptions.Version, "3.0");
        click("ctl_Button5");
    });
    run();
}

TEST_F(Entry, EndsWhenTheDialogIsClosedByItsWindow) {
    passSplash();
    later([&] { host.windows.userClosed(*host.windows.top()); });
    run();
    EXPECT_TRUE(host.app.shutDown);
}

TEST_F(Entry, OpensTheWorkbenchAndEndsWithIt) {
    passSplash();
    later([&] {
        static_cast<TabControl*>(host.windows.top()->findControl("SSTab1"))->userChose(3);
        click("ctl_Button3");
    });
    later([&] {
        EXPECT_EQ(top(), "frm_AppMainStrong");
        EXPECT_FALSE(appSplash().shown());
        choose("mnu_FileQuit");
    });
    run();
    EXPECT_TRUE(host.app.shutDown);
    EXPECT_FALSE(session().SessionRestart);
    EXPECT_EQ(top(), "");
}

TEST_F(Entry, GoesRoundAgainWithANewDialogWhenARestartIsWanted) {
    passSplash();
    later([&] {
        auto* dialog = static_cast<frm_DialogStartup*>(host.windows.top());
        dialog->SSTab1.userChose(3);
        dialog->lst_Mol.userChose(0);
        click("ctl_Button3");
    });
    host.boxes.answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    later([&] {
        EXPECT_EQ(top(), "frm_AppMainStrong");
        choose("mnu_FileNew");
    });
    bool again = false;
    // The workbench needs some turns of the pump to come to its end.
    std::function<void()> quit = [&] {
        if (top() != "frm_DialogStartup") {
            host.clock.now += 0.02;
            later(quit);
            return;
        }
        again = true;
        EXPECT_FALSE(session().SessionRestart);
        EXPECT_FALSE(appSplash().shown());
        // What the task was chosen with stands until the dialog closes and writes it anew.
        EXPECT_EQ(session().SessionConcentration, 0.6);
        EXPECT_TRUE(session().SessionRequiredPoints.Contains("12"));
        EXPECT_EQ(static_cast<frm_DialogStartup*>(host.windows.top())->lst_Mol.text(), "1.0");
        click("ctl_Button5");
    };
    later(quit);
    run();
    EXPECT_TRUE(again);
}

TEST_F(Entry, FillsTheBuffersInTheOrderOfTheNames) {
    for (const char* name : {"ab_02.gif", "ab_10.gif", "ab_01.gif", "AB_03.gif", "bürette01.gif",
                             "magnify1.gif", "phn/f1.gif", "phn/g1.gif", "header.gif"}) {
        host.files.write(std::string("data/") + name, "GIF");
        host.graphics.addPicture(std::string("data/") + name, name[4], 10);
    }
    fillPictureBuffers(appResource());
    frm_AppResource& resource = appResource();
    EXPECT_EQ(resource.pic_AblasserBuffer.count(), 5);
    EXPECT_EQ(resource.pic_AblasserBufferBowl.count(), 5);
    EXPECT_EQ(resource.pic_BüretteBuffer.last(), 1);
    EXPECT_EQ(resource.pic_MagnifyBufferBowl.last(), 1);
    EXPECT_EQ(resource.pic_phF.last(), 1);
    EXPECT_EQ(resource.pic_phF(1).backcolor(), kBlack);
    EXPECT_EQ(resource.pic_AblasserBuffer(0).picture(), nullptr);
    // By bytes: AB_03, ab_01, ab_02, ab_10.
    EXPECT_EQ(resource.pic_AblasserBuffer(1).picture()->width(), '3');
    EXPECT_EQ(resource.pic_AblasserBuffer(2).picture()->width(), '1');
    EXPECT_EQ(resource.pic_AblasserBuffer(3).picture()->width(), '2');
    EXPECT_EQ(resource.pic_AblasserBufferBowl(3).picture()->width(), '2');
    EXPECT_EQ(resource.pic_Capture.count(), 1);

    host.files.write("data/phn/f2.gif", "GIF");
    fillPictureBuffers(resource);
    EXPECT_EQ(resource.pic_phF.last(), 1); // filled once
}

TEST_F(Entry, RunsOnWithoutADataFolder) {
    passSplash();
    later([&] {
        EXPECT_EQ(appResource().pic_AblasserBuffer.last(), 0);
        click("ctl_Button5");
    });
    run();
}

TEST_F(Entry, KeepsAMemberForABrokenPicture) {
    host.files.write("data/ab_01.gif", "no picture");
    fillPictureBuffers(appResource());
    EXPECT_EQ(appResource().pic_AblasserBuffer.last(), 1);
    EXPECT_EQ(appResource().pic_AblasserBuffer(1).picture(), nullptr);
}

} // namespace
} // namespace quendal::test
