// A frame of the movie asks for no memory. This binary counts every allocation.
#include "host/form.h"
#include "host/pictures.h"
#include "particles/counted_allocations.h"
#include "shell/movie_frame.h"

#include <gtest/gtest.h>

namespace quendal::test {
namespace {

TEST(MovieAllocation, AFrameAllocatesNothing) {
    Form form("frm_Picture", {600, 400});
    PictureBox box(form, "pic_Movie");
    box.setPlace(0, 0, 505, 201);
    drawMovieFrame(box.surface(), {.scene = 1, .time = 5, .gridColor = kBlack});
    const long before = allocations;
    for (int scene = 0; scene <= 6; ++scene) {
        for (double time = 0; time <= 20; time += 0.5) {
            drawMovieFrame(box.surface(), {.scene = scene, .time = time, .gridColor = kBlack});
        }
    }
    EXPECT_EQ(allocations - before, 0);
}

} // namespace
} // namespace quendal::test
