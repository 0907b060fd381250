#include "script/script_words.h"

namespace quendal {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

class WordReader {
  public:
    explicit WordReader(std::string_view line) : rest_(line) {}

    // False at the end of the line and after a fault.
    bool next(std::string& word) {
        while (!rest_.empty() && isBlank(rest_.front())) {
            rest_.remove_prefix(1);
        }
        if (rest_.empty()) {
            return false;
        }
        word.clear();
        return rest_.front() == '"' ? quoted(word) : plain(word);
    }
    const std::string& fault() const { return fault_; }

  private:
    bool plain(std::string& word) {
        while (!rest_.empty() && !isBlank(rest_.front())) {
            word += take();
        }
        return true;
    }

    bool quoted(std::string& word) {
        take();
        while (!rest_.empty() && rest_.front() != '"') {
            const char c = take();
            if (c != '\\') {
                word += c;
            } else if (!escaped(word)) {
                return refuse("unknown sign behind a backslash");
            }
        }
        if (rest_.empty()) {
            return refuse("a quote isn't closed");
        }
        take();
        return rest_.empty() || isBlank(rest_.front()) || refuse("no blank behind a quote");
    }

    bool escaped(std::string& word) {
        if (rest_.empty()) {
            return false;
        }
        const char c = take();
        word += c == 'n' ? '\n' : c == 'r' ? '\r' : c;
        return c == 'n' || c == 'r' || c == '"' || c == '\\';
    }

    bool refuse(const char* why) {
        fault_ = why;
        return false;
    }

    char take() {
        const char c = rest_.front();
        rest_.remove_prefix(1);
        return c;
    }

    std::string_view rest_;
    std::string fault_;
};

} // namespace

std::optional<std::vector<std::string>> splitWords(std::string_view line, std::string& fault) {
    WordReader reader(line);
    std::vector<std::string> words;
    std::string word;
    while (reader.next(word)) {
        words.push_back(word);
    }
    fault = reader.fault();
    return fault.empty() ? std::optional(std::move(words)) : std::nullopt;
}

} // namespace quendal
