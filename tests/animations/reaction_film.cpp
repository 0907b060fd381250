#include "reaction_film.h"

#include "host/file_name_match.h"

#include <cmath>

namespace quendal::test {

namespace {

constexpr double kHalfPixel = 0.5 + 1e-9;
constexpr double kShake = 5; // units

} // namespace

Moving standing(const std::string& name, double x, double y, double zoom) {
    return {name, zoom, [x, y](double) { return Point{x, y}; }};
}

Moving shaking(const std::string& name, double x, double y) {
    Moving sprite = standing(name, x, y);
    sprite.shake = kShake;
    return sprite;
}

void ReactionTest::addSprites(const std::string& folder, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        const int extra = 4 * static_cast<int>(sizes_.size());
        const std::string whole = folder + "\\" + name;
        addSprite(whole, 60 + extra, 40 + extra);
        sizes_[upperName(whole)] = {60 + extra, 40 + extra};
    }
}

void ReactionTest::addAllSprites() {
    addSprites("h2o-hcl", {"wanne", "_h2o", "_hcl", "h2o", "hcl", "h2ohcl", "_h2ohcl", "_h3o",
                           "_cl", "h3o", "cl"});
    addSprites("h2o-h2o", {"wanne", "_h2o", "_h2o2", "h2o", "h2o2", "h2oh2o", "_h2oh2o", "_h3o",
                           "_oh", "h3o", "oh"});
    addSprites("h2o-hac", {"wanne", "_h2o", "_hac", "h2o", "hac", "h2ohac", "_h2ohac", "_h3o",
                           "_ac", "h3o", "ac"});
    addSprites("h3o-cl", {"wanne4", "h3o", "cl", "oh", "na", "h2o", "h2o-2"});
    addSprites("fällung", {"wanne", "cl", "na", "ag", "no3"});
}

void ReactionTest::expectStage(const Shot& shot, const std::vector<Moving>& sprites, double done) {
    std::vector<Moving> all = sprites;
    all.push_back(standing(basin, 400, 300));
    EXPECT_EQ(shot.sprites.size(), all.size());
    ASSERT_FALSE(shot.order.empty());
    EXPECT_EQ(shot.order.front(), basin);
    for (const Moving& sprite : all) {
        SCOPED_TRACE(sprite.name);
        const auto found = shot.sprites.find(sprite.name);
        ASSERT_NE(found, shot.sprites.end());
        const Placed& placed = found->second;
        const Point centre = sprite.centre(done);
        ASSERT_NEAR(placed.x, centre.x, sprite.shake + kHalfPixel);
        ASSERT_NEAR(placed.y, centre.y, sprite.shake + kHalfPixel);
        ASSERT_NEAR(placed.width, sizes_[sprite.name].width * sprite.zoom / 100, kHalfPixel);
        ASSERT_NEAR(placed.height, sizes_[sprite.name].height * sprite.zoom / 100, kHalfPixel);
    }
}

void ReactionTest::expectLook(const Shot& shot, const Look& look) {
    ASSERT_EQ(shot.caption, look.caption);
    ASSERT_EQ(shot.footer, look.footer);
    ASSERT_EQ(shot.sounds, look.sounds);
    ASSERT_TRUE(shot.panel);
}

void ReactionTest::expectMotion(Film& film, double seconds, const std::vector<Moving>& sprites,
                                const Look& look) {
    const std::vector<Shot> motion = film.motion(seconds);
    const double start = motion.front().time;
    ASSERT_GE(motion.back().time - start, seconds);
    ASSERT_LE(motion.back().time - start, seconds + kFrame + 1e-9);
    ASSERT_GE(static_cast<double>(motion.size()), seconds * 60);
    for (const Shot& shot : motion) {
        const double done = std::min(shot.time - start, seconds) * 100 / seconds;
        SCOPED_TRACE("percent done: " + std::to_string(done));
        expectStage(shot, sprites, done);
        expectLook(shot, look);
        if (HasFailure()) {
            return;
        }
    }
}

void ReactionTest::expectWait(Film& film, const std::vector<Moving>& sprites, const Look& look) {
    const Shot& before = film.still();
    expectStage(before, sprites, 0);
    const Shot& waiting = film.still();
    expectStage(waiting, sprites, 0);
    expectLook(waiting, {look.caption, kGoOn, look.sounds});
    ASSERT_EQ(before.footer, look.footer);
    ASSERT_EQ(before.time, waiting.time);
}

void ReactionTest::expectStill(Film& film, const std::vector<Moving>& sprites, const Look& look) {
    const Shot& shot = film.still();
    expectStage(shot, sprites, 0);
    expectLook(shot, look);
}

} // namespace quendal::test
