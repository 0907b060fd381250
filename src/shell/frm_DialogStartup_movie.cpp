// The movie beside the welcome text.
#include "shell/frm_DialogStartup.h"
#include "shell/movie_frame.h"
#include "shell/movie_scenes.h"

namespace quendal {

namespace {

constexpr double kTick = 0.5;
constexpr double kSceneEnd = 20; // a scene takes 41 ticks, about two seconds

} // namespace

void frm_DialogStartup::tmr_Movie_Timer() {
    MovieTime += kTick;
    if (MovieTime > kSceneEnd) {
        MovieTime = 0;
        ++MovieScene;
    }
    if (MovieScene > kMovieScenes) {
        MovieScene = 1;
    }
    // On another tab the movie goes on, unseen.
    if (pic_Movie(0).shownThroughContainers()) {
        drawMovie();
    }
}

void frm_DialogStartup::drawMovie() {
    drawMovieFrame(pic_Movie(0).surface(),
                   {.scene = MovieScene, .time = MovieTime, .gridColor = MovieGridColor});
    pic_Movie(0).drawn();
}

} // namespace quendal
