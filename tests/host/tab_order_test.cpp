#include "host/tab_order.h"

#include "host/buttons.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

// Made in another order than they are read.
class Crossed final : public Form {
  public:
    Crossed() : Form("frm_Crossed", {400, 300}) {
        frm_Right.setPlace(200, 10, 180, 200);
        but_Inner.setContainer(frm_Right);
        but_Inner.setPlace(10, 100, 80, 30);
        txt_Inner.setContainer(frm_Right);
        txt_Inner.setPlace(10, 40, 80, 30);
        but_Below.setPlace(10, 250, 80, 30);
        but_Second.setPlace(100, 16, 80,
                            20); // a little lower and less high, on one row all the same
        txt_First.setPlace(10, 10, 80, 30);
    }
    ctl_Button but_Below{*this, "but_Below"};
    ctl_Frame frm_Right{*this, "frm_Right"};
    ctl_Button but_Inner{*this, "but_Inner"};
    ctl_Button but_Second{*this, "but_Second"};
    clt_TermInput txt_Inner{*this, "txt_Inner"};
    clt_TermInput txt_First{*this, "txt_First"};
};

class TabOrder : public testing::Test {
  protected:
    test::FakeHost host;
    Crossed form;
};

TEST_F(TabOrder, IsThatOfReading) {
    EXPECT_EQ(tabOrder(form),
              (std::vector<Control*>{&form.txt_First, &form.but_Second, &form.txt_Inner,
                                     &form.but_Inner, &form.but_Below}));
}

TEST_F(TabOrder, FollowsWhatMovesAndLeavesOutWhatCantBeReached) {
    form.txt_First.setTop(280);
    form.txt_Inner.setEnabled(false);
    EXPECT_EQ(tabOrder(form), (std::vector<Control*>{&form.but_Second, &form.but_Inner,
                                                     &form.but_Below, &form.txt_First}));
    form.frm_Right.setVisible(false);
    EXPECT_EQ(tabOrder(form),
              (std::vector<Control*>{&form.but_Second, &form.but_Below, &form.txt_First}));
}

TEST_F(TabOrder, KeepsThePlaceOfAFocusThatWasHidden) {
    form.but_Second.setFocus();
    form.but_Second.setVisible(false);
    EXPECT_EQ(tabOrder(form)[1], &form.but_Second);
}

} // namespace
} // namespace quendal
