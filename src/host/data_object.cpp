#include "host/data_object.h"

#include "host/roots.h"

namespace quendal {

DataObject::DataObject(const std::string& typeName)
    : ClassName(typeName + "." + CoreLib().classSuffix) {}

} // namespace quendal
