// Controls of one name, addressed by Index. The Index values are part of a form's design.
#pragma once

#include <cassert>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace quendal {

class Form;

template <class T>
class ControlArray {
  public:
    ControlArray(Form& form, std::string name, const std::vector<int>& indices)
        : form_(form), name_(std::move(name)) {
        for (const int index : indices) {
            load(index);
        }
    }
    // All Index values from `first` to `last`.
    ControlArray(Form& form, std::string name, int first, int last)
        : form_(form), name_(std::move(name)) {
        for (int index = first; index <= last; ++index) {
            load(index);
        }
    }

    // The member; an Index that was never made is a fault of the program.
    T& operator()(int index) {
        assert(has(index));
        return *members_.find(index)->second;
    }
    const T& operator()(int index) const {
        assert(has(index));
        return *members_.find(index)->second;
    }
    bool has(int index) const { return members_.contains(index); }
    int count() const { return static_cast<int>(members_.size()); }
    int last() const { return members_.empty() ? -1 : members_.rbegin()->first; }

    // Makes a member, if it isn't there yet.
    T& load(int index) {
        auto& member = members_[index];
        if (!member) {
            member = std::make_unique<T>(form_, name_, index);
        }
        return *member;
    }

    // Calls use(index, member) in ascending order of Index.
    template <class Use>
    void each(Use&& use) {
        for (auto& [index, member] : members_) {
            use(index, *member);
        }
    }

  private:
    Form& form_;
    std::string name_;
    std::map<int, std::unique_ptr<T>> members_;
};

} // namespace quendal
