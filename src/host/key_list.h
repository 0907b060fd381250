// List of texts with keys, counted from 1. A FileList is a KeyList of full file names.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendal {

class KeyList {
  public:
    void Add(std::string key, std::string item);
    int Count() const { return static_cast<int>(entries_.size()); }
    // Index from 1; outside 1 to Count the text is empty.
    const std::string& Item(int index) const;
    bool Exists(int index) const { return index >= 1 && index <= Count(); }
    bool Exists(std::string_view key) const;
    // Removes the first item with this key; false when there is none.
    bool Remove(std::string_view key);
    void Clear() { entries_.clear(); }
    // -1 sorts ascending by item, in the order of the bytes.
    void Sort(int order);

  private:
    struct Entry {
        std::string key;
        std::string item;
    };
    std::vector<Entry> entries_;
};

using FileList = KeyList;

} // namespace quendal
