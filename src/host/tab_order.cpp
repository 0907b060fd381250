#include "host/tab_order.h"

#include "host/form.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr double kSameRow = 0.5; // of the lower one's height that two of one row share

// A control or container with what Tab comes to in it.
struct Part {
    Control* whole;
    std::vector<Control*> stops;
};

bool isStop(const Control& control) {
    return control.hasFocus() || (control.takesFocus() && control.shownThroughContainers() &&
                                  control.enabledThroughContainers());
}

// What stands directly in `container` (null: on the form) and holds the control or is it.
Control& partIn(const Control* container, Control& control) {
    Control* part = &control;
    while (part->container() != container) {
        part = part->container();
    }
    return *part;
}

std::vector<Part> partsOf(const Control* container, const std::vector<Control*>& stops) {
    std::vector<Part> parts;
    for (Control* stop : stops) {
        Control& whole = partIn(container, *stop);
        const auto known = std::find_if(parts.begin(), parts.end(),
                                        [&](const Part& part) { return part.whole == &whole; });
        auto& part = known == parts.end() ? parts.emplace_back(Part{&whole, {}}) : *known;
        if (stop != &whole) {
            part.stops.push_back(stop);
        }
    }
    return parts;
}

bool onOneRow(const Rect& one, const Rect& other) {
    const double shared = std::min(one.bottom(), other.bottom()) - std::max(one.top, other.top);
    return shared > kSameRow * std::min(one.height, other.height);
}

// The highest one says what is on its row.
void sortByRows(std::vector<Part>& parts) {
    const auto by = [](double Rect::*edge) {
        return [edge](const Part& one, const Part& other) {
            return one.whole->place().*edge < other.whole->place().*edge;
        };
    };
    std::stable_sort(parts.begin(), parts.end(), by(&Rect::top));
    for (auto row = parts.begin(); row != parts.end();) {
        const Rect highest = row->whole->place();
        const auto below = std::stable_partition(row, parts.end(), [&](const Part& part) {
            return part.whole->place() == highest || onOneRow(highest, part.whole->place());
        });
        std::stable_sort(row, below, by(&Rect::left));
        row = below;
    }
}

void addInOrder(const Control* container, const std::vector<Control*>& stops,
                std::vector<Control*>& order) {
    std::vector<Part> parts = partsOf(container, stops);
    sortByRows(parts);
    for (const Part& part : parts) {
        if (isStop(*part.whole)) {
            order.push_back(part.whole);
        }
        addInOrder(part.whole, part.stops, order);
    }
}

} // namespace

std::vector<Control*> tabOrder(const Form& form) {
    std::vector<Control*> stops;
    std::copy_if(form.controls().begin(), form.controls().end(), std::back_inserter(stops),
                 [](const Control* control) { return isStop(*control); });
    std::vector<Control*> order;
    addInOrder(nullptr, stops, order);
    return order;
}

} // namespace quendal
