// Keyed access to a collection, which it reaches through the collection's DATABASE_ operations.
#pragma once

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <variant>

namespace quendal {

// A key (text) or an index from 1.
using KeyOrIndex = std::variant<int, std::string>;

template <class Item>
class DatabaseCallbacks {
  public:
    virtual ~DatabaseCallbacks() = default;
    virtual void DATABASE_DatabaseClear() = 0;
    virtual int DATABASE_DatabaseCount() const = 0;
    virtual void DATABASE_DatabaseImport(std::shared_ptr<Item> item,
                                         const std::optional<std::string>& key) = 0;
    virtual Item& DATABASE_DatabaseItem(int index) = 0;
    virtual void DATABASE_DatabaseRemove(int index) = 0;
    // Index of the first item with this key, 0 if not found.
    virtual int DATABASE_DatabaseSearch(const std::string& key) const = 0;
};

template <class Item>
class DatabaseObject {
  public:
    explicit DatabaseObject(DatabaseCallbacks<Item>& owner) : owner_(owner) {}

    int Count() const { return owner_.DATABASE_DatabaseCount(); }
    bool Exists(const KeyOrIndex& which) const { return inRange(indexOf(which)); }
    // Throws std::out_of_range for what isn't there: a fault of the caller, not of the learner.
    Item& ItemOf(const KeyOrIndex& which) { return owner_.DATABASE_DatabaseItem(checked(which)); }
    // False when there is no such item.
    bool Remove(const KeyOrIndex& which) {
        const int index = indexOf(which);
        if (!inRange(index)) {
            return false;
        }
        owner_.DATABASE_DatabaseRemove(index);
        return true;
    }

  private:
    int indexOf(const KeyOrIndex& which) const {
        if (const int* index = std::get_if<int>(&which)) {
            return *index;
        }
        return owner_.DATABASE_DatabaseSearch(std::get<std::string>(which));
    }
    bool inRange(int index) const { return index >= 1 && index <= Count(); }
    int checked(const KeyOrIndex& which) const {
        const int index = indexOf(which);
        if (!inRange(index)) {
            throw std::out_of_range("no such item in the collection");
        }
        return index;
    }

    DatabaseCallbacks<Item>& owner_;
};

} // namespace quendal
