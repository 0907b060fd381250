// Whether a learner can get at what is shown, and read it.
#include "host/form.h"
#include "host/labels.h"
#include "host/number_service.h"
#include "host/panels.h"
#include "host/pictures.h"
#include "host/term_markup.h"
#include "host/text_size.h"
#include "monkey/invariants.h"
#include "monkey/placement.h"
#include "script/values.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace quendal {

namespace {

constexpr double kSlack = 1;        // design px
constexpr double kLeastShrunk = 10; // design px, for a text that has little room
// German prose is narrower than the estimate of a text's size.
constexpr double kNarrow = 0.9;
constexpr double kLeastLetters = 12; // design px
constexpr double kNoHeight = 1e9;    // that any control has
constexpr double kLeastContrast = 2; // to 1; what isn't due yet is grey on purpose

std::string fullName(const Control& control) {
    return control.form().name() + "." + control.fullName();
}

// What the learner works with.
bool isForUse(const Control& control) {
    return control.takesFocus() || control.kind() == ControlKind::Button ||
           ((control.onClick || control.onMouse) && control.kind() != ControlKind::Executor);
}

bool showsText(const Control& control) {
    switch (control.kind()) {
    case ControlKind::Button:
    case ControlKind::Label:
    case ControlKind::TermLabel:
    case ControlKind::Frame:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
        return !control.text().empty();
    default:
        return false;
    }
}

bool liesInside(const Control& control) {
    const Rect place = placeOnForm(control);
    const Size form = control.form().inner();
    return place.width > 0 && place.height > 0 && place.left >= -kSlack && place.top >= -kSlack &&
           place.right() <= form.width + kSlack && place.bottom() <= form.height + kSlack;
}

double luminance(Color color) {
    const auto channel = [](std::uint8_t value) {
        const double share = value / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(color.r) + 0.7152 * channel(color.g) + 0.0722 * channel(color.b);
}

double contrast(Color one, Color other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// The ground that a text stands on: its innermost container's that has one, else white.
Color groundOf(const Control& control) {
    for (const Control* outer = control.container(); outer != nullptr; outer = outer->container()) {
        if (const auto* panel = dynamic_cast<const ctl_Pannel*>(outer)) {
            return panel->backcolor();
        }
        if (const auto* picture = dynamic_cast<const PictureBox*>(outer)) {
            return picture->backcolor();
        }
    }
    return kWhite;
}

Finding placeFinding(const Control& control, const char* what) {
    return {fullName(control) + " " + what,
            {expectOther(fullName(control) + ".left", numberText(control.place().left)),
             expectOther(fullName(control) + ".visible", "true")}};
}

Finding textFinding(const Control& control, const char* what) {
    return {fullName(control) + ": the text \"" + control.text() + "\" " + what,
            {expectOther(fullName(control) + ".text", control.text())}};
}

bool isWellFormed(std::string_view text) {
    while (!text.empty()) {
        const auto lead = static_cast<unsigned char>(text[0]);
        const std::size_t length = lead < 0x80   ? 1
                                   : lead < 0xc2 ? 0
                                   : lead < 0xe0 ? 2
                                   : lead < 0xf0 ? 3
                                   : lead < 0xf5 ? 4
                                                 : 0;
        if (length == 0 || length > text.size()) {
            return false;
        }
        for (std::size_t i = 1; i < length; ++i) {
            if ((static_cast<unsigned char>(text[i]) & 0xc0U) != 0x80U) {
                return false;
            }
        }
        text.remove_prefix(length);
    }
    return true;
}

// Numbers that are none have no place in a text for learners. The words stand alone or before a
// unit.
bool showsNoNumber(const std::string& text) {
    constexpr const char* kWords[] = {"nan", "-nan", "inf", "-inf", "NAN", "INF", "-INF"};
    const std::string word = text.substr(0, text.find(' '));
    return std::any_of(std::begin(kWords), std::end(kWords),
                       [&](const char* one) { return word == one; });
}

// A blank is half as wide as a letter.
double lineWidth(const std::string& text, const FontSpec& font) {
    const auto blanks = std::count(text.begin(), text.end(), ' ');
    return kNarrow * (estimatedTextSize(text, font).width -
                      static_cast<double>(blanks) * estimatedTextSize(" ", font).width / 2);
}

double widthOf(const Term& term, const FontSpec& font) {
    constexpr double kScriptSize = 0.72; // of raised and lowered letters
    double width = 0;
    for (const TermPiece& piece : term) {
        if (piece.fraction) {
            width += std::max(widthOf(piece.fraction->numerator, font),
                              widthOf(piece.fraction->denominator, font));
        } else {
            const double share = piece.style == TermStyle::Plain ? 1 : kScriptSize;
            width += share * lineWidth(piece.text, font);
        }
    }
    return width;
}

// In lines that end between words; none will do for a word that is too long.
double heightOf(std::string_view text, double wide, const FontSpec& font) {
    const double space = lineWidth(" ", font);
    double lines = 1;
    double used = 0;
    double widest = 0;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find_first_of(" \r\n", at), text.size());
        const double word = lineWidth(std::string(text.substr(at, end - at)), font);
        widest = std::max(widest, word);
        const bool full = used > 0 && used + space + word > wide;
        const bool ends = end < text.size() && text[end] != ' ';
        lines += (full ? 1 : 0) + (ends ? 1 : 0);
        used = ends ? 0 : full || used == 0 ? word : used + space + word;
        at = end + 1;
    }
    return widest > wide ? kNoHeight : lines * estimatedTextSize("x", font).height;
}

// Whether the text has room in letters as small as it may be set when it is long.
bool fits(const Control& control) {
    const FontSpec letters{.size = std::min(control.font().size, kLeastShrunk)};
    const Rect& place = control.place();
    if (control.kind() == ControlKind::TermLabel) {
        return widthOf(parseTerm(control.text()), letters) <= place.width + kSlack;
    }
    return heightOf(control.text(), place.width + kSlack, letters) <= place.height + 4 * kSlack;
}

std::size_t number(Color color) {
    return color.r + 256U * color.g + 65536U * color.b;
}

// The ground that the control gives to what stands on it.
std::size_t groundNumber(const Control& control) {
    switch (control.kind()) {
    case ControlKind::Panel:
        return number(static_cast<const ctl_Pannel&>(control).backcolor());
    case ControlKind::PictureBox:
        return number(static_cast<const PictureBox&>(control).backcolor());
    default:
        return 0;
    }
}

// What the form looks like, in one number. Pictures move all the time and are left out.
std::size_t lookOf(const Form& form) {
    std::size_t look = std::hash<const void*>{}(&form);
    const auto mix = [&look](std::size_t part) { look = look * 1099511628211U ^ part; };
    const std::hash<double> length;
    for (const Control* control : form.controls()) {
        mix(control->visible() ? 2 : 1);
        mix(control->enabled() ? 2 : 1);
        mix(std::hash<std::string>{}(control->text()));
        mix(number(control->textColor()));
        mix(groundNumber(*control));
        mix(length(control->font().size));
        if (control->kind() != ControlKind::PictureBox) {
            const Rect& place = control->place();
            mix(length(place.left));
            mix(length(place.top));
            mix(length(place.width));
            mix(length(place.height));
        }
    }
    return look;
}

} // namespace

// Some labels of the tutor repeat what the learner has typed, be it what it may; and one row of
// them shows what came out of the calculator, however large the number is.
bool LookWatch::repeatsInput(const Control& control) const {
    constexpr const char* kRepeating[] = {"lab_Calc(5)",  "lab_Calc(10)", "lab_LFVol(2)",
                                          "lab_LFVol(3)", "lab_LFVol(4)", "lab_LFVol(5)"};
    const std::string& text = control.text();
    if (control.name() == "lab_LFErg") {
        return NumberService().ParseVariant(text).has_value();
    }
    const bool may = control.name().starts_with("lab_") &&
                     std::find(std::begin(kRepeating), std::end(kRepeating), control.fullName()) !=
                         std::end(kRepeating);
    return may && std::any_of(typed_.begin(), typed_.end(), [&](const std::string& typed) {
               return text.find(typed) != std::string::npos;
           });
}

void LookWatch::remember() {
    constexpr std::size_t kLong = 6; // characters; the numbers that are asked for are shorter
    for (const Control* control : form_->controls()) {
        const std::string& text = control->text();
        if (control->kind() == ControlKind::TermInput && text.size() > 1 &&
            (text.size() > kLong || !NumberService().ParseVariant(text))) {
            typed_.insert(text);
        }
    }
}

std::optional<Finding> LookWatch::checkText(const Control& control) const {
    if (!isWellFormed(control.text())) {
        return textFinding(control, "is no UTF-8");
    }
    if (!showsText(control)) {
        return std::nullopt;
    }
    const bool own = repeatsInput(control);
    if (!own && showsNoNumber(control.text())) {
        return textFinding(control, "is no number");
    }
    if (control.font().size < kLeastLetters && !control.form().scalesItself()) {
        return textFinding(control, "has letters that are too small");
    }
    if (contrast(control.textColor(), groundOf(control)) < kLeastContrast) {
        return Finding{
            fullName(control) + ": the text has the colour of its ground",
            {expectOther(fullName(control) + ".textcolor", colorText(control.textColor()))}};
    }
    return own || fits(control) ? std::nullopt : std::optional(textFinding(control, "has no room"));
}

std::optional<Finding> LookWatch::checkControl(const Control& control) const {
    if (!control.shownThroughContainers() || control.kind() == ControlKind::Executor) {
        return std::nullopt;
    }
    const bool use = isForUse(control) && control.enabledThroughContainers();
    if ((use || showsText(control)) && !liesInside(control)) {
        return placeFinding(control, "lies outside its form");
    }
    if (use && isCovered(control)) {
        return placeFinding(control, "is covered");
    }
    return checkText(control);
}

std::optional<Finding> LookWatch::check(const Form& form) {
    if (form_ != &form) {
        forget(form);
        form_ = &form;
    }
    const std::size_t look = lookOf(form);
    if (look == look_) {
        return std::nullopt;
    }
    look_ = look;
    remember();
    for (const Control* control : form.controls()) {
        if (auto finding = checkControl(*control)) {
            return finding;
        }
    }
    return std::nullopt;
}

void LookWatch::forget(const Form& form) {
    if (form_ == &form) {
        form_ = nullptr;
    }
}

} // namespace quendal
