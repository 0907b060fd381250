// Where the program's data lie.
#pragma once

#include <string>

namespace quendal {

class PathService {
  public:
    virtual ~PathService() = default;
    // The data folder, ending with a separator; it may not exist.
    virtual std::string DataPath() const = 0;
};

} // namespace quendal
