// The choice in the footer.
#include "stage_fixture.h"

#include <utility>

namespace quendal::test {
namespace {

class StageChoice : public StageTest {
  protected:
    enum class Chosen { Back, Forward, BrokenOff, Nothing };

    // What comes of a deed; of one without effect the learner breaks the choice off.
    Chosen chosenAfter(const std::function<void()>& deed) {
        stage.Aborted = false;
        stage.Clicked = false;
        waits = 0;
        answers = {deed};
        const bool back = stage.hAskChoice("< Zurück", "Weiter >");
        if (waits == 2) {
            EXPECT_TRUE(stage.Aborted);
            EXPECT_FALSE(back);
            return Chosen::Nothing;
        }
        EXPECT_EQ(waits, 1);
        EXPECT_FALSE(back && stage.Aborted);
        return stage.Aborted ? Chosen::BrokenOff : back ? Chosen::Back : Chosen::Forward;
    }
    Chosen chosenAt(double x, double y) {
        return chosenAfter([=, this] { stage.Form_MouseDown(x, y, MouseButton::Left); });
    }
    Chosen chosenBy(const std::string& key) {
        return chosenAfter(
            [=, this] { stage.userKey(key == "\r" ? Key::Enter : Key::Other, key); });
    }
};

TEST_F(StageChoice, HasItsAreasToTheirEdges) {
    open();
    const std::pair<double, Chosen> columns[] = {
        {300, Chosen::Nothing},   {519, Chosen::Nothing},   {520, Chosen::Back},
        {550, Chosen::Back},      {580, Chosen::Back},      {581, Chosen::Nothing},
        {600, Chosen::Nothing},   {620, Chosen::Nothing},   {639, Chosen::Nothing},
        {640, Chosen::BrokenOff}, {659, Chosen::BrokenOff}, {660, Chosen::Nothing},
        {679, Chosen::Nothing},   {680, Chosen::Forward},   {780, Chosen::Forward},
        {781, Chosen::Nothing}};
    for (const auto& [x, chosen] : columns) {
        EXPECT_EQ(chosenAt(x, 560), chosen) << x;
        EXPECT_EQ(chosenAt(x, 539), Chosen::Nothing) << x;
        EXPECT_EQ(chosenAt(x, 540), chosen) << x;
        EXPECT_EQ(chosenAt(x, 580), chosen) << x;
        EXPECT_EQ(chosenAt(x, 581), Chosen::Nothing) << x;
    }
}

TEST_F(StageChoice, HasItsKeys) {
    open();
    for (const char* key : {"<", "-"}) {
        EXPECT_EQ(chosenBy(key), Chosen::Back) << key;
    }
    for (const char* key : {">", "+", " ", "\r"}) {
        EXPECT_EQ(chosenBy(key), Chosen::Forward) << key;
    }
    for (const char* key : {"x", "1", "ß"}) {
        EXPECT_EQ(chosenBy(key), Chosen::Nothing) << key;
    }
}

TEST_F(StageChoice, LeavesNoKeysBehind) {
    open();
    chosenBy(">");
    answerKey(">");
    stage.hWaitClick();
    EXPECT_EQ(stage.ClickX, -1);
}

TEST_F(StageChoice, IsBrokenOffByEscapeOrAnotherButton) {
    open();
    EXPECT_EQ(chosenAfter([this] { stage.userKey(Key::Escape); }), Chosen::BrokenOff);
    EXPECT_EQ(chosenAfter([this] { stage.Form_MouseDown(550, 560, MouseButton::Right); }),
              Chosen::BrokenOff);
    EXPECT_EQ(chosenAfter([this] { host.windows.userClosed(stage); }), Chosen::BrokenOff);
}

TEST_F(StageChoice, DoesntCountAClickThatCameBefore) {
    open();
    stage.Clicked = true;
    stage.ClickX = 550;
    stage.ClickY = 560;
    during(0, [this] { stage.Form_MouseDown(550, 560, MouseButton::Left); });
    answerClick(700, 560);
    EXPECT_FALSE(stage.hAskChoice("a", "b"));
    EXPECT_EQ(waits, 1);
}

TEST_F(StageChoice, IsTakenWhereverTheStageStands) {
    open({1600, 900});
    EXPECT_EQ(chosenAt(1160, 840), Chosen::Back); // 580 in design units
    EXPECT_EQ(chosenAt(1163, 840), Chosen::Nothing);
}

TEST_F(StageChoice, DrawsItsButtonsOnBlack) {
    open();
    stage.hAskChoice("< Zurück", "Weiter >");
    EXPECT_EQ(shots.size(), 1U);
    EXPECT_EQ(paper.order(), "bllllbllllt"
                             "bllllt"
                             "bllllt"
                             "bllllt");
    const std::vector<Mark> boxes = paper.of(Mark::Kind::Box);
    EXPECT_EQ(boxes[0], (Mark{Mark::Kind::Box, {20, 540}, {780, 580}, kBlack}));
    EXPECT_EQ(paper.marks[1].color, kBlack);
    const double edges[][2] = {{20, 500}, {520, 620}, {640, 660}, {680, 780}};
    // Characters of 9 px: the end stands left, the others centred.
    const struct {
        const char* text;
        double left;
    } texts[] = {{"Ende der Simulation mit ESC", 30},
                 {"< Zurück", 570 - 36},
                 {"X", 650 - 4.5},
                 {"Weiter >", 730 - 36}};
    const std::vector<Mark> printed = paper.of(Mark::Kind::Text);
    ASSERT_EQ(printed.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(boxes[i + 1],
                  (Mark{Mark::Kind::Box, {edges[i][0], 540}, {edges[i][1], 580}, palette(7)}));
        EXPECT_EQ(printed[i].text, texts[i].text);
        EXPECT_EQ(printed[i].from, (Point{texts[i].left, 560 - 11.25})) << i;
        EXPECT_EQ(printed[i].color, kBlack);
        EXPECT_EQ(printed[i].font.size, 18);
        EXPECT_EQ(paper.marks[6 * i + 6].color, palette(15)); // an outline of the box
    }
}

} // namespace
} // namespace quendal::test
