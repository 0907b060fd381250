#include "host/term_markup.h"

#include <cstddef>

namespace quendal {

namespace {

// Deeper fractions than this stay text; they could no longer be read anyway.
constexpr int kMaxNesting = 16;

constexpr std::string_view kMicroSign = "\u00B5";
constexpr std::string_view kGreekMu = "\u03BC"; // what some keyboards write in its place

constexpr std::size_t kNone = std::string_view::npos;

// For each "(" where its ")" stands, kNone without one.
std::vector<std::size_t> matchParentheses(std::string_view text) {
    std::vector<std::size_t> matches(text.size(), kNone);
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '(') {
            open.push_back(i);
        } else if (text[i] == ')' && !open.empty()) {
            matches[open.back()] = i;
            open.pop_back();
        }
    }
    return matches;
}

class TermParser {
  public:
    explicit TermParser(std::string_view text) : text_(text), matches_(matchParentheses(text)) {}

    Term parse() { return parse(0, text_.size(), 0); }

  private:
    Term parse(std::size_t from, std::size_t to, int nesting) {
        Term term;
        while (from < to) {
            if (nesting < kMaxNesting && beginsFraction(from, to)) {
                from = addFraction(term, from, to, nesting);
            } else if (const std::size_t mark = markLength(from); mark > 0) {
                from = addShifted(term, from, mark, to);
            } else {
                from = addPlain(term, from);
            }
        }
        return term;
    }

    bool beginsFraction(std::size_t at, std::size_t to) const {
        if (text_[at] != '(' || matches_[at] == kNone) {
            return false;
        }
        const std::size_t denominator = matches_[at] + 2;
        return denominator < to && text_[denominator - 1] == '/' && text_[denominator] == '(';
    }

    std::size_t addFraction(Term& term, std::size_t at, std::size_t to, int nesting) {
        const std::size_t close = matches_[at];
        const std::size_t open = close + 2;
        const bool closed = matches_[open] != kNone;
        const std::size_t end = closed ? matches_[open] : to;
        auto fraction = std::make_shared<TermFraction>();
        fraction->numerator = parse(at + 1, close, nesting + 1);
        fraction->denominator = parse(open + 1, end, nesting + 1);
        term.emplace_back().fraction = std::move(fraction);
        return closed ? end + 1 : end;
    }

    std::size_t markLength(std::size_t at) const {
        if (text_[at] == '^') {
            return 1;
        }
        const std::string_view rest = text_.substr(at);
        return rest.starts_with(kMicroSign) || rest.starts_with(kGreekMu) ? 2 : 0;
    }

    // The blank behind the shifted text is shown, the "|" isn't. A mark in it takes over.
    std::size_t addShifted(Term& term, std::size_t at, std::size_t mark, std::size_t to) {
        const TermStyle style = mark == 1 ? TermStyle::Superscript : TermStyle::Subscript;
        std::size_t end = at + mark;
        while (end < to && text_[end] != ' ' && text_[end] != '|' && markLength(end) == 0) {
            append(term, style, text_[end++]);
        }
        return end < to && text_[end] == '|' ? end + 1 : end;
    }

    std::size_t addPlain(Term& term, std::size_t at) {
        if (text_[at] != '|') {
            append(term, TermStyle::Plain, text_[at]);
        }
        return at + 1;
    }

    static void append(Term& term, TermStyle style, char c) {
        if (term.empty() || term.back().style != style || term.back().fraction) {
            term.emplace_back().style = style;
        }
        term.back().text += c;
    }

    std::string_view text_;
    std::vector<std::size_t> matches_;
};

std::string plain(const Term& term) {
    std::string text;
    for (const TermPiece& piece : term) {
        if (piece.fraction) {
            text += plain(piece.fraction->numerator) + " / " + plain(piece.fraction->denominator);
        } else {
            text += piece.text;
        }
    }
    return text;
}

} // namespace

Term parseTerm(std::string_view markup) {
    return TermParser(markup).parse();
}

std::string plainTerm(std::string_view markup) {
    return plain(parseTerm(markup));
}

} // namespace quendal
