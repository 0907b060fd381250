#include "host/control.h"

#include "host/buttons.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"
#include "host/pictures.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

class RecordingPeer final : public ControlPeer {
  public:
    explicit RecordingPeer(Control& control) : control_(control) { control.attachPeer(this); }
    ~RecordingPeer() override { control_.attachPeer(nullptr); }
    RecordingPeer(const RecordingPeer&) = delete;
    RecordingPeer& operator=(const RecordingPeer&) = delete;
    void changed(Aspect aspect) override { aspects.push_back(aspect); }

    std::vector<Aspect> aspects;

  private:
    Control& control_;
};

class TestForm final : public Form {
  public:
    TestForm() : Form("frm_Test", {400, 300}) {
        tab_Pages.setCaptions({"one", "two"});
        but_OnPage.setContainer(tab_Pages, 1);
        but_InFrame.setContainer(frm_Group);
        opt_A.setContainer(frm_Group);
        opt_B.setContainer(frm_Group);
    }
    ctl_Button but_Go{*this, "but_Go"};
    clt_TermInput txt_Value{*this, "txt_Value", 3};
    ctl_Label lab_Text{*this, "lab_Text"};
    ctl_Frame frm_Group{*this, "frm_Group"};
    ctl_Button but_InFrame{*this, "but_InFrame"};
    OptionButton opt_A{*this, "opt_Calc", 0};
    OptionButton opt_B{*this, "opt_Calc", 1};
    OptionButton opt_Outside{*this, "opt_Calc", 2};
    OptionButton opt_Other{*this, "opt_Other"};
    CheckBox chk_Box{*this, "chk_Box"};
    TabControl tab_Pages{*this, "tab_Pages"};
    ctl_Button but_OnPage{*this, "but_OnPage"};
    ListBox lst_Mol{*this, "lst_Mol"};
    ctl_CmdBar bar{*this, "ctl_CmdBar1"};
    PictureBox pic_Bowl{*this, "pic_Bowl"};
    ctl_Pannel pnl_Sheet{*this, "pnl_Sheet"};
};

class Controls : public testing::Test {
  protected:
    test::FakeHost host;
    TestForm form;
};

TEST_F(Controls, TellTheirPeerOfRealChangesOnly) {
    RecordingPeer peer(form.but_Go);
    form.but_Go.setText("Los");
    form.but_Go.setText("Los");
    form.but_Go.setVisible(true);
    form.but_Go.setEnabled(false);
    form.but_Go.setEnabled(false);
    form.but_Go.setPlace(1, 2, 3, 4);
    form.but_Go.setPlace(1, 2, 3, 4);
    form.but_Go.setTop(2);
    form.but_Go.setTextColor(kBlack);
    form.but_Go.setPictureIcon("");
    form.but_Go.setBorderColors({1, 2, 3}, {240, 240, 240});
    form.but_Go.setDescription("Beginnt");
    form.but_Go.setDescription("Beginnt");
    EXPECT_EQ(peer.aspects, (std::vector<Aspect>{Aspect::Text, Aspect::Enabled, Aspect::Place,
                                                 Aspect::Colours, Aspect::Spoken}));
}

TEST_F(Controls, ChangeBeforeTheyTell) {
    class Looking final : public ControlPeer {
      public:
        explicit Looking(Control& control) : control_(control) {}
        void changed(Aspect) override { seen = control_.text(); }
        std::string seen;

      private:
        Control& control_;
    } peer(form.lab_Text);
    form.lab_Text.attachPeer(&peer);
    form.lab_Text.setText("neu");
    EXPECT_EQ(peer.seen, "neu");
    form.lab_Text.attachPeer(nullptr);
    form.lab_Text.setText("anders");
    EXPECT_EQ(peer.seen, "neu");
}

TEST_F(Controls, HaveFullNames) {
    EXPECT_EQ(form.but_Go.fullName(), "but_Go");
    EXPECT_EQ(form.txt_Value.fullName(), "txt_Value(3)");
    EXPECT_EQ(form.findControl("txt_Value", 3), &form.txt_Value);
    EXPECT_EQ(form.findControl("txt_Value"), nullptr);
    EXPECT_EQ(form.findControl("weg"), nullptr);
}

TEST_F(Controls, ClicksReachOnlyWhatIsShownAndEnabled) {
    int clicks = 0;
    form.but_InFrame.onClick = [&clicks] { ++clicks; };
    form.but_InFrame.userClicked();
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(form.but_InFrame.hasFocus());
    form.but_InFrame.setVisible(false);
    form.but_InFrame.userClicked();
    form.but_InFrame.setVisible(true);
    form.frm_Group.setVisible(false);
    form.but_InFrame.userClicked();
    form.frm_Group.setVisible(true);
    form.frm_Group.setEnabled(false);
    form.but_InFrame.userClicked();
    EXPECT_FALSE(form.but_InFrame.userKey(Key::Enter));
    form.but_InFrame.userMouse(1, 1, MouseButton::Left);
    EXPECT_EQ(clicks, 1);
    form.frm_Group.setEnabled(true);
    form.but_InFrame.userClicked();
    EXPECT_EQ(clicks, 2);
}

TEST_F(Controls, AControlWithoutHandlersBearsEverything) {
    form.but_Go.userClicked();
    form.lab_Text.userMouse(0, 0, MouseButton::Right);
    form.txt_Value.userTyped("1");
    form.bar.userCommand("DIALOG.OK();");
    EXPECT_FALSE(form.lab_Text.userKey(Key::Enter));
}

TEST_F(Controls, ReachTellsWhyNot) {
    EXPECT_EQ(form.but_Go.reach(), Reach::Beneath);
    host.windows.events.push_back([this] {
        EXPECT_EQ(form.but_Go.reach(), Reach::Reachable);
        form.but_Go.setEnabled(false);
        EXPECT_EQ(form.but_Go.reach(), Reach::Disabled);
        form.but_Go.setVisible(false);
        EXPECT_EQ(form.but_Go.reach(), Reach::Hidden);
        EXPECT_EQ(form.but_OnPage.reach(), Reach::Hidden);
        form.tab_Pages.setTab(1);
        EXPECT_EQ(form.but_OnPage.reach(), Reach::Reachable);
        form.tab_Pages.setEnabled(false);
        EXPECT_EQ(form.but_OnPage.reach(), Reach::Disabled);
        host.windows.Unload(form);
    });
    host.windows.ShowModal(form);
    EXPECT_EQ(form.but_InFrame.reach(), Reach::Beneath);
}

TEST_F(Controls, OptionsOfOneNameAndContainerExcludeEachOther) {
    form.opt_Outside.setChecked(true);
    form.opt_Other.setChecked(true);
    form.opt_A.setChecked(true);
    form.opt_B.userClicked();
    EXPECT_FALSE(form.opt_A.checked());
    EXPECT_TRUE(form.opt_B.checked());
    EXPECT_TRUE(form.opt_Outside.checked());
    EXPECT_TRUE(form.opt_Other.checked());
    form.opt_B.setChecked(false);
    EXPECT_FALSE(form.opt_A.checked());
}

TEST_F(Controls, AnOptionIsChosenBeforeItsHandlerRuns) {
    bool seen = false;
    form.opt_A.onClick = [&] { seen = form.opt_A.checked(); };
    form.opt_A.userClicked();
    EXPECT_TRUE(seen);
    form.opt_A.userClicked();
    EXPECT_TRUE(form.opt_A.checked());
}

TEST_F(Controls, AClickSwitchesACheckBoxOver) {
    int clicks = 0;
    form.chk_Box.onClick = [&clicks] { ++clicks; };
    form.chk_Box.userClicked();
    EXPECT_TRUE(form.chk_Box.checked());
    form.chk_Box.userChecked(true);
    EXPECT_EQ(clicks, 1);
    form.chk_Box.userChecked(false);
    EXPECT_FALSE(form.chk_Box.checked());
    form.chk_Box.setChecked(true);
    EXPECT_EQ(clicks, 2);
    EXPECT_TRUE(form.chk_Box.userKey(Key::Other, " "));
    EXPECT_FALSE(form.chk_Box.checked());
}

TEST_F(Controls, TypingReplacesTheTextAndIsBounded) {
    int changes = 0;
    form.txt_Value.onChange = [&changes] { ++changes; };
    form.txt_Value.userTyped("0,01");
    EXPECT_EQ(form.txt_Value.text(), "0,01");
    form.txt_Value.setText("1");
    EXPECT_EQ(changes, 1);
    form.txt_Value.setLocked(true);
    form.txt_Value.userTyped("2");
    EXPECT_EQ(form.txt_Value.text(), "1");
    form.txt_Value.setLocked(false);
    form.txt_Value.userTyped("x" + std::string(1'000, '\xC3') + std::string(1'000, '\xA4'));
    EXPECT_LE(form.txt_Value.text().size(), clt_TermInput::kMaxLength);
    std::string umlauts = "x";
    for (int i = 0; i < 200; ++i) {
        umlauts += "ä";
    }
    form.txt_Value.userTyped(umlauts);
    EXPECT_EQ(form.txt_Value.text().size(), 199U); // no half of a character at the end
}

TEST_F(Controls, TabsAreCutToThePagesThatAreThere) {
    form.tab_Pages.setTab(9);
    EXPECT_EQ(form.tab_Pages.tab(), 1);
    form.tab_Pages.setTab(-1);
    EXPECT_EQ(form.tab_Pages.tab(), 0);
    int seen = -1;
    form.tab_Pages.onClick = [&] { seen = form.tab_Pages.tab(); };
    form.tab_Pages.userChose(1);
    EXPECT_EQ(seen, 1);
}

TEST_F(Controls, ListsKeepTheirChoiceAndTextTogether) {
    form.lst_Mol.setItems({"0.8", "1.0"});
    EXPECT_EQ(form.lst_Mol.listIndex(), -1);
    EXPECT_TRUE(form.lst_Mol.setListIndex(1));
    EXPECT_EQ(form.lst_Mol.text(), "1.0");
    EXPECT_FALSE(form.lst_Mol.setListIndex(2));
    EXPECT_FALSE(form.lst_Mol.setListIndex(-1));
    EXPECT_EQ(form.lst_Mol.text(), "1.0");
    form.lst_Mol.userChose(0);
    EXPECT_EQ(form.lst_Mol.text(), "0.8");
    form.lst_Mol.setEnabled(false);
    form.lst_Mol.userChose(1);
    EXPECT_EQ(form.lst_Mol.listIndex(), 0);
}

TEST_F(Controls, TheCommandBarRaisesItsCommands) {
    std::vector<std::string> commands;
    form.bar.onCommand = [&commands](const std::string& command) { commands.push_back(command); };
    form.bar.userClicked();
    form.bar.setButtons({{"DIALOG.OK();", "&OK", ""}, {"DIALOG.ABORT();", "&Abbruch", ""}});
    form.bar.userCommand("DIALOG.ABORT();");
    form.bar.userClicked();
    EXPECT_EQ(commands, (std::vector<std::string>{"DIALOG.ABORT();", "DIALOG.OK();"}));
}

TEST_F(Controls, MouseGoesToItsHandlerOrIsAClick) {
    int clicks = 0;
    double x = 0;
    form.pic_Bowl.onClick = [&clicks] { ++clicks; };
    form.pic_Bowl.userMouse(1, 2, MouseButton::Left);
    form.pic_Bowl.userMouse(1, 2, MouseButton::Right);
    EXPECT_EQ(clicks, 1);
    form.pic_Bowl.onMouse = [&x](double left, double, MouseButton) { x = left; };
    form.pic_Bowl.userMouse(7, 2, MouseButton::Right);
    EXPECT_EQ(x, 7);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Controls, PictureBoxesCountDesignPxUnlessTheyHaveUnits) {
    PictureBox box(form, "pic_Extra");
    box.setPlace(10, 20, 300, 150);
    EXPECT_EQ(surfaceScale(box), (Size{300, 150}));
    EXPECT_EQ(box.surface().ScaleWidth(), 300);
    box.setScaleSize({280, 249});
    EXPECT_EQ(surfaceScale(box), (Size{280, 249}));
    EXPECT_EQ(box.surface().ScaleWidth(), 280);
    EXPECT_EQ(box.surface().ScaleHeight(), 249);
    box.setPlace(0, 0, 600, 150);
    EXPECT_EQ(box.surface().ScaleWidth(), 280);
    box.setScaleSize({0, 249});
    EXPECT_EQ(surfaceScale(box), (Size{600, 150}));
    // Nobody shows it: drawing is borne.
    box.surface().StretchBlt({0, 0, 9, 9}, nullptr, {0, 0, 9, 9}, RasterOp::SrcAnd);
}

TEST_F(Controls, PictureBoxesEndTheirLifeToken) {
    auto box = std::make_unique<PictureBox>(form, "pic_Extra");
    const std::weak_ptr<const void> life = box->life();
    EXPECT_FALSE(life.expired());
    box.reset();
    EXPECT_TRUE(life.expired());
    EXPECT_EQ(form.findControl("pic_Extra"), nullptr);
}

TEST_F(Controls, OrderFollowsBringingToTheFront) {
    RecordingPeer peer(form.but_Go);
    form.but_Go.bringToFront();
    EXPECT_EQ(form.controls().back(), &form.but_Go);
    form.but_Go.sendToBack();
    EXPECT_EQ(form.controls().front(), &form.but_Go);
    EXPECT_EQ(peer.aspects, (std::vector<Aspect>{Aspect::Order, Aspect::Order}));
}

TEST_F(Controls, DescribeThemselves) {
    FieldTable table;
    form.opt_A.setChecked(true);
    form.opt_A.setText("A");
    form.opt_A.describe(table);
    EXPECT_EQ(table.find("checked"), FieldValue(true));
    EXPECT_EQ(table.find("text"), FieldValue(std::string("A")));
    EXPECT_EQ(table.find("focus"), FieldValue(false));
    EXPECT_EQ(table.find("weg"), std::nullopt);
}

TEST_F(Controls, DescribeWhatOnlyTheirKindHas) {
    const auto ask = [](const Control& control, const char* property) {
        FieldTable table;
        control.describe(table);
        return table.find(property);
    };
    form.pnl_Sheet.setBorderColor({1, 2, 3});
    EXPECT_EQ(ask(form.pnl_Sheet, "bordercolor"), FieldValue(Color{1, 2, 3}));
    EXPECT_EQ(ask(form.pnl_Sheet, "backcolor"), FieldValue(kWhite));
    form.lab_Text.setAngle(90);
    EXPECT_EQ(ask(form.lab_Text, "angle"), FieldValue(90.0));
    form.tab_Pages.setTab(1);
    EXPECT_EQ(ask(form.tab_Pages, "text"), FieldValue(std::string("two")));
    form.tab_Pages.setCaptions({});
    EXPECT_EQ(ask(form.tab_Pages, "text"), FieldValue(std::string()));
    form.bar.setButtons({{"DIALOG.OK();", "&OK", ""}, {"DIALOG.ABORT();", "&Abbrechen", ""}});
    EXPECT_EQ(ask(form.bar, "buttons"), FieldValue(std::string("DIALOG.OK();,DIALOG.ABORT();")));
    form.lst_Mol.setItems({"0.6", "0.8"});
    EXPECT_EQ(ask(form.lst_Mol, "items"), FieldValue(std::string("0.6,0.8")));
}

class LineForm final : public Form {
  public:
    LineForm() : Form("frm_Line", {400, 300}) {}
    Line needle{*this, "shp_Indicator"};
};

TEST(LineControl, StandsInTheBoxAroundItsEnds) {
    LineForm form;
    form.needle.setEnds({100, 80}, {60, 20}, 3);
    EXPECT_EQ(form.needle.from(), (Point{100, 80}));
    EXPECT_EQ(form.needle.to(), (Point{60, 20}));
    EXPECT_EQ(form.needle.thickness(), 3);
    const Rect& place = form.needle.place();
    // Room for half its thickness, and for soft edges, on all sides.
    EXPECT_LE(place.left, 60 - 1.5);
    EXPECT_LE(place.top, 20 - 1.5);
    EXPECT_GE(place.right(), 100 + 1.5);
    EXPECT_GE(place.bottom(), 80 + 1.5);
    EXPECT_LT(place.width, 40 + 2 * 6);
    EXPECT_DOUBLE_EQ(place.left + place.width / 2, 80);
    EXPECT_DOUBLE_EQ(place.top + place.height / 2, 50);
    form.needle.setEnds({10, 10}, {10, 10});
    EXPECT_GT(place.width, 0);
    EXPECT_EQ(form.needle.thickness(), 1);
}

TEST(LineControl, TellsRealChangesOnly) {
    LineForm form;
    form.needle.setEnds({1, 2}, {3, 4}, 2);
    RecordingPeer peer(form.needle);
    form.needle.setEnds({1, 2}, {3, 4}, 2);
    EXPECT_TRUE(peer.aspects.empty());
    form.needle.setEnds({1, 2}, {30, 40}, 2);
    EXPECT_EQ(peer.aspects, (std::vector<Aspect>{Aspect::Place, Aspect::Value}));
    peer.aspects.clear();
    form.needle.setEnds({30, 40}, {1, 2}, 2); // the same box
    EXPECT_EQ(peer.aspects, std::vector<Aspect>{Aspect::Value});
    peer.aspects.clear();
    form.needle.setEnds({30, 40}, {1, 2}, 3);
    EXPECT_EQ(peer.aspects, (std::vector<Aspect>{Aspect::Place, Aspect::Value}));
    peer.aspects.clear();
    form.needle.setTextColor(palette(4));
    EXPECT_EQ(peer.aspects, std::vector<Aspect>{Aspect::Colours});
}

TEST(LineControl, TellsItsEnds) {
    LineForm form;
    form.needle.setEnds({1, 2}, {3, 4});
    FieldTable table;
    form.needle.describe(table);
    EXPECT_EQ(std::get<double>(table.find("x1").value()), 1);
    EXPECT_EQ(std::get<double>(table.find("y1").value()), 2);
    EXPECT_EQ(std::get<double>(table.find("x2").value()), 3);
    EXPECT_EQ(std::get<double>(table.find("y2").value()), 4);
    EXPECT_EQ(form.needle.kind(), ControlKind::Line);
    EXPECT_FALSE(form.needle.takesFocus());
}

} // namespace
} // namespace quendal
