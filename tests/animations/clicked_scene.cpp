#include "clicked_scene.h"

namespace quendal::test {

void ClickedScene::answerAll() {
    for (int i = 0; i < clicks_; ++i) {
        answerClick();
    }
}

void ClickedScene::expectOneRun() {
    answerAll();
    play(scene_);
    EXPECT_EQ(waits, clicks_ + 1);
    Film film(shots);
    expectRun(film);
    EXPECT_TRUE(film.atEnd());
    EXPECT_TRUE(host.sounds.played.empty());
    EXPECT_TRUE(logged.empty());
}

void ClickedScene::expectTwoRuns(std::size_t sprites) {
    answerAll();
    answerClick();
    answerAll();
    play(scene_);
    Film film(shots);
    expectRun(film);
    const Shot first = shots[film.position() - 1];
    expectRun(film);
    EXPECT_TRUE(film.atEnd());
    EXPECT_EQ(shots.back().sprites, first.sprites);
    EXPECT_EQ(shots.back().order, first.order);
    EXPECT_EQ(graphics.loads.size(), sprites);
}

std::map<std::string, double> ClickedScene::textSizes() {
    std::map<std::string, double> sizes;
    eachShot = [&](const Shot&) {
        for (const Mark& mark : paper.of(Mark::Kind::Text)) {
            sizes[mark.text] = mark.font.size;
        }
    };
    answerAll();
    play(scene_);
    eachShot = {};
    return sizes;
}

} // namespace quendal::test
