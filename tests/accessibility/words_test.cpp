// What pictures say in words.
#include "host/chart.h"
#include "host/chart_words.h"
#include "particles/species.h"
#include "workbench/beaker_words.h"

#include <array>

#include <gtest/gtest.h>

namespace quendal {
namespace {

class NoPainter final : public ChartPainter {
  public:
    void render(const ChartView&, PictureBox&, double) override {}
};

TEST(BeakerWords, NameEachKindOnceWithItsNumber) {
    std::array<int, 21> counts{};
    EXPECT_EQ(beakerWords(counts), "Im Becher sind noch keine gelösten Teilchen.");
    counts[kWater] = 100;
    counts[kHydronium] = 1;
    EXPECT_EQ(beakerWords(counts), "Im Becher: 1 Oxonium-Ion.");
    counts[kChloride] = 20;
    counts[kSodium] = 3;
    EXPECT_EQ(beakerWords(counts),
              "Im Becher: 1 Oxonium-Ion, 3 Natrium-Ionen und 20 Chlorid-Ionen.");
}

TEST(ChartWords, TellPointsLastValueAndJump) {
    NoPainter painter;
    ChartDocument document(painter, "ph");
    document.xTitle = "V in mL";
    document.yTitle = "pH";
    EXPECT_EQ(chartWords(document.View()), document.View().emptyNote);
    ChartSeries& mine = document.AddSeries(1, "Meine Punkte");
    mine.Data.Add(0, 1);
    mine.Data.Add(20, 12.5);
    mine.Data.Add(10, 2);
    EXPECT_EQ(chartWords(document.View()),
              "Waagerecht V in mL, senkrecht pH. Meine Punkte: 3 Punkte, zuletzt 12,5 bei 20, "
              "größter Sprung von 2 auf 12,5 zwischen 10 und 20.");
}

TEST(ChartWords, LeaveOutTitlesThatAreMissing) {
    NoPainter painter;
    ChartDocument document(painter, "ph");
    document.AddSeries(1, "Meine Punkte").Data.Add(0, 1);
    const std::string points = "Meine Punkte: 1 Punkt, zuletzt 1 bei 0.";
    EXPECT_EQ(chartWords(document.View()), points);
    document.yTitle = "pH";
    EXPECT_EQ(chartWords(document.View()), "Senkrecht pH. " + points);
    document.xTitle = "V in mL";
    document.yTitle = "";
    EXPECT_EQ(chartWords(document.View()), "Waagerecht V in mL. " + points);
}

} // namespace
} // namespace quendal
