// The key and class name that every stored object carries.
#pragma once

#include <string>

namespace quendal {

class Stream;

// An object that can be written to and read from a stream, item by item.
class Storable {
  public:
    virtual ~Storable() = default;
    virtual void DATA_DataStore(Stream& stream) = 0;
    virtual void DATA_DataRead(Stream& stream) = 0;
};

class DataObject {
  public:
    // `typeName` is completed with a point and the text that CoreLib gives.
    explicit DataObject(const std::string& typeName);

    std::string Key;
    std::string ClassName;

    // Lets `object` read itself from an open stream, or write itself to it.
    void Read(Storable& object, Stream& stream) { object.DATA_DataRead(stream); }
    void Store(Storable& object, Stream& stream) { object.DATA_DataStore(stream); }
};

} // namespace quendal
