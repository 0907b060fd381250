// Chart documents: curves from files, series of points, fitted lines. Painting is the host's.
#pragma once

#include "host/color.h"
#include "host/geometry.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendal {

class PictureBox;
class ChartDocument;
class FileService;

// Draws a document; a host supplies it.
class ChartPainter {
  public:
    virtual ~ChartPainter() = default;
    // `scale` is the size of the lettering in points on the design grid.
    virtual void render(const ChartDocument& document, PictureBox& target, double scale) = 0;
};

struct SeriesStyle {
    bool LineVisible = true;
    bool MarkerVisible = false;
    int MarkerStyle = 0; // 2 is the filled circle
    int MarkerSize = 6;  // design px
    int MarkerSetting = 8;
    Color Colour = palette(1);
};

class SeriesData {
  public:
    void Add(double x, double y) { points_.push_back({x, y}); }
    int Count() const { return static_cast<int>(points_.size()); }
    // i from 1; outside 1 to Count the value is 0.
    double X(int i) const;
    double Y(int i) const;
    // The x added last; 0 for an empty series.
    double LastX() const { return X(Count()); }
    const std::vector<Point>& points() const { return points_; }

  private:
    std::vector<Point> points_;
};

// A straight line y = intercept + slope * x.
struct FittedLine {
    double slope = 0;
    double intercept = 0;
};

// Least squares through points `first` to `last`, counted from 1 and cut to what is there. nullopt
// for fewer than two points with different x.
std::optional<FittedLine> fitLine(const SeriesData& data, int first, int last);

// Numbers of the two axes that a series is drawn on, counted from 1.
struct SeriesAxes {
    int x = 1;
    int y = 1;
};

class ChartSeries {
  public:
    explicit ChartSeries(std::string seriesName) : name(std::move(seriesName)) {}

    std::string name;
    SeriesData Data;
    SeriesStyle Style;
    SeriesAxes Axes;
    std::vector<FittedLine> fittedLines;
};

class ChartView {
  public:
    explicit ChartView(ChartDocument& document) : document_(document) {}

    // Draws the chart into a picture; x and y are always 0.
    void RenderTo(PictureBox& picture, double x, double y, double scale);
    // Draws again where the chart was last drawn, if that picture is still there; always with 0.
    void Redraw(int unused);
    // Which series is the active one (counted from 1); the second argument is always -1.
    void SetActiveSeries(int index, int unused);
    int activeSeries() const { return activeSeries_; }

  private:
    ChartDocument& document_;
    PictureBox* target_ = nullptr; // valid while targetLife_ lasts
    std::weak_ptr<const void> targetLife_;
    double scale_ = 8.0;
    int activeSeries_ = 1;
};

class ChartDocument {
  public:
    ChartDocument(ChartPainter& painter, std::string documentName);
    ChartDocument(const ChartDocument&) = delete;
    ChartDocument& operator=(const ChartDocument&) = delete;

    std::string name;
    std::string xTitle; // with unit
    std::string yTitle; // with unit

    int seriesCount() const { return static_cast<int>(series_.size()); }
    // Index from 1. An index that isn't there gives an empty series that is drawn nowhere, so that
    // a form runs on when a curve file is missing.
    ChartSeries& Series(int index);
    const ChartSeries& Series(int index) const;
    // Index 1; there is one view.
    ChartView& Axes(int index);
    ChartView& View() { return view_; }
    // The first argument is always 1. The series stays where it is until the document closes.
    ChartSeries& AddSeries(int unused, const std::string& seriesName);
    // Where the series stands, from 1; 0 when it is not of this document.
    int indexOf(const ChartSeries& series) const;
    ChartPainter& painter() const { return painter_; }

  private:
    ChartPainter& painter_;
    ChartView view_;
    std::vector<std::unique_ptr<ChartSeries>> series_;
    ChartSeries nowhere_;
};

class ChartDocuments {
  public:
    ChartDocuments(FileService& files, ChartPainter& painter) : files_(files), painter_(painter) {}

    int Count() const { return static_cast<int>(documents_.size()); }
    // Always gives a document: one without series, and one logged line, when the file is missing or
    // isn't a curve file. The other arguments are always 0.
    ChartDocument& Open(const std::string& fileName, int, int, int);
    // Closes document `index`, counted from 1; the other arguments are always -1, 0, 0.
    void Close(int index, int, int, int);

  private:
    FileService& files_;
    ChartPainter& painter_;
    std::vector<std::unique_ptr<ChartDocument>> documents_;
};

class ChartFactory {
  public:
    ChartFactory(FileService& files, ChartPainter& painter) : documents_(files, painter) {}
    ChartDocuments& Documents() { return documents_; }

  private:
    ChartDocuments documents_;
};

// Reads a curve file's text into `document`: "#" lines with the axis titles, a header line with the
// series' names, then rows of numbers with ";" between and comma or point. False, and the reason in
// `fault`, when the text is no curve; the document is then left without series. At most 100,000
// rows and 32 series are read.
bool readCurve(std::string_view text, ChartDocument& document, std::string& fault);

} // namespace quendal
