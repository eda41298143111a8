#pragma once

#include <cstdint>
#include <new>
#include <utility>

#include "services/runtime.h"

namespace services {

// Owner of one object in the emulator's memory. Null after a failed allocation: every user asks.
template <class T>
class Owned {
public:
    Owned() = default;
    Owned(Owned&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Owned& operator=(Owned&& other) noexcept {
        if (this != &other) {
            reset();
            object_ = std::exchange(other.object_, nullptr);
        }
        return *this;
    }
    ~Owned() { reset(); }

    // Constructs a T in a zero-filled block.
    template <class... Arguments>
    static Owned make(Arguments&&... arguments) {
        void* block = AllocateObject(sizeof(T), 1);
        return Owned(block ? new (block) T(std::forward<Arguments>(arguments)...) : nullptr);
    }

    void reset() {
        if (T* object = std::exchange(object_, nullptr)) {
            object->~T();
            FreeObject(object);
        }
    }

    // Gives the object up to a caller that owns it from now on, and takes it back.
    T* release() { return std::exchange(object_, nullptr); }
    static Owned adopt(T* object) { return Owned(object); }

    T* get() const { return object_; }
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    explicit Owned(T* object) : object_(object) {}
    T* object_ = nullptr;
};

// Owner of a block of bytes in the emulator's memory.
class OwnedBytes {
public:
    OwnedBytes() = default;
    OwnedBytes(OwnedBytes&& other) noexcept
        : bytes_(std::exchange(other.bytes_, nullptr)), size_(std::exchange(other.size_, 0)) {}
    OwnedBytes& operator=(OwnedBytes&& other) noexcept {
        std::swap(bytes_, other.bytes_);
        std::swap(size_, other.size_);
        return *this;
    }
    ~OwnedBytes() { reset(); }

    // Null (size 0) when there is no memory.
    static OwnedBytes make(std::uint32_t size, bool zeroFill) {
        return adopt(AllocateObject(size, zeroFill ? 1 : 0), size);
    }
    // Takes over a block that somebody else made with AllocateObject.
    static OwnedBytes adopt(void* block, std::uint32_t size) {
        OwnedBytes owner;
        owner.bytes_ = static_cast<char*>(block);
        owner.size_ = block ? size : 0;
        return owner;
    }

    // At least `size` bytes, for an owner that keeps its block. False without memory for them; the block stays.
    bool ensure(std::uint32_t size) {
        if (size <= size_) return true;
        if (bytes_) return resize(size);
        *this = make(size, true);
        return bytes_ != nullptr;
    }

    // Keeps the contents; false leaves the block as it was.
    bool resize(std::uint32_t size) {
        void* moved = ReallocateObject(bytes_, size);
        if (!moved) return false;
        bytes_ = static_cast<char*>(moved);
        size_ = size;
        return true;
    }

    void reset() {
        if (bytes_) FreeObject(std::exchange(bytes_, nullptr));
        size_ = 0;
    }

    char* data() const { return bytes_; }
    std::uint32_t size() const { return size_; }
    explicit operator bool() const { return bytes_ != nullptr; }

private:
    char* bytes_ = nullptr;
    std::uint32_t size_ = 0;
};

}  // namespace services
