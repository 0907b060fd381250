#include "desktop/pictures/sprite_spans.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quendal {

namespace {

constexpr std::uint32_t kWhitePixel = 0xffffffffU;
constexpr int kFarthestLine = 1 << 20; // beyond any picture
// Crossings of outlines with lines, and what is moved for them, that a picture may have. The
// richest sprite of ours at 3840 x 2160 has a twentieth of it.
constexpr std::size_t kMostWork = 40'000'000;
constexpr std::size_t kGapsForOne = 16; // looked at in the time of one crossing

// The first pixel whose middle isn't left of (or above) `place`. Without std::ceil, which is a call
// on older processors.
int firstAt(double place, int least, int most) {
    const double bounded =
        std::clamp(place - 0.5, static_cast<double>(least), static_cast<double>(most));
    const int whole = static_cast<int>(bounded);
    return whole + (bounded > whole ? 1 : 0);
}

// The four channels, 16 bits for each, so that sixteen pixels can be added up.
std::uint64_t spread(std::uint32_t pixel) {
    constexpr std::uint64_t kPairs = 0x0000ffff0000ffffU;
    constexpr std::uint64_t kChannels = 0x00ff00ff00ff00ffU;
    const std::uint64_t pairs = (pixel | (std::uint64_t{pixel} << 16)) & kPairs;
    return (pairs | (pairs << 8)) & kChannels;
}

std::uint32_t meanOfSixteen(std::uint64_t sum) {
    constexpr std::uint64_t kPairs = 0x0000ffff0000ffffU;
    constexpr std::uint64_t kChannels = 0x00ff00ff00ff00ffU;
    constexpr std::uint64_t kHalves = 0x0008000800080008U;
    const std::uint64_t channels = ((sum + kHalves) >> 4) & kChannels;
    const std::uint64_t pairs = (channels | (channels >> 8)) & kPairs;
    return static_cast<std::uint32_t>(pairs | (pairs >> 16));
}

// One line of fine pixels, painted from the front to the back: what is painted is hidden from
// whatever comes later.
class FineLine {
  public:
    // The channels of each four pixels are added to one of `sums`; it has one more than the line
    // has fours, because the last run ends where the line does.
    FineLine(int width, std::vector<std::uint64_t>& sums) : width_(width), sums_(sums) {}

    void clear() { gaps_.assign(1, {0, width_}); }
    // Places that are still open.
    std::size_t gaps() const { return gaps_.size(); }

    // 0 <= from < to <= width
    void paint(int from, int to, std::uint32_t pixel) {
        const auto first = std::find_if(gaps_.begin(), gaps_.end(),
                                        [&](const Gap& gap) { return gap.end > from; });
        auto behind = first;
        for (; behind != gaps_.end() && behind->start < to; ++behind) {
            addRun(std::max(behind->start, from), std::min(behind->end, to), pixel);
        }
        if (first != behind) {
            close(first, behind, {from, to});
        }
    }

    void paintRest(std::uint32_t pixel) {
        for (const Gap& gap : gaps_) {
            addRun(gap.start, gap.end, pixel);
        }
    }

  private:
    struct Gap {
        int start = 0;
        int end = 0;
    };
    using Place = std::vector<Gap>::iterator;

    // Takes `painted` from the gaps that it meets, those from `first` to before `behind`.
    void close(Place first, Place behind, Gap painted) {
        const Gap left{first->start, painted.start};
        const Gap right{painted.end, std::prev(behind)->end};
        const bool leavesLeft = left.start < left.end;
        const bool leavesRight = right.start < right.end;
        if (leavesLeft && leavesRight && behind - first == 1) {
            *first = left;
            gaps_.insert(behind, right);
            return;
        }
        if (leavesLeft) {
            *first++ = left;
        }
        if (leavesRight) {
            *--behind = right;
        }
        gaps_.erase(first, behind);
    }

    void addRun(int from, int to, std::uint32_t pixel) {
        if (pixel == 0) {
            return;
        }
        const std::uint64_t channels = spread(pixel);
        const int first = from / kFineness;
        const int last = to / kFineness;
        std::uint64_t* const sum = sums_.data();
        if (first == last) {
            sum[first] += channels * static_cast<unsigned>(to - from);
            return;
        }
        sum[first] += channels * static_cast<unsigned>(kFineness - from % kFineness);
        for (int i = first + 1; i < last; ++i) {
            sum[i] += channels * kFineness;
        }
        sum[last] += channels * static_cast<unsigned>(to % kFineness);
    }

    int width_;
    std::vector<std::uint64_t>& sums_;
    std::vector<Gap> gaps_;
};

} // namespace

SpriteArea::SpriteArea(std::uint32_t pixel, WmfFillRule rule, const Rect& clip)
    : pixel_(pixel), rule_(rule), left_(firstAt(clip.left, 0, kFarthestLine)),
      right_(firstAt(clip.right(), 0, kFarthestLine)), top_(firstAt(clip.top, 0, kFarthestLine)),
      bottom_(firstAt(clip.bottom(), 0, kFarthestLine)) {}

void SpriteArea::addRing(std::span<const Point> points) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        addEdge(points[i], points[i + 1]);
    }
    if (points.size() > 1) {
        addEdge(points.back(), points.front());
    }
}

void SpriteArea::addEdge(Point from, Point to) {
    const int turn = from.y < to.y ? 1 : -1;
    if (turn < 0) {
        std::swap(from, to);
    }
    const int first = firstAt(from.y, top_, bottom_);
    const int end = firstAt(to.y, top_, bottom_);
    if (first < end) {
        const double step = (to.x - from.x) / (to.y - from.y);
        edges_.push_back({first, end, from.x + (first + 0.5 - from.y) * step, step, turn});
    }
}

// Walks down the lines of an area.
class SpriteAreaRows {
  public:
    explicit SpriteAreaRows(const SpriteArea& area) : area_(&area) {
        for (const SpriteArea::Edge& edge : area.edges_) {
            byLine_.push_back(&edge);
        }
        std::sort(byLine_.begin(), byLine_.end(),
                  [](const auto* a, const auto* b) { return a->first < b->first; });
    }

    // Lines come one by one from 0. Gives the work done.
    std::size_t paint(int line, FineLine& target) {
        const bool starts = next_ < byLine_.size() && byLine_[next_]->first <= line;
        if (active_.empty() && !starts) {
            return 0;
        }
        moveTo(line);
        return paintBetween(target, area_->rule_ == WmfFillRule::Alternate ? 1 : ~0);
    }

  private:
    // Where an edge crosses the present line.
    struct Crossing {
        double x = 0;
        double step = 0;
        int turn = 0;
        int end = 0;
    };

    void moveTo(int line) {
        std::erase_if(active_, [&](const Crossing& crossing) { return crossing.end <= line; });
        for (Crossing& crossing : active_) {
            crossing.x += crossing.step;
        }
        const std::size_t before = active_.size();
        for (; next_ < byLine_.size() && byLine_[next_]->first <= line; ++next_) {
            const SpriteArea::Edge& edge = *byLine_[next_];
            active_.push_back({edge.x, edge.step, edge.turn, edge.end});
        }
        sort(active_.size() - before);
    }

    void sortAnew() {
        std::sort(active_.begin(), active_.end(),
                  [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
        moved_ += active_.size();
    }

    // From one line to the next hardly any change places, but for `added` new ones.
    void sort(std::size_t added) {
        constexpr std::size_t kFew = 8; // moves for each crossing
        if (added > kFew) {
            sortAnew();
            return;
        }
        for (std::size_t i = 1; i < active_.size(); ++i) {
            if (moved_ > kFew * active_.size()) {
                sortAnew();
                return;
            }
            for (std::size_t k = i; k > 0 && active_[k].x < active_[k - 1].x; --k) {
                std::swap(active_[k], active_[k - 1]);
                ++moved_;
            }
        }
    }

    // What has, after the crossings left of it, one of the bits `inside` in its winding number.
    std::size_t paintBetween(FineLine& target, int inside) {
        std::size_t work = active_.size() + std::exchange(moved_, 0);
        int winding = 0;
        int from = 0;
        for (const Crossing& crossing : active_) {
            const int to = firstAt(crossing.x, area_->left_, area_->right_);
            if ((winding & inside) != 0 && from < to) {
                target.paint(from, to, area_->pixel_);
                work += target.gaps() / kGapsForOne;
            }
            winding += crossing.turn;
            from = to;
        }
        return work;
    }

    const SpriteArea* area_;
    std::vector<const SpriteArea::Edge*> byLine_; // as the lines reach them
    std::size_t next_ = 0;                        // of them
    std::vector<Crossing> active_;                // from left to right
    std::size_t moved_ = 0;                       // crossings, for their order
};

bool paintSpriteAreas(std::span<const SpriteArea> areas, int width, int height,
                      std::uint32_t* pixels, std::size_t stride) {
    std::vector<SpriteAreaRows> rows(areas.rbegin(), areas.rend());
    std::vector<std::uint64_t> sums(static_cast<std::size_t>(width) + 1);
    FineLine fine(width * kFineness, sums);
    std::size_t work = 0;
    for (int line = 0; line < height * kFineness; ++line) {
        fine.clear();
        for (SpriteAreaRows& area : rows) {
            work += area.paint(line, fine);
        }
        fine.paintRest(kWhitePixel);
        if (work > kMostWork) {
            return false;
        }
        if ((line + 1) % kFineness == 0) {
            std::transform(sums.begin(), sums.end() - 1, pixels, meanOfSixteen);
            std::fill(sums.begin(), sums.end(), 0);
            pixels += stride;
        }
    }
    return true;
}

} // namespace quendal
