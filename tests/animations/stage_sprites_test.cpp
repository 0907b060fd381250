// Sprites: found by their names, loaded once, placed by their centres.
#include "stage_fixture.h"

namespace quendal::test {
namespace {

using Names = std::vector<std::string>;

class StageSprites : public StageTest {
  protected:
    StageSprites() {
        addSprite("fällung\\grün1", 50, 30);
        addSprite("h2o-hcl\\_h2o", 101, 81);
        addSprite("h2o-hcl\\h2o", 200, 100);
        addSprite("h2o-hcl\\wanne", 700, 400);
    }
    std::vector<Mark> drawn() {
        paper.Clear();
        stage.hRender();
        return paper.of(Mark::Kind::Stretch);
    }
};

TEST(SpriteName, IsFolderAndFileInCapitals) {
    EXPECT_EQ(spriteName("data/h2o-hcl/wanne.wmf"), "H2O-HCL\\WANNE");
    EXPECT_EQ(spriteName("/opt/data/h2o-hcl/_h2o.wmf"), "H2O-HCL\\_H2O");
    EXPECT_EQ(spriteName("c:\\data\\ionen\\grün1.WMF"), "IONEN\\GRÜN1");
    EXPECT_EQ(spriteName("data\\fällung/no3.wmf"), "FÄLLUNG\\NO3");
    EXPECT_EQ(spriteName("data/fa\u0308llung/no3.wmf"), "FÄLLUNG\\NO3");
    EXPECT_EQ(spriteName("data/h3o-cl/h2o-2.wmf"), "H3O-CL\\H2O-2");
    EXPECT_EQ(spriteName("data/a.b/c.d.wmf"), "A.B\\C.D");
    EXPECT_EQ(spriteName("ionen/aus.wmf"), "IONEN\\AUS");
    EXPECT_EQ(spriteName("aus.wmf"), "AUS");
}

TEST_F(StageSprites, AreFoundWhenTheFormLoadsButNotLoaded) {
    host.files.write("data/ionen/aus.txt", "no sprite");
    open();
    ASSERT_EQ(stage.Sprites.size(), 5U); // counted from 1
    const char* names[] = {"", "FÄLLUNG\\GRÜN1", "H2O-HCL\\_H2O", "H2O-HCL\\H2O", "H2O-HCL\\WANNE"};
    for (std::size_t i = 1; i < stage.Sprites.size(); ++i) {
        EXPECT_EQ(stage.Sprites[i].Name, names[i]);
        EXPECT_FALSE(stage.Sprites[i].Loaded);
        EXPECT_FALSE(stage.Sprites[i].Visible);
        EXPECT_EQ(stage.Sprites[i].Pic, nullptr);
    }
    EXPECT_EQ(stage.Sprites[4].File, "data/h2o-hcl\\wanne.wmf");
    EXPECT_TRUE(graphics.loads.empty());
    EXPECT_EQ(stage.pic_Sprite.last(), 0);
}

TEST_F(StageSprites, AreKnownInAnyLetterCase) {
    open();
    for (const char* name :
         {"fällung\\grün1", "FÄLLUNG\\GRÜN1", "Fällung\\Grün1", "fa\u0308llung\\gru\u0308n1"}) {
        stage.hSpriteClear();
        stage.hSprite(10, 10, 100, name);
        EXPECT_EQ(onStage(), Names{"FÄLLUNG\\GRÜN1"}) << name;
    }
    stage.hSpriteOff("fällung\\GRÜN1");
    EXPECT_TRUE(onStage().empty());
    EXPECT_TRUE(logged.empty());
}

TEST_F(StageSprites, WithoutAFileLeaveAHoleAndOneLine) {
    open();
    stage.hSprite(10, 10, 100, "h2o-hcl\\missing");
    stage.hSprite(20, 10, 100, "H2O-HCL\\Missing");
    stage.hSpriteOff("h2o-hcl\\missing");
    EXPECT_TRUE(onStage().empty());
    ASSERT_EQ(logged.size(), 1U);
    EXPECT_NE(logged[0].find("h2o-hcl\\missing"), std::string::npos);
    stage.hSpriteOff("h2o\\other");
    EXPECT_EQ(logged.size(), 2U);
    EXPECT_TRUE(drawn().empty());
}

TEST_F(StageSprites, AreLoadedAtTheirFirstUseAndOnce) {
    open();
    stage.hSprite(100, 100, 100, "h2o-hcl\\h2o");
    EXPECT_EQ(graphics.loads, Names{"data/h2o-hcl\\h2o.wmf"});
    const Sprite& water = sprite("H2O-HCL\\H2O");
    EXPECT_TRUE(water.Loaded);
    ASSERT_NE(water.Pic, nullptr);
    EXPECT_EQ(water.Pic, &stage.pic_Sprite(1));
    EXPECT_FALSE(water.Pic->visible());
    EXPECT_EQ(water.Pic->picture(), water.Dc);
    EXPECT_EQ(water.NatWidth, 200);
    EXPECT_EQ(water.NatHeight, 100);
    const PicturePtr buffer = water.Dc;
    stage.hSprite(300, 200, 35, "h2o-hcl\\h2o");
    stage.hSpriteOff("h2o-hcl\\h2o");
    stage.hSpriteClear();
    stage.hSprite(300, 200, 100, "h2o-hcl\\h2o");
    EXPECT_EQ(graphics.loads.size(), 1U);
    EXPECT_EQ(graphics.scalings.size(), 1U);
    EXPECT_EQ(sprite("H2O-HCL\\H2O").Dc, buffer);
    stage.hSprite(1, 1, 100, "h2o-hcl\\_h2o");
    EXPECT_EQ(sprite("H2O-HCL\\_H2O").Pic, &stage.pic_Sprite(2));
    EXPECT_EQ(graphics.loads.size(), 2U);
}

TEST_F(StageSprites, HaveABufferInPixelsOfTheStage) {
    open({1600, 900});
    stage.hSprite(400, 300, 50, "h2o-hcl\\_h2o");
    const Sprite& formula = sprite("H2O-HCL\\_H2O");
    EXPECT_EQ(formula.NatWidth, 101);
    EXPECT_EQ(formula.SrcWidth, 202);
    EXPECT_EQ(formula.SrcHeight, 122); // 121.5
    EXPECT_EQ(graphics.scalings, (std::vector<StagePictures::Scaling>{{202, 122}}));
    EXPECT_EQ(formula.Dc->width(), 202);
    EXPECT_EQ(drawn()[0].source, (Rect{0, 0, 202, 122}));
}

struct PlaceRow {
    Size stage;
    double x;
    double y;
    double zoom;
    Placed expected; // left and top in place of the centre
};

const PlaceRow kPlaces[] = {
    {{800, 600}, 400, 300, 100, {350, 260, 101, 81}}, // half of an odd size in whole px
    {{800, 600}, 400, 300, 65, {367, 274, 66, 53}},   // 65.65 by 52.65
    {{800, 600}, 245.5, 134.5, 100, {196, 94, 101, 81}},
    {{800, 600}, 400, 300, 0, {400, 300, 0, 0}},
    {{640, 480}, 400, 300, 100, {280, 208, 81, 65}},
    {{640, 480}, 400, 300, 50, {300, 224, 40, 32}},
    {{640, 480}, 245, 135, 65, {170, 87, 53, 42}},
    {{1366, 768}, 400, 300, 100, {597, 332, 172, 104}},
    {{800, 600}, -20, 700, 100, {-70, 660, 101, 81}},
};

TEST_F(StageSprites, StandWithTheirCentreAtTheirPlace) {
    open();
    for (const PlaceRow& row : kPlaces) {
        resize(stage, row.stage);
        stage.hSprite(row.x, row.y, row.zoom, "h2o-hcl\\_h2o");
        const Sprite& it = sprite("H2O-HCL\\_H2O");
        EXPECT_EQ((Placed{it.Left, it.Top, it.Width, it.Height}), row.expected)
            << row.stage.width << " " << row.x << " " << row.zoom;
        EXPECT_TRUE(it.Visible);
    }
}

TEST_F(StageSprites, AreLiftedAboveTheOthersWhenTheyArePlaced) {
    open();
    stage.hSprite(1, 1, 100, "h2o-hcl\\wanne");
    stage.hSprite(2, 2, 100, "h2o-hcl\\h2o");
    stage.hSprite(3, 3, 100, "h2o-hcl\\_h2o");
    EXPECT_EQ(onStage(), (Names{"H2O-HCL\\WANNE", "H2O-HCL\\H2O", "H2O-HCL\\_H2O"}));
    stage.hSprite(400, 300, 100, "h2o-hcl\\wanne");
    EXPECT_EQ(onStage(), (Names{"H2O-HCL\\H2O", "H2O-HCL\\_H2O", "H2O-HCL\\WANNE"}));
    EXPECT_EQ(sprite("H2O-HCL\\WANNE").Left, 50);
    const std::vector<Mark> marks = drawn();
    ASSERT_EQ(marks.size(), 3U);
    EXPECT_EQ(marks[0].picture, sprite("H2O-HCL\\H2O").Dc);
    EXPECT_EQ(marks[2].picture, sprite("H2O-HCL\\WANNE").Dc);
    EXPECT_EQ(marks[2].from, (Point{50, 100}));
}

TEST_F(StageSprites, AreTakenOffOneByOne) {
    open();
    stage.hSprite(1, 1, 100, "h2o-hcl\\wanne");
    stage.hSprite(2, 2, 100, "h2o-hcl\\h2o");
    stage.hSpriteOff("h2o-hcl\\wanne");
    stage.hSpriteOff("h2o-hcl\\wanne");
    stage.hSpriteOff("h2o-hcl\\_h2o"); // never was on it
    EXPECT_EQ(onStage(), Names{"H2O-HCL\\H2O"});
    EXPECT_FALSE(sprite("H2O-HCL\\WANNE").Visible);
    EXPECT_TRUE(sprite("H2O-HCL\\H2O").Visible);
    EXPECT_FALSE(sprite("H2O-HCL\\_H2O").Loaded);
    EXPECT_EQ(drawn().size(), 1U);
}

TEST_F(StageSprites, AreTakenOffTogether) {
    open();
    stage.hSprite(1, 1, 100, "h2o-hcl\\wanne");
    stage.hSprite(2, 2, 100, "h2o-hcl\\h2o");
    stage.hSpriteClear();
    EXPECT_EQ(stage.SpriteList.Count(), 0);
    EXPECT_FALSE(sprite("H2O-HCL\\WANNE").Visible);
    EXPECT_FALSE(sprite("H2O-HCL\\H2O").Visible);
    EXPECT_TRUE(sprite("H2O-HCL\\H2O").Loaded);
    EXPECT_TRUE(drawn().empty());
}

TEST_F(StageSprites, ThatAreHiddenOnTheListAreNotDrawn) {
    open();
    stage.hSprite(1, 1, 100, "h2o-hcl\\wanne");
    stage.hSprite(2, 2, 100, "h2o-hcl\\h2o");
    for (Sprite& it : stage.Sprites) {
        it.Visible = it.Name == "H2O-HCL\\H2O";
    }
    const std::vector<Mark> marks = drawn();
    ASSERT_EQ(marks.size(), 1U);
    EXPECT_EQ(marks[0].picture, sprite("H2O-HCL\\H2O").Dc);
}

TEST_F(StageSprites, OfABrokenFileLeaveAHoleAndOneLine) {
    addBrokenSprite("h2o-hcl\\broken");
    open();
    for (int i = 0; i < 3; ++i) {
        stage.hSprite(100, 100, 100, "h2o-hcl\\broken");
        stage.hSprite(200, 100, 100, "h2o-hcl\\h2o");
        EXPECT_EQ(drawn().size(), 1U);
    }
    EXPECT_EQ(logged.size(), 1U);
    EXPECT_EQ(graphics.loads.size(), 2U);
    const Sprite& broken = sprite("H2O-HCL\\BROKEN");
    EXPECT_TRUE(broken.Loaded);
    EXPECT_EQ(broken.Dc, nullptr);
    EXPECT_EQ(broken.Width, 0);
    stage.hSpriteOff("h2o-hcl\\broken");
    EXPECT_EQ(onStage(), Names{"H2O-HCL\\H2O"});
}

TEST_F(StageSprites, TellWhereTheyAre) {
    open();
    stage.hSprite(100, 60, 100, "h2o-hcl\\h2o");
    stage.hSprite(200, 60, 50, "fällung\\grün1");
    FieldTable table;
    stage.describe(table);
    EXPECT_EQ(std::get<std::int64_t>(table.find("SpriteCount").value()), 2);
    EXPECT_EQ(std::get<std::string>(table.find("SpriteName", 2).value()), "FÄLLUNG\\GRÜN1");
    EXPECT_EQ(std::get<std::int64_t>(table.find("SpriteLeft", 1).value()), 0);
    EXPECT_EQ(std::get<std::int64_t>(table.find("SpriteTop", 1).value()), 10);
    EXPECT_EQ(std::get<std::int64_t>(table.find("SpriteWidth", 2).value()), 25);
    EXPECT_EQ(std::get<std::int64_t>(table.find("SpriteHeight", 2).value()), 15);
    EXPECT_FALSE(table.find("SpriteName", 3).has_value());
    EXPECT_FALSE(table.find("SpriteName", 0).has_value());
}

TEST_F(StageSprites, AreLookedForAnewWhenTheFormLoadsAgain) {
    open();
    stage.hSprite(100, 100, 100, "h2o-hcl\\h2o");
    host.windows.Unload(stage);
    addSprite("h2o-hcl\\hcl", 10, 10);
    open();
    EXPECT_EQ(stage.SpriteList.Count(), 0);
    EXPECT_EQ(stage.Sprites.size(), 6U);
    stage.hSprite(100, 100, 100, "h2o-hcl\\h2o");
    EXPECT_EQ(graphics.loads.size(), 2U);
    EXPECT_EQ(drawn().size(), 1U);
}

} // namespace
} // namespace quendal::test
