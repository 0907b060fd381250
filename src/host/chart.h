// Chart documents: curves from files, series of points, fitted lines. Painting is the host's.
#pragma once

#include "host/color.h"
#include "host/geometry.h"

#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendal {

class PictureBox;
class ChartDocument;
class ChartView;
class FileService;

// Draws a view of a document; a host supplies it.
class ChartPainter {
  public:
    virtual ~ChartPainter() = default;
    // `scale` is the size of the lettering in points on the design grid.
    virtual void render(const ChartView& view, PictureBox& target, double scale) = 0;
};

enum class Marker { FilledCircle = 2, Square = 3, Triangle = 4, Diamond = 5, TriangleDown = 6 };

struct SeriesStyle {
    bool LineVisible = true;
    bool MarkerVisible = false;
    Marker MarkerStyle = Marker::Square;
    int MarkerSize = 6; // design px
    int MarkerSetting = 8;
    std::optional<Color> Colour; // none: one of the painter's own
};

class SeriesData {
  public:
    void Add(double x, double y) { points_.push_back({x, y}); }
    // By x; points with the same x keep their order. The last x is then the largest.
    void Sort();
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
    // x of the outer points it was fitted through. Between these and those of a neighbour the two
    // lines are drawn to a little beyond where they cross.
    double from = -std::numeric_limits<double>::infinity();
    double to = std::numeric_limits<double>::infinity();
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
    std::string shortName; // in a legend of one line; empty: the name
    SeriesData Data;
    SeriesStyle Style;
    SeriesAxes Axes;
    std::vector<FittedLine> fittedLines;
};

// What of a document is drawn, and where it was drawn last.
class ChartView {
  public:
    explicit ChartView(ChartDocument& document, std::string viewName = {})
        : name(std::move(viewName)), document_(document) {}

    std::string name;
    // What stands in a chart without any point.
    std::string emptyNote = "Zu dieser Aufgabe liegt keine Kurve vor.";

    // Draws the chart into a picture; x and y are always 0.
    void RenderTo(PictureBox& picture, double x, double y, double scale);
    // Draws again where the chart was last drawn, if that picture is still there; always with 0.
    void Redraw(int unused);
    // Which series is the active one (counted from 1); the second argument is always -1.
    void SetActiveSeries(int index, int unused);
    int activeSeries() const { return activeSeries_; }

    // Draws these series of the document and no others. The axes stay those of the whole document,
    // so that a curve can grow without its axes moving.
    void ShowOnly(std::vector<const ChartSeries*> series) { only_ = std::move(series); }
    // The axes also hold this point, which isn't drawn.
    void KeepRoomFor(Point point) { reserved_.push_back(point); }
    const std::vector<Point>& reserved() const { return reserved_; }
    // What is drawn, in this order.
    std::vector<const ChartSeries*> shown() const;
    const ChartDocument& document() const { return document_; }

  private:
    ChartDocument& document_;
    std::vector<const ChartSeries*> only_; // none: all
    std::vector<Point> reserved_;
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
    // Index from 1; any other gives the first, which shows the whole document.
    ChartView& Axes(int index);
    ChartView& View() { return Axes(1); }
    // A further view, which stays where it is until the document closes.
    ChartView& AddView(const std::string& viewName);
    // The first argument is always 1. The series stays where it is until the document closes.
    ChartSeries& AddSeries(int unused, const std::string& seriesName);
    // Where the series stands, from 1; 0 when it is not of this document.
    int indexOf(const ChartSeries& series) const;
    ChartPainter& painter() const { return painter_; }

  private:
    ChartPainter& painter_;
    std::vector<std::unique_ptr<ChartView>> views_;
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
