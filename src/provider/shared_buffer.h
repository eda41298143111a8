#pragma once

#include <string_view>

#include "provider/tf_result.h"

namespace provider {

// The buffer of BufferSize bytes in which requests and records travel, both ways. It is global memory, since providers
// take it for such; it is made for a start, kept over the exchanges and freed by the stop.
class SharedBuffer {
public:
    SharedBuffer() = default;
    SharedBuffer(const SharedBuffer&) = delete;
    SharedBuffer& operator=(const SharedBuffer&) = delete;
    ~SharedBuffer() { free(); }

    // Keeps the one that is there. False when there is no memory, and then there is none.
    bool allocate();
    void free();

    // Null while there is none.
    char* data() const { return data_; }

    // The bytes that a result returned, as far as they can be trusted: none without an address, none behind the end of
    // this buffer, never more than BufferSize.
    std::string_view returned(const TfResult& result) const;

    // Puts what a result returned in memory of the provider's own where records are looked for: at the start of this
    // buffer, at most all of it.
    void take(const TfResult& result);

private:
    bool holds(const char* data) const { return data_ && data >= data_ && data < data_ + BufferSize; }

    void* handle_ = nullptr;
    char* data_ = nullptr;
};

}  // namespace provider
