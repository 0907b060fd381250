// Texts on the stage.
#include "animations/frm_AppIntro.h"
#include "animations/stage_layout.h"
#include "host/roots.h"
#include "host/string_list.h"
#include "host/term_markup.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr double kDefaultSize = 20; // points
constexpr double kSmall = 0.9;      // of raised and lowered characters
constexpr const char* kMarks[] = {"|", "µ", "^"};

bool hasMarks(std::string_view text) {
    return std::any_of(std::begin(kMarks), std::end(kMarks),
                       [&](const char* mark) { return text.find(mark) != std::string_view::npos; });
}

// Where the text's box begins when it is to stand at `at`.
double column(Anchor anchor, double at, double width) {
    switch (anchor) {
    case Anchor::Centre:
    case Anchor::BelowCentre:
    case Anchor::AboveCentre:
        return at - width / 2;
    case Anchor::Right:
    case Anchor::BelowRight:
    case Anchor::AboveRight:
        return at - width;
    default:
        return at;
    }
}

double row(Anchor anchor, double at, double height) {
    if (anchor < Anchor::BelowLeft) {
        return at - height / 2;
    }
    return anchor < Anchor::AboveLeft ? at : at - height;
}

} // namespace

FontSpec frm_AppIntro::fontOf(double size) const {
    return {.family = "Arial", .size = points(hH(size))};
}

void frm_AppIntro::hPrint(double x, double y, const std::string& text, const PrintStyle& style) {
    if (style.rich || text.find("->") != std::string::npos) {
        printRich(x, y, text, style);
    } else if (text.find('\r') != std::string::npos) {
        printLines(x, y, text, style);
    } else {
        printPlain(x, y, text, style);
    }
}

// A size that nobody asked for isn't converted: that is meant.
void frm_AppIntro::printRich(double x, double y, const std::string& text, const PrintStyle& style) {
    LastText = {};
    if (text.empty()) {
        return;
    }
    RichText.setText(text);
    RichText.setFont(style.size < 0 ? FontSpec{.family = "Arial", .size = points(kDefaultSize)}
                                    : fontOf(style.size));
    RichText.setColor(style.color.value_or(palette(15)));
    const Size size = RichText.measure(pic_Stage.surface());
    LastText.Left = hX(x) - size.width / 2;
    LastText.Top = hY(y) - size.height / 2;
    LastText.Right = LastText.Left + size.width;
    LastText.Bottom = LastText.Top + size.height;
    LastText.text = text;
    LastText.painter = RichText;
    hTextRepeat();
}

void frm_AppIntro::hTextRepeat() {
    if (!LastText.text.empty()) {
        LastText.painter.paint(pic_Stage.surface(), {LastText.Left, LastText.Top});
    }
}

void frm_AppIntro::printLines(double x, double y, const std::string& text,
                              const PrintStyle& style) {
    std::string lines = text;
    std::erase(lines, '\n');
    StringList list;
    list.Split(lines, '\r');
    const FontSpec font = fontOf(style.size < 0 ? kDefaultSize : style.size);
    const double height =
        pic_Stage.surface().TextSize({}, font).height * kStage.height / inner().height;
    for (const std::string& line : list.items()) {
        hPrint(x, y, line, style);
        y += height;
    }
}

void frm_AppIntro::printPlain(double x, double y, const std::string& text,
                              const PrintStyle& style) {
    Surface& surface = pic_Stage.surface();
    const FontSpec font = fontOf(style.size < 0 ? kDefaultSize : style.size);
    const Size size = surface.TextSize(text, font);
    const Point place{column(style.anchor, hX(x), size.width),
                      row(style.anchor, hY(y), size.height)};
    foreColor_ = style.color.value_or(foreColor_);
    if (hasMarks(text)) {
        printMarked(place, text, font);
    } else {
        surface.Text(place, text, font, foreColor_);
    }
}

// Unlike in a term a mark holds up to the next one, blanks or not.
void frm_AppIntro::printMarked(Point place, std::string_view text, const FontSpec& base) {
    Surface& surface = pic_Stage.surface();
    const double baseLine = place.y;
    const double shift = surface.TextSize("A", base).height / 4;
    FontSpec font = base;
    while (!text.empty()) {
        const auto mark = std::find_if(std::begin(kMarks), std::end(kMarks),
                                       [&](std::string_view m) { return text.starts_with(m); });
        if (mark != std::end(kMarks)) {
            const std::string_view found = *mark;
            const double direction = found == "^" ? -1 : found == "µ" ? 1 : 0;
            place.y = baseLine + direction * shift;
            font.size = direction == 0 ? base.size : base.size * kSmall;
            text.remove_prefix(found.size());
            continue;
        }
        std::size_t end = text.size();
        for (const char* next : kMarks) {
            end = std::min(end, text.find(next));
        }
        surface.Text(place, text.substr(0, end), font, foreColor_);
        place.x += surface.TextSize(text.substr(0, end), font).width;
        text.remove_prefix(end);
    }
}

void frm_AppIntro::title(double x, const std::string& text, double size, Anchor anchor) {
    title_ = plainTerm(text);
    said_.clear();
    hPrint(x, 24, text, {.size = size, .color = palette(15), .anchor = anchor});
}

void frm_AppIntro::subtitle(const std::string& text, double size) {
    hPrint(400, 500, text, {.size = size, .anchor = Anchor::Centre, .rich = true});
}

void frm_AppIntro::hClearText() {
    footer_.clear();
    hBox(kFooter, kWhite, palette(7));
}

void frm_AppIntro::footer(const std::string& text) {
    hClearText();
    footer_ = text;
    hPrint(30, 560, text, {.size = 20, .color = kBlack});
}

void frm_AppIntro::clearStage() {
    pic_Stage.surface().Clear();
}

std::string frm_AppIntro::spokenStage() const {
    const std::string text = LastText.text.empty() ? said_ : plainRichText(LastText.text);
    return text.empty() ? title_ : title_ + " " + text;
}

} // namespace quendal
