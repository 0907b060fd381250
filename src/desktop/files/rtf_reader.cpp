#include "desktop/files/rtf_reader.h"

#include "desktop/files/text_bytes.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quendal {

namespace {

using Kind = RtfToken::Kind;

// Groups that hold no text of the page. Those marked with \* need no row here.
constexpr std::string_view kSilentGroups[] = {
    "fonttbl", "stylesheet", "info",    "pict",    "header",  "headerl",   "headerr",
    "headerf", "footer",     "footerl", "footerr", "footerf", "footnote",  "object",
    "fldinst", "xe",         "tc",      "filetbl", "private", "nonshppict"};

struct CharacterWord {
    std::string_view word;
    char32_t character;
};

constexpr CharacterWord kCharacterWords[] = {
    {"line", '\n'},        {"tab", '\t'},       {"bullet", 0x2022},  {"emdash", 0x2014},
    {"endash", 0x2013},    {"lquote", 0x2018},  {"rquote", 0x2019},  {"ldblquote", 0x201C},
    {"rdblquote", 0x201D}, {"emspace", 0x2003}, {"enspace", 0x2002}, {"zwj", 0x200D},
    {"zwnj", 0x200C},      {"ltrmark", 0x200E}};

struct EdgeWord {
    std::string_view word;
    bool RtfEdges::*edge;
};

constexpr EdgeWord kEdgeWords[] = {{"clbrdrt", &RtfEdges::top},
                                   {"clbrdrb", &RtfEdges::bottom},
                                   {"clbrdrl", &RtfEdges::left},
                                   {"clbrdrr", &RtfEdges::right}};

struct LengthWord {
    std::string_view word;
    int RtfLayout::*length;
};

constexpr LengthWord kLengthWords[] = {{"li", &RtfLayout::left},
                                       {"ri", &RtfLayout::right},
                                       {"fi", &RtfLayout::first},
                                       {"sb", &RtfLayout::before},
                                       {"sa", &RtfLayout::after}};

struct AlignWord {
    std::string_view word;
    RtfAlign align;
};

constexpr AlignWord kAlignWords[] = {{"ql", RtfAlign::Left},
                                     {"qc", RtfAlign::Centre},
                                     {"qr", RtfAlign::Right},
                                     {"qj", RtfAlign::Justified}};

struct FlagWord {
    std::string_view word;
    bool RtfStyle::*flag;
};

constexpr FlagWord kFlagWords[] = {
    {"b", &RtfStyle::bold}, {"i", &RtfStyle::italic}, {"ul", &RtfStyle::underline}};

struct ScriptWord {
    std::string_view word;
    RtfScript script;
};

// \up0 and \dn0 go back to the line; see takeStyleWord.
constexpr ScriptWord kScriptWords[] = {{"super", RtfScript::Super},
                                       {"sub", RtfScript::Sub},
                                       {"nosupersub", RtfScript::Normal},
                                       {"up", RtfScript::Super},
                                       {"dn", RtfScript::Sub}};

template <class Row, std::size_t N>
const Row* find(const Row (&rows)[N], std::string_view word) {
    const Row* found = std::find_if(std::begin(rows), std::end(rows),
                                    [word](const Row& row) { return row.word == word; });
    return found == std::end(rows) ? nullptr : found;
}

// A sheet of paper is some 12,000 twips wide; lengths beyond it are no help text's.
int length(const RtfToken& token) {
    return std::clamp(token.number, -10000, 20000);
}

bool switchedOn(const RtfToken& token) {
    return !token.hasNumber || token.number != 0;
}

} // namespace

RtfDocument RtfReader::read() {
    for (;;) {
        const RtfToken token = tokens_.next();
        if (token.kind == Kind::End) {
            fault_ = "der Text bricht mittendrin ab";
            break;
        }
        if (!take(token)) {
            break;
        }
    }
    return {.blocks = builder_.finish(state().layout, state().style), .fault = fault_};
}

bool RtfReader::take(const RtfToken& token) {
    if (token.kind == Kind::GroupOpen || token.kind == Kind::GroupClose) {
        standInsLeft_ = 0;
        return token.kind == Kind::GroupOpen ? openGroup() : closeGroup();
    }
    const bool starred = std::exchange(starred_, false);
    if (starred && token.kind == Kind::Word) {
        state().target = Target::Nothing;
    }
    switch (token.kind) {
    case Kind::Word:
        takeWord(token);
        break;
    case Kind::Symbol:
        takeSymbol(token.text.front());
        break;
    case Kind::Byte:
        takeByte(static_cast<unsigned char>(token.number));
        break;
    default:
        takeText(token.text);
        break;
    }
    if (builder_.full()) {
        fault_ = "der Text ist zu lang";
    }
    return !builder_.full();
}

bool RtfReader::openGroup() {
    if (states_.size() > static_cast<std::size_t>(kRtfNesting)) {
        fault_ = "die Gruppen sind zu tief geschachtelt";
        return false;
    }
    states_.push_back(State(state()));
    return true;
}

// The group that began the text ends it; what follows is no part of it.
bool RtfReader::closeGroup() {
    const bool last = states_.size() <= 2;
    if (!last) {
        states_.pop_back();
    }
    return !last;
}

void RtfReader::takeWord(const RtfToken& token) {
    if (standInsLeft_ > 0) {
        --standInsLeft_;
        return;
    }
    if (token.text == "colortbl") {
        state().target = Target::Colours;
        return;
    }
    if (std::find(std::begin(kSilentGroups), std::end(kSilentGroups), token.text) !=
        std::end(kSilentGroups)) {
        state().target = Target::Nothing;
    }
    if (state().target == Target::Colours) {
        takeColourWord(token);
    } else if (state().target == Target::Text) {
        takeTextWord(token) || takeStyleWord(token) || takeLayoutWord(token) ||
            takeTableWord(token) || takeCellWord(token);
    }
}

bool RtfReader::takeTextWord(const RtfToken& token) {
    if (token.text == "par" || token.text == "sect" || token.text == "page") {
        builder_.endParagraph(state().layout, state().style, state().inTable);
    } else if (token.text == "u") {
        takeUnicode(token.number);
    } else if (token.text == "uc") {
        state().standIns = std::clamp(token.number, 0, 16);
    } else if (const CharacterWord* row = find(kCharacterWords, token.text)) {
        put(row->character);
    } else {
        return false;
    }
    return true;
}

bool RtfReader::takeStyleWord(const RtfToken& token) {
    RtfStyle& style = state().style;
    if (const FlagWord* row = find(kFlagWords, token.text)) {
        style.*(row->flag) = switchedOn(token);
    } else if (const ScriptWord* script = find(kScriptWords, token.text)) {
        style.script = switchedOn(token) ? script->script : RtfScript::Normal;
    } else if (token.text == "plain") {
        style = {};
    } else if (token.text == "ulnone") {
        style.underline = false;
    } else if (token.text == "fs") {
        style.points = std::clamp(token.number / 2.0, 4.0, 72.0);
    } else if (token.text == "cf") {
        style.color = colour(token.number);
    } else if (token.text == "cb" || token.text == "highlight" || token.text == "chcbpat") {
        style.ground = colour(token.number);
    } else {
        return false;
    }
    return true;
}

bool RtfReader::takeLayoutWord(const RtfToken& token) {
    State& now = state();
    if (const LengthWord* row = find(kLengthWords, token.text)) {
        now.layout.*(row->length) = length(token);
    } else if (const AlignWord* align = find(kAlignWords, token.text)) {
        now.layout.align = align->align;
    } else if (token.text == "pard") {
        now.layout = {};
        now.inTable = false;
    } else if (token.text == "tx" && now.layout.tabs.size() < 16) {
        now.layout.tabs.push_back(length(token));
    } else if (token.text == "brdrb") {
        now.layout.ruleBelow = true;
    } else {
        return false;
    }
    return true;
}

bool RtfReader::takeTableWord(const RtfToken& token) {
    if (token.text == "trowd") {
        builder_.beginRow();
        cellInWork_ = {};
    } else if (token.text == "trleft") {
        builder_.setRowLeft(length(token));
    } else if (token.text == "intbl") {
        state().inTable = true;
    } else if (token.text == "cell") {
        builder_.endCell(state().layout, state().style);
    } else if (token.text == "row") {
        builder_.endRow();
    } else {
        return false;
    }
    return true;
}

bool RtfReader::takeCellWord(const RtfToken& token) {
    if (const EdgeWord* row = find(kEdgeWords, token.text)) {
        edge_ = row->edge;
        cellInWork_.border.*edge_ = true;
    } else if ((token.text == "brdrnone" || token.text == "brdrnil") && edge_ != nullptr) {
        cellInWork_.border.*edge_ = false;
    } else if (token.text == "clcbpat") {
        cellInWork_.ground = colour(token.number);
    } else if (token.text == "clvertalc") {
        cellInWork_.centred = true;
    } else if (token.text == "clvmgf") {
        cellInWork_.startsJoined = true;
    } else if (token.text == "clvmrg") {
        cellInWork_.joinsAbove = true;
    } else if (token.text == "cellx") {
        cellInWork_.rightEdge = length(token);
        builder_.addCellLayout(std::exchange(cellInWork_, {}));
        edge_ = nullptr;
    } else {
        return false;
    }
    return true;
}

void RtfReader::takeColourWord(const RtfToken& token) {
    const auto channel = static_cast<std::uint8_t>(std::clamp(token.number, 0, 255));
    Color color = colourInWork_.value_or(kBlack);
    if (token.text == "red") {
        color.r = channel;
    } else if (token.text == "green") {
        color.g = channel;
    } else if (token.text == "blue") {
        color.b = channel;
    } else {
        return;
    }
    colourInWork_ = color;
}

// A row of the colour table without channels is the automatic colour.
void RtfReader::takeColourEnd() {
    if (colours_.size() < 256) {
        colours_.push_back(std::exchange(colourInWork_, std::nullopt));
    }
}

std::optional<Color> RtfReader::colour(int index) const {
    const bool known = index >= 0 && static_cast<std::size_t>(index) < colours_.size();
    return known ? colours_[static_cast<std::size_t>(index)] : std::nullopt;
}

void RtfReader::takeSymbol(char sign) {
    if (sign == '*') {
        starred_ = true;
        return;
    }
    if (standInsLeft_ > 0) {
        --standInsLeft_;
        return;
    }
    if (state().target != Target::Text) {
        return;
    }
    switch (sign) {
    case '~':
        return put(0xA0);
    case '_':
        return put(0x2011);
    case '-':
        return put(0xAD);
    case '\\':
    case '{':
    case '}':
        return put(static_cast<char32_t>(sign));
    case '\n':
    case '\r':
        return builder_.endParagraph(state().layout, state().style, state().inTable);
    default:
        return;
    }
}

void RtfReader::takeText(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size() && !builder_.full(); ++i) {
        takeByte(static_cast<unsigned char>(bytes[i]));
    }
}

void RtfReader::takeByte(unsigned char byte) {
    if (standInsLeft_ > 0) {
        --standInsLeft_;
    } else if (state().target == Target::Colours && byte == ';') {
        takeColourEnd();
    } else if (state().target == Target::Text && byte >= 0x20) {
        put(fromCp1252(byte));
    } else if (state().target == Target::Text && byte == '\t') {
        put('\t');
    }
}

// The parameter is a signed 16-bit unit of UTF-16; characters beyond come as two of them.
void RtfReader::takeUnicode(int number) {
    const char32_t unit = static_cast<char32_t>(number) & 0xFFFF;
    const char32_t high = std::exchange(highSurrogate_, 0);
    standInsLeft_ = state().standIns;
    if (unit >= 0xD800 && unit < 0xDC00) {
        highSurrogate_ = unit;
    } else if (unit >= 0xDC00 && unit < 0xE000 && high != 0) {
        put(0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00));
    } else if (unit >= 0x20) {
        put(unit);
    }
}

RtfDocument readRtf(std::string_view bytes) {
    if (bytes.size() > kRtfFileLimit) {
        return {.blocks = {}, .fault = "die Datei ist größer als 4 MB"};
    }
    if (bytes.substr(0, 5) != "{\\rtf") {
        return {.blocks = {}, .fault = "die Datei ist kein RTF-Text"};
    }
    return RtfReader(bytes).read();
}

} // namespace quendal
