// The term lines that the popup calculator offers.
#pragma once

#include <string>
#include <vector>

namespace quendal {

class CalcPresets {
  public:
    // Empties the list and sets how many lines it takes; lines beyond that are dropped.
    void Init(int capacity);
    // The label is always " "; the term is what the calculator takes into its display.
    void Add(const std::string& label, const std::string& term);
    // Ends the filling: what is added afterwards is dropped until the next Init.
    void Finish();
    void Clear() { lines_.clear(); }
    const std::vector<std::string>& lines() const { return lines_; }

  private:
    std::vector<std::string> lines_;
    int capacity_ = 0;
    bool open_ = false;
};

} // namespace quendal
