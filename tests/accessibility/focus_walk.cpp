// Goes with Tab through the form that a script leads to and says where a learner with keys alone
// would be lost: a control that looks the same with the focus as without, and an order that isn't
// that of reading.
//
// focus_walk FILE...: scripts that lead to a form and end with "screenshot walk"
#include "desktop/script/desktop_script_actor.h"
#include "desktop/script/play_on_desktop.h"
#include "desktop/windows/desktop_window_system.h"
#include "desktop/windows/widget_peer.h"
#include "script/play_each.h"
#include "script/script_options.h"
#include "shell/entry.h"
#include "shell/single_forms.h"

#include <QImage>
#include <QPixmap>
#include <QTabBar>

#include <algorithm>
#include <cmath>
#include <iostream>

using namespace quendal;

namespace {

constexpr double kContrast = 3; // between a pixel with the focus and without it
// Of a line of one pixel around the control that must change so. On a check box the ring goes
// around its text, which may be short.
constexpr double kShare = 0.3;
constexpr int kAround = 4;       // px beside the control in which the focus may be seen
constexpr double kSameRow = 0.5; // of the lower one's height that two share on one row

double linear(int channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(QRgb pixel) {
    return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) +
           0.0722 * linear(qBlue(pixel));
}

double contrast(QRgb one, QRgb other) {
    const auto [dark, bright] = std::minmax({luminance(one), luminance(other)});
    return (bright + 0.05) / (dark + 0.05);
}

int changedPixels(const QImage& one, const QImage& other) {
    int changed = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            changed += contrast(one.pixel(x, y), other.pixel(x, y)) >= kContrast ? 1 : 0;
        }
    }
    return changed;
}

struct Stop {
    const Control* control;
    QWidget* widget;
};

class Walk {
  public:
    Walk(Form& form, FormWindow& window) : form_(form), window_(window) {}

    bool hold() {
        const std::vector<Stop> stops = chain();
        checkNoneLeftOut(stops);
        for (const Stop& stop : stops) {
            lookAt(stop);
        }
        for (std::size_t i = 0; i + 1 < stops.size(); ++i) {
            checkOrder(*stops[i].control, *stops[i + 1].control);
        }
        std::cout << form_.name() << ": " << stops.size() << " stops, least share " << least_
                  << '\n';
        return right_;
    }

  private:
    // From the first control of the form to the last, as Tab goes.
    std::vector<Stop> chain() {
        std::vector<Stop> stops;
        form_.setFocusTo(nullptr);
        form_.focusNext();
        const Control* first = form_.focus();
        for (const Control* at = first; at != nullptr; at = form_.focus()) {
            for (QWidget* widget : window_.peerOf(*at)->focusTargets()) {
                stops.push_back({at, widget});
            }
            form_.focusNext();
            if (form_.focus() == first) {
                break;
            }
        }
        return stops;
    }

    void checkNoneLeftOut(const std::vector<Stop>& stops) {
        for (const Control* control : form_.controls()) {
            const bool met = std::any_of(stops.begin(), stops.end(),
                                         [&](const Stop& stop) { return stop.control == control; });
            if (control->takesFocus() && control->reach() == Reach::Reachable && !met) {
                fault("Tab never comes to " + control->fullName());
            }
        }
    }

    QImage picture(const QRect& room) { return window_.grab(room).toImage(); }

    // A row of tabs has the focus on the one that is chosen.
    QRect placeOf(const Stop& stop) const {
        const auto* tabs = qobject_cast<const QTabBar*>(stop.widget);
        const QRect inside =
            tabs != nullptr ? tabs->tabRect(tabs->currentIndex()) : stop.widget->rect();
        return inside.translated(stop.widget->mapTo(&window_, QPoint(0, 0)));
    }

    void lookAt(const Stop& stop) {
        const QRect place = placeOf(stop);
        const QRect room = place.adjusted(-kAround, -kAround, kAround, kAround);
        stop.widget->setFocus(Qt::TabFocusReason);
        const QImage with = picture(room);
        window_.setFocus(Qt::OtherFocusReason);
        const int changed = changedPixels(with, picture(room));
        const double share = changed / (2.0 * (place.width() + place.height()));
        least_ = std::min(least_, share);
        if (share < kShare) {
            fault(stop.control->fullName() +
                  " looks the same with the focus: " + std::to_string(share));
        }
    }

    static std::vector<const Control*> lineOf(const Control& control) {
        std::vector<const Control*> line;
        for (const Control* at = &control; at != nullptr; at = at->container()) {
            line.insert(line.begin(), at);
        }
        return line;
    }

    // Compared are the parts of the innermost container that holds both.
    void checkOrder(const Control& from, const Control& to) {
        if (&from == &to) {
            return;
        }
        const auto one = lineOf(from);
        const auto other = lineOf(to);
        const auto [a, b] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
        if (a == one.end() || b == other.end() || follows((*a)->place(), (*b)->place())) {
            return;
        }
        fault("Tab goes back from " + from.fullName() + " to " + to.fullName());
    }

    static bool follows(const Rect& from, const Rect& to) {
        const double shared = std::min(from.bottom(), to.bottom()) - std::max(from.top, to.top);
        const bool row = shared > kSameRow * std::min(from.height, to.height);
        return row ? from.left <= to.left : from.top <= to.top;
    }

    void fault(const std::string& text) {
        std::cout << form_.name() << ": " << text << '\n';
        right_ = false;
    }

    Form& form_;
    FormWindow& window_;
    double least_ = 1e6;
    bool right_ = true;
};

// Walks where others take a picture.
class WalkingActor final : public DesktopScriptActor {
  public:
    explicit WalkingActor(DesktopWindowSystem& windows)
        : DesktopScriptActor(windows), windows_(windows) {}
    bool screenshot(Form& form, const std::string& /*file*/) override {
        if (!Walk(form, *windows_.windowOf(form)).hold()) {
            windows_.setExitStatus([] { return EXIT_FAILURE; });
        }
        return true;
    }

  private:
    DesktopWindowSystem& windows_;
};

ScriptProgram chooseProgram(const ScriptSettings& settings, std::string& fault) {
    return settings.form ? singleFormProgram(singleForms(), settings.form->name,
                                             settings.form->fields, runSingleForm, fault)
                         : runSession;
}

} // namespace

int main(int argc, char** argv) {
    return playEach({argv + 1, argv + argc}, [&](const std::string& file) {
        ScriptOptions options;
        options.files = {file};
        options.desktop = true;
        options.scriptClock = true;
        return playOnDesktop(argc, argv, options, chooseProgram, [](DesktopWindowSystem& windows) {
            return std::make_unique<WalkingActor>(windows);
        });
    });
}
