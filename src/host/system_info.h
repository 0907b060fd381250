// Who sits at the machine.
#pragma once

#include <string>

namespace quendal {

class SystemInfo {
  public:
    struct User {
        std::string Name; // login name in UTF-8, never empty on a host that knows its user
    };
    virtual ~SystemInfo() = default;
    virtual User CurrentUser() const = 0;
};

} // namespace quendal
