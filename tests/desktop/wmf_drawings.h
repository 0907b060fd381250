// What metafiles written by tests are read as.
#pragma once

#include "desktop/files/wmf_drawing.h"
#include "desktop/wmf_samples.h"

#include <gtest/gtest.h>

namespace quendal::test {

inline WmfDrawing drawingOf(const WmfWriter& writer) {
    const WmfReading reading = readWmf(writer.bytes());
    EXPECT_EQ(reading.fault, "");
    return reading.drawing.value_or(WmfDrawing{});
}

} // namespace quendal::test
