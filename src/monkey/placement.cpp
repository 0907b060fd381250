#include "monkey/placement.h"

#include "host/form.h"
#include "host/panels.h"
#include "host/pictures.h"

#include <algorithm>
#include <vector>

namespace quendal {

namespace {

bool contains(const Rect& place, Point at) {
    return at.x >= place.left && at.x < place.right() && at.y >= place.top && at.y < place.bottom();
}

// From the form inwards, the control itself last.
std::vector<const Control*> chainOf(const Control& control) {
    std::vector<const Control*> chain;
    for (const Control* link = &control; link != nullptr; link = link->container()) {
        chain.insert(chain.begin(), link);
    }
    return chain;
}

} // namespace

Rect placeOnForm(const Control& control) {
    Rect place = control.place();
    for (const Control* outer = control.container(); outer != nullptr; outer = outer->container()) {
        place.left += outer->place().left;
        place.top += outer->place().top;
    }
    return place;
}

bool isOpaque(const Control& control) {
    switch (control.kind()) {
    case ControlKind::Frame:
        return !static_cast<const ctl_Frame&>(control).plain();
    case ControlKind::PictureBox:
        return !static_cast<const PictureBox&>(control).overlay();
    case ControlKind::Button:
    case ControlKind::Panel:
    case ControlKind::Header:
    case ControlKind::Title:
    case ControlKind::CmdBar:
    case ControlKind::TermInput:
    case ControlKind::ListBox:
    case ControlKind::TabControl:
    case ControlKind::RichTextBox:
        return true;
    default:
        return false;
    }
}

bool standsInFront(const Control& front, const Control& back) {
    const auto fronts = chainOf(front);
    const auto backs = chainOf(back);
    const auto [left, right] =
        std::mismatch(fronts.begin(), fronts.end(), backs.begin(), backs.end());
    if (left == fronts.end() || right == backs.end()) {
        return false; // one holds the other
    }
    const auto& order = front.form().controls();
    return std::find(order.begin(), order.end(), *left) >
           std::find(order.begin(), order.end(), *right);
}

bool isCoveredAt(const Control& control, Point at) {
    const auto& controls = control.form().controls();
    return std::any_of(controls.begin(), controls.end(), [&](const Control* other) {
        return other != &control && isOpaque(*other) && contains(placeOnForm(*other), at) &&
               other->shownThroughContainers() && standsInFront(*other, control);
    });
}

bool isCovered(const Control& control) {
    constexpr int kSamples = 3; // in each direction
    const Rect place = placeOnForm(control);
    constexpr int kAll = kSamples * kSamples;
    for (int i = 0; i < kAll; ++i) {
        const int sample = (i + kAll / 2) % kAll; // the middle first: it is hardly ever covered
        const int row = sample / kSamples;
        const double across = (sample % kSamples + 0.5) / kSamples;
        const double down = (row + 0.5) / kSamples;
        if (!isCoveredAt(control,
                         {place.left + place.width * across, place.top + place.height * down})) {
            return false;
        }
    }
    return true;
}

} // namespace quendal
