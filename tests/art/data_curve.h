// A curve file of the data folder, read as the program reads it.
#pragma once

#include "host/chart.h"

#include <fstream>
#include <iterator>
#include <string>

namespace quendal {

class NoPainter final : public ChartPainter {
  public:
    void render(const ChartView&, PictureBox&, double) override {}
};

struct DataCurve {
    explicit DataCurve(const std::string& fileName) {
        std::ifstream stream(QUENDAL_SOURCE_DIR "/data/" + fileName, std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(stream), {}};
        readCurve(text, document, fault);
    }

    NoPainter painter;
    ChartDocument document{painter, "test"};
    std::string fault; // empty when all went well
};

} // namespace quendal
