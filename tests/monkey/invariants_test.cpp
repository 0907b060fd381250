#include "headless/choose_data_folder.h"
#include "headless/headless_host.h"
#include "host/calculator.h"
#include "monkey/invariants.h"
#include "particles/species.h"
#include "script/script.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"
#include "weak_silver/frm_AppMainSilver.h"
#include "workbench/frm_AppMainStrong.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace quendal::test {
namespace {

class BenchTest : public testing::Test {
  protected:
    void SetUp() override {
        session().SessionConcentration = 0.6;
        session().SessionChartFactory = &HostApp().Calculator.ChartFactory();
    }
    void TearDown() override {
        resetInstances();
        resetSession();
    }

    // A beaker with 0.6 mol/L of sample and 2 mL of reagent.
    static void pour(Workbench& bench, std::initializer_list<int> kinds) {
        bench.Workbench::Form_Load(); // without what stands before it
        bench.vPipShown = false;
        bench.vSourceVol = {10, 2, 0, 0};
        bench.vVol = 12;
        bench.sClicks = 2;
        for (const int kind : kinds) {
            bench.vMolecules.CREATE(kind, 50, 50);
        }
        bench.hThinkDo(); // the labels follow
    }
    static std::string found(const Workbench& bench) {
        const auto finding = checkBalance(bench);
        return finding ? finding->what : "";
    }

    HeadlessHost host_{ScriptSettings{}, chooseDataFolder({})};
};

TEST_F(BenchTest, TheBalanceOfAnAcidWithABase) {
    frm_AppMainStrong bench;
    EXPECT_EQ(found(bench), "");
    pour(bench, {8, 8, 8, 8, 3, 3, 3, 3, 3, 3, 5, 5});
    EXPECT_EQ(found(bench), "");
    bench.vMolecules.CREATE(kChloride, 10, 10);
    EXPECT_EQ(found(bench), "beaker.countsort(3) is 7 in place of 6");
}

TEST_F(BenchTest, TheBalanceOfChlorideWithSilver) {
    frm_AppMainSilver bench;
    pour(bench, {3, 3, 3, 3, 5, 5, 5, 5, 5, 5, 13, 13, 14, 14});
    EXPECT_EQ(found(bench), "");
    bench.vMolecules.CREATE(kSilverChloride, 10, 10);
    EXPECT_EQ(found(bench), "beaker.countsort(14) is 3 in place of 2");
}

TEST_F(BenchTest, VolumesAndClicks) {
    frm_AppMainStrong bench;
    pour(bench, {8, 8, 8, 8, 3, 3, 3, 3, 3, 3, 5, 5});
    bench.vVol = 13;
    EXPECT_EQ(found(bench), "frm_AppMainStrong.vVol is 13 in place of 12");
    bench.vVol = 12;
    bench.sClicks = 3;
    EXPECT_EQ(found(bench), "frm_AppMainStrong.sClicks is 3 in place of 2");
    bench.vVol = 31;
    EXPECT_EQ(found(bench), "frm_AppMainStrong.vVol is 31 in place of 30");
}

TEST_F(BenchTest, WhatTheLearnerIsTold) {
    frm_AppMainStrong bench;
    pour(bench, {8, 8, 8, 8, 3, 3, 3, 3, 3, 3, 5, 5});
    EXPECT_EQ(bench.lab_BilanzCount(0).text(), "4 mmol");
    bench.lab_BilanzCount(0).setTerm("~~ 4 mmol");
    EXPECT_EQ(found(bench), "");
    bench.lab_BilanzCount(0).setTerm("5 mmol");
    EXPECT_EQ(found(bench), "frm_AppMainStrong.lab_BilanzCount(0).text is \"5 mmol\" in place of "
                            "\"4 mmol\"");
    bench.lab_BilanzCount(0).setTerm("4 mmol");
    bench.lab_Vol(1).setTerm("0,003 L");
    EXPECT_EQ(found(bench), "frm_AppMainStrong.lab_Vol(1).text is \"0,003 L\" in place of "
                            "\"0,002 L\"");
}

TEST_F(BenchTest, NothingIsSaidWhileSomethingFalls) {
    frm_AppMainStrong bench;
    pour(bench, {8});
    bench.vDrops.CREATE(kHydroxide, 50, 0);
    EXPECT_EQ(found(bench), "");
    bench.vDrops.REMOVE(1);
    EXPECT_NE(found(bench), "");
}

TEST_F(BenchTest, NothingIsLostWhileReactionsGoOn) {
    struct Row {
        const char* what;
        std::initializer_list<int> kinds; // besides six chlorides and two sodiums
    };
    for (const Row& row : std::initializer_list<Row>{
             {"", {8, 8, 8, 8, 8, 8, 9, 9}},
             {"", {8, 8, 8, 8, 8, 9, 1, 1}},
             {"countsort(9) is 1 in place of 2", {8, 8, 8, 8, 8, 8, 9}},
             {"countsort(9) is 2 in place of 1", {8, 8, 8, 8, 8, 9, 9}},
             {"countsort(8) is 7 in place of 6", {8, 8, 8, 8, 8, 8, 8, 9, 9}},
             {"countsort(8) is 3 in place of 4", {8, 8, 8, 9}},
             {"countsort(5) is 3 in place of 2", {8, 8, 8, 8, 8, 8, 9, 9, 5}},
             {"countsort(3) is 7 in place of 6", {8, 8, 8, 8, 8, 8, 9, 9, 3}}}) {
        frm_AppMainStrong bench;
        pour(bench, {3, 3, 3, 3, 3, 3, 5, 5});
        for (const int kind : row.kinds) {
            bench.vMolecules.CREATE(kind, 50, 50);
        }
        bench.hThinkDo();
        EXPECT_EQ(found(bench), *row.what == 0 ? "" : std::string("beaker.") + row.what);
    }
    frm_AppMainSilver silver; // a chloride and a silver become one
    pour(silver, {3, 3, 3, 3, 3, 12, 14, 5, 5, 5, 5, 5, 5, 13, 13});
    EXPECT_EQ(found(silver), "");
    silver.vMolecules.CREATE(kSilverChloride, 10, 10);
    EXPECT_EQ(found(silver), "beaker.countsort(14) is 2 in place of 1");
    EXPECT_EQ(checkBalance(silver)->expects,
              std::vector<std::string>{"expect beaker.countsort(14) != 2"});
}

TEST_F(BenchTest, CountersOnlyRise) {
    frm_AppMainStrong bench;
    CounterWatch watch;
    bench.vWrong = 3;
    EXPECT_FALSE(watch.check(bench));
    bench.vWrong = 4;
    EXPECT_FALSE(watch.check(bench));
    bench.vWrong = 2;
    const auto finding = watch.check(bench);
    ASSERT_TRUE(finding);
    EXPECT_EQ(finding->what, "frm_AppMainStrong.vWrong fell from 4 to 2");
    EXPECT_EQ(finding->expects, std::vector<std::string>{"expect frm_AppMainStrong.vWrong != 2"});
    frm_AppMainStrong next; // a new task begins anew
    EXPECT_FALSE(watch.check(next));
}

TEST_F(BenchTest, ReportsFollowTheTask) {
    frm_AppMainStrong bench;
    ReportWatch watch;
    bench.vWrong = 1;
    watch.progress(&bench, 0, 1);
    bench.vPoints = 1;
    watch.progress(&bench, 1, 1);
    watch.result(&bench, 200, 5, "Mangelhaft");
    EXPECT_FALSE(watch.finding());
    watch.progress(&bench, 0, 1);
    ASSERT_TRUE(watch.finding());
    EXPECT_EQ(watch.finding()->what, "report \"progress 0 1\": the form has other numbers");
    EXPECT_EQ(watch.finding()->expects,
              (std::vector<std::string>{"expect report progress 0 1", "expect report progress 1 1",
                                        "expect report result 200 5 Mangelhaft",
                                        "expect report progress 1 1"}));
}

TEST_F(BenchTest, TheScriptOfAWrongReportAsksForTheRightOne) {
    frm_AppMainStrong bench;
    bench.vPoints = 5;
    using Expects = std::vector<std::string>;
    ReportWatch mark;
    mark.progress(&bench, 5, 0);
    mark.result(&bench, 1000, 2, "Gut");
    EXPECT_EQ(mark.finding()->expects,
              (Expects{"expect report progress 5 0", "expect report result 1000 1 \"Sehr gut\""}));
    ReportWatch left;
    left.result(&bench, 1000, 1, "Sehr gut");
    EXPECT_EQ(left.finding()->expects,
              (Expects{"expect report progress 5 0", "expect report result 1000 1 \"Sehr gut\""}));
    ReportWatch nowhere;
    nowhere.progress(nullptr, 1, 0);
    EXPECT_EQ(nowhere.finding()->expects, Expects{"expect noreport"});
}

TEST_F(BenchTest, ResultsFitTheirScore) {
    struct Row {
        int score;
        double mark;
        const char* text;
        bool right;
    };
    for (const Row& row : std::initializer_list<Row>{{1000, 1, "Sehr gut", true},
                                                     {900, 1, "Sehr gut", true},
                                                     {899, 2, "Gut", true},
                                                     {650, 3, "Befriedigend", true},
                                                     {649, 4, "Ausreichend", true},
                                                     {-3430, 6, "Ungenügend", true},
                                                     {899, 1, "Sehr gut", false},
                                                     {900, 1, "Gut", false}}) {
        frm_AppMainStrong bench;
        bench.vPoints = 2;
        ReportWatch watch;
        watch.progress(&bench, 2, 0);
        watch.result(&bench, row.score, row.mark, row.text);
        EXPECT_EQ(!watch.finding(), row.right) << row.score << ' ' << row.text;
    }
}

TEST_F(BenchTest, AResultNeedsATask) {
    frm_AppMainStrong bench;
    ReportWatch early;
    early.result(&bench, 1000, 1, "Sehr gut");
    EXPECT_TRUE(early.finding());
    ReportWatch demo;
    bench.vPoints = 1;
    bench.vDemo = true;
    demo.progress(&bench, 1, 0);
    demo.result(&bench, 1000, 1, "Sehr gut");
    EXPECT_TRUE(demo.finding());
    ReportWatch nowhere;
    nowhere.progress(nullptr, 0, 0);
    EXPECT_TRUE(nowhere.finding());
}

} // namespace
} // namespace quendal::test
