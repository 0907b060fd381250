#include "shell/forms/frm_AppResource.h"
#include "shell/forms/frm_AppSplash.h"
#include "shell/forms/frm_DialogHelp.h"
#include "shell/forms/frm_DialogTerms.h"
#include "shell/forms/frm_DialogphCompare.h"

#include "shell_fixture.h"

namespace quendal::test {
namespace {

using Instances = ShellTest;
using DialogHelp = ShellTest;
using DialogTerms = ShellTest;
using DialogphCompare = ShellTest;

TEST_F(Instances, AreMadeOnce) {
    EXPECT_EQ(&appResource(), &appResource());
    EXPECT_EQ(&appSplash(), &appSplash());
    EXPECT_EQ(&dialogTerms(), &dialogTerms());
    EXPECT_EQ(&dialogphCompare(), &dialogphCompare());
}

TEST_F(Instances, HoldOneMemberOfEachBufferAtFirst) {
    frm_AppResource& resource = appResource();
    for (frm_AppResource::Buffer* buffer :
         {&resource.pic_phF, &resource.pic_BüretteBuffer, &resource.pic_BüretteBufferBowl,
          &resource.pic_MagnifyBuffer, &resource.pic_MagnifyBufferBowl,
          &resource.pic_AblasserBuffer, &resource.pic_AblasserBufferBowl, &resource.pic_Capture}) {
        EXPECT_EQ(buffer->count(), 1);
        EXPECT_TRUE(buffer->has(0));
    }
    EXPECT_NE(resource.findControl("pic_BüretteBuffer", 0), nullptr);
}

TEST_F(Instances, SplashShowsItsPictureAndUnloadingItAgainChangesNothing) {
    host.graphics.addPicture("data/splash.gif", 560, 340);
    host.windows.Show(appSplash());
    EXPECT_TRUE(appSplash().shown());
    EXPECT_TRUE(appSplash().frameless());
    EXPECT_NE(appSplash().pic_Splash.picture(), nullptr);
    host.windows.Unload(appSplash());
    host.windows.Unload(appSplash());
    EXPECT_FALSE(appSplash().shown());
    EXPECT_FALSE(appSplash().loaded());
}

TEST_F(DialogHelp, LoadsItsFileAndTakesNineTenthsOfTheScreen) {
    frm_DialogHelp help;
    help.FileName = "strong.rtf";
    later([&] {
        EXPECT_EQ(help.txt_RTF.fileName(), "data/help\\strong.rtf");
        // 0.9 * 1366 = 1229.4 and 0.9 * 768 = 691.2; the margins 68.5 and 38.5 round to even.
        EXPECT_EQ(help.wantedPlace(), (Rect{68, 38, 1229, 691}));
        help.ctl_CmdBar1.userCommand("ANYTHING");
    });
    host.windows.ShowModal(help);
    EXPECT_FALSE(help.shown());
    EXPECT_EQ(help.caption(), "Ausführliche Hilfe zur Berechnung");
}

// Reports inner sizes as a host with resizable windows does.
class ResizingWindows final : public WindowSystem {
  public:
    Size screen() const override { return {1366, 768}; }
    double scaleOf(const Form&) const override { return 1; }
    void setPointer(MousePointer) override {}
    [[noreturn]] void EndProcess() override { throw ProcessEnded{}; }
    void deliverEvents() override {}
    void waitForEvents(double) override {}
    void realise(Form&, bool) override {}
    void withdraw(Form&) override {}
    using WindowSystem::resize;
};

TEST_F(DialogHelp, StretchesItsTextWithTheWindow) {
    frm_DialogHelp help;
    ResizingWindows windows;
    windows.resize(help, {1200, 700});
    const Rect text = help.txt_RTF.place();
    EXPECT_EQ(text.width, 1200 - 2 * text.left);
    EXPECT_EQ(text.height, 700 - text.top - text.left - help.ctl_CmdBar1.place().height);
    EXPECT_EQ(help.ctl_Title1.place().width, 1200);
    EXPECT_GT(help.ctl_CmdBar1.place().top, help.txt_RTF.place().bottom());
    EXPECT_LE(help.ctl_CmdBar1.place().bottom(), 700);
}

TEST_F(DialogHelp, LeavesItsTextInAWindowThatIsTooSmall) {
    frm_DialogHelp help;
    ResizingWindows windows;
    windows.resize(help, {1000, 650});
    const Rect before = help.txt_RTF.place();
    windows.resize(help, {20, 650});
    EXPECT_EQ(help.txt_RTF.place(), before);
    windows.resize(help, {1000, 30});
    EXPECT_EQ(help.txt_RTF.place(), before);
}

TEST_F(DialogHelp, KeepsItsPlacesWhileMinimised) {
    frm_DialogHelp help;
    ResizingWindows windows;
    windows.resize(help, {1000, 650});
    const Rect before = help.txt_RTF.place();
    help.setWindowState(WindowState::Minimised);
    windows.resize(help, {1300, 700});
    EXPECT_EQ(help.txt_RTF.place(), before);
}

TEST_F(DialogTerms, ShowsTwelveTermsInTheirOrder) {
    frm_DialogTerms& terms = dialogTerms();
    EXPECT_EQ(terms.caption(), "Formelsammlung");
    EXPECT_EQ(terms.lab_Term.count(), 12);
    EXPECT_EQ(terms.lab_Term(0).term(), " pH = - log (c(H3O+))");
    EXPECT_EQ(terms.lab_Term(5).term(), "pH = pKµS  (im Halbäquivalenzunkt)");
    EXPECT_EQ(terms.lab_Term(7).term(), terms.lab_Term(8).term());
    EXPECT_EQ(terms.lab_Term(11).term(),
              "pH = 14 -  0.5 (14-pKµS - log(cµV(HAc)*VµV(HAc) / (VµV(HAc)+ VµZ(OH))");
}

TEST_F(DialogTerms, CanBeShownAgain) {
    for (int time = 0; time < 2; ++time) {
        later([] {
            EXPECT_TRUE(dialogTerms().shown());
            EXPECT_TRUE(dialogTerms().userKey(Key::Escape));
        });
        host.windows.ShowModal(dialogTerms());
        EXPECT_FALSE(dialogTerms().shown());
    }
}

TEST_F(DialogphCompare, DrawsTheChartAtEachShow) {
    ChartDocument document(host.calculator.painter, "curve");
    session().SessionChartView = &document.Axes(1);
    for (int time = 1; time <= 2; ++time) {
        later([] { dialogphCompare().ctl_CmdBar1.userClicked(); });
        host.windows.ShowModal(dialogphCompare());
        EXPECT_EQ(host.calculator.painter.renders, time);
    }
}

TEST_F(DialogphCompare, OpensWithoutAChart) {
    later([] { dialogphCompare().ctl_CmdBar1.userClicked(); });
    host.windows.ShowModal(dialogphCompare());
    EXPECT_FALSE(dialogphCompare().shown());
    EXPECT_EQ(host.calculator.painter.renders, 0);
}

TEST_F(DialogphCompare, KeepsCaptionAndFieldsWhenItIsUnloaded) {
    EXPECT_EQ(dialogphCompare().caption(),
              "Vergleich: Deine Rechnungen und der 'richtige' Verlauf");
    dialogphCompare().setCaption("Anderer Vergleich");
    dialogphCompare().ShowBreak = true;
    dialogphCompare().BreakIndex = 4;
    later([] { dialogphCompare().ctl_CmdBar1.userClicked(); });
    host.windows.ShowModal(dialogphCompare());
    EXPECT_EQ(dialogphCompare().caption(), "Anderer Vergleich");
    EXPECT_TRUE(dialogphCompare().ShowBreak);
    EXPECT_EQ(dialogphCompare().BreakIndex, 4);
}

} // namespace
} // namespace quendal::test
