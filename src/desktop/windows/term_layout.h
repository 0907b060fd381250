// Typesets a term: lowered and raised text, fractions with a bar, all on one baseline.
#pragma once

#include "host/font.h"
#include "host/term_markup.h"

#include <QFont>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include <vector>

class QPainter;

namespace quendal {

class TermLayout {
  public:
    // Sets `markup` at `scale`, shrunk pixel by pixel until it fits into `box`; a box without size
    // asks for no shrinking.
    TermLayout(const std::string& markup, const FontSpec& spec, double scale, QSizeF box = {});

    double width() const { return width_; }
    double ascent() const { return ascent_; }
    double descent() const { return descent_; }
    double height() const { return ascent_ + descent_; }
    int pixelSize() const { return pixelSize_; }
    // Draws in the pen of the painter with the start of the baseline at `start`.
    void paint(QPainter& painter, QPointF start) const;

  private:
    struct Run {
        QPointF place; // of its baseline's start
        QFont font;
        QString text;
    };
    struct Bar {
        QPointF from;
        double length = 0;
        double thickness = 1;
    };
    struct Extent {
        double width = 0;
        double ascent = 0;
        double descent = 0;
    };

    // How many runs and bars were set up to a moment.
    struct Mark {
        std::size_t run = 0;
        std::size_t bar = 0;
    };

    void set(const Term& term, const FontSpec& spec, int pixelSize);
    Extent place(const Term& term, const FontSpec& spec, double pixelSize, QPointF start);
    Extent placeFraction(const TermFraction& fraction, const FontSpec& spec, double pixelSize,
                         QPointF start);
    Mark mark() const { return {runs_.size(), bars_.size()}; }
    void shift(Mark from, Mark to, QPointF by);

    std::vector<Run> runs_;
    std::vector<Bar> bars_;
    double width_ = 0;
    double ascent_ = 0;
    double descent_ = 0;
    int pixelSize_ = 1;
};

} // namespace quendal
