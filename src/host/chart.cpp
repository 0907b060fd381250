#include "host/chart.h"

#include "host/chart_words.h"
#include "host/file_service.h"
#include "host/log.h"
#include "host/pictures.h"

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

// Place of the item counted from 1, nullopt when there is none.
std::optional<std::size_t> position(int index, int count) {
    if (index < 1 || index > count) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(index - 1);
}

Point centreOf(const std::vector<Point>& points, int first, int last) {
    Point sum;
    for (int i = first; i <= last; ++i) {
        sum.x += points[static_cast<std::size_t>(i - 1)].x;
        sum.y += points[static_cast<std::size_t>(i - 1)].y;
    }
    const double count = last - first + 1;
    return {sum.x / count, sum.y / count};
}

} // namespace

double SeriesData::X(int i) const {
    const auto at = position(i, Count());
    return at ? points_[*at].x : 0;
}

double SeriesData::Y(int i) const {
    const auto at = position(i, Count());
    return at ? points_[*at].y : 0;
}

void SeriesData::Sort() {
    std::stable_sort(points_.begin(), points_.end(),
                     [](const Point& a, const Point& b) { return a.x < b.x; });
}

// Worked out from the differences to the centre: points far from zero cost no digits.
std::optional<FittedLine> fitLine(const SeriesData& data, int first, int last) {
    first = std::max(first, 1);
    last = std::min(last, data.Count());
    if (last - first < 1) {
        return std::nullopt;
    }
    const Point centre = centreOf(data.points(), first, last);
    double xx = 0;
    double xy = 0;
    double from = data.X(first);
    double to = from;
    for (int i = first; i <= last; ++i) {
        from = std::min(from, data.X(i));
        to = std::max(to, data.X(i));
        const double dx = data.X(i) - centre.x;
        xx += dx * dx;
        xy += dx * (data.Y(i) - centre.y);
    }
    const double slope = xy / xx;
    const double intercept = centre.y - slope * centre.x;
    if (xx == 0 || !std::isfinite(slope) || !std::isfinite(intercept)) {
        return std::nullopt;
    }
    return FittedLine{.slope = slope, .intercept = intercept, .from = from, .to = to};
}

void ChartView::RenderTo(PictureBox& picture, double, double, double scale) {
    target_ = &picture;
    targetLife_ = picture.life();
    scale_ = scale;
    document_.painter().render(*this, picture, scale);
    picture.setDescription(chartWords(*this));
}

void ChartView::Redraw(int) {
    if (!targetLife_.expired()) {
        document_.painter().render(*this, *target_, scale_);
        target_->setDescription(chartWords(*this));
    }
}

void ChartView::SetActiveSeries(int index, int) {
    activeSeries_ = index;
}

std::vector<const ChartSeries*> ChartView::shown() const {
    if (!only_.empty()) {
        return only_;
    }
    std::vector<const ChartSeries*> all;
    const ChartDocument& document = document_;
    for (int i = 1; i <= document.seriesCount(); ++i) {
        all.push_back(&document.Series(i));
    }
    return all;
}

ChartDocument::ChartDocument(ChartPainter& painter, std::string documentName)
    : name(std::move(documentName)), painter_(painter), nowhere_(std::string()) {
    AddView({});
}

ChartSeries& ChartDocument::Series(int index) {
    if (const auto at = position(index, seriesCount())) {
        return *series_[*at];
    }
    // Empty again, whatever the last one to ask put into it.
    nowhere_ = ChartSeries(std::string());
    return nowhere_;
}

const ChartSeries& ChartDocument::Series(int index) const {
    const auto at = position(index, seriesCount());
    return at ? *series_[*at] : nowhere_;
}

ChartView& ChartDocument::Axes(int index) {
    return *views_[position(index, static_cast<int>(views_.size())).value_or(0)];
}

ChartView& ChartDocument::AddView(const std::string& viewName) {
    return *views_.emplace_back(std::make_unique<ChartView>(*this, viewName));
}

ChartSeries& ChartDocument::AddSeries(int, const std::string& seriesName) {
    return *series_.emplace_back(std::make_unique<ChartSeries>(seriesName));
}

int ChartDocument::indexOf(const ChartSeries& series) const {
    const auto found = std::find_if(series_.begin(), series_.end(),
                                    [&series](const auto& own) { return own.get() == &series; });
    return found == series_.end() ? 0 : static_cast<int>(found - series_.begin()) + 1;
}

ChartDocument& ChartDocuments::Open(const std::string& fileName, int, int, int) {
    auto& document = *documents_.emplace_back(std::make_unique<ChartDocument>(painter_, fileName));
    const auto text = files_.read(fileName);
    std::string fault = "Die Datei fehlt oder ist nicht lesbar.";
    if (!text || !readCurve(*text, document, fault)) {
        logLine("Kurve " + fileName + ": " + fault);
    } else if (!text->ends_with('\n')) { // what was cut may still read as a curve
        logLine("Kurve " + fileName +
                ": Die letzte Zeile hört mittendrin auf; vielleicht fehlt ein Teil der Datei.");
    }
    return document;
}

void ChartDocuments::Close(int index, int, int, int) {
    if (const auto at = position(index, Count())) {
        documents_.erase(documents_.begin() + static_cast<std::ptrdiff_t>(*at));
    }
}

} // namespace quendal
