#include "fuzz_input.h"
#include "host/chart.h"

#include <cmath>

namespace quendal {
namespace {

class NoPainter final : public ChartPainter {
  public:
    void render(const ChartView&, PictureBox&, double) override {}
};

void requireFinite(const ChartSeries& series) {
    for (const Point& point : series.Data.points()) {
        require(std::isfinite(point.x) && std::isfinite(point.y));
    }
}

} // namespace
} // namespace quendal

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    NoPainter painter;
    ChartDocument document(painter, "fuzz");
    std::string fault;
    const bool good = readCurve(fuzzText(data, size), document, fault);
    require(good == fault.empty());
    require(good == (document.seriesCount() > 0));
    for (int i = 1; i <= document.seriesCount(); ++i) {
        requireFinite(document.Series(i));
        fitLine(document.Series(i).Data, 1, document.Series(i).Data.Count());
    }
    return 0;
}
