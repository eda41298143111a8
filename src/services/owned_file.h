#pragma once

#include <utility>

#include "services/objects.h"

namespace services {

// Owner of an emulator file object. Null when none could be created.
class OwnedFile {
public:
    explicit OwnedFile(FileObject* file = nullptr) : file_(file) {}
    OwnedFile(OwnedFile&& other) noexcept : file_(std::exchange(other.file_, nullptr)) {}
    OwnedFile& operator=(OwnedFile&& other) noexcept {
        std::swap(file_, other.file_);
        return *this;
    }
    ~OwnedFile() {
        if (file_) file_->destroy();
    }

    FileObject* operator->() const { return file_; }
    FileObject& operator*() const { return *file_; }
    explicit operator bool() const { return file_ != nullptr; }

private:
    FileObject* file_;
};

}  // namespace services
