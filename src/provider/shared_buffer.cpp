#include "provider/shared_buffer.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/platform.h"

namespace provider {
namespace {

constexpr std::uint32_t MovableZeroNotBanked = 0x1042;

}  // namespace

bool SharedBuffer::allocate() {
    if (data_) return true;
    handle_ = platform::GlobalAlloc(MovableZeroNotBanked, BufferSize);
    if (handle_) data_ = static_cast<char*>(platform::GlobalLock(handle_));
    if (!data_) free();
    return data_ != nullptr;
}

void SharedBuffer::free() {
    if (!handle_) return;
    if (std::exchange(data_, nullptr)) platform::GlobalUnlock(handle_);
    platform::GlobalFree(std::exchange(handle_, nullptr));
}

// A length is the provider's word: behind data in the shared buffer it may only count to the buffer's end, and data in
// the provider's own memory are taken to be no longer than what travels in one exchange.
std::string_view SharedBuffer::returned(const TfResult& result) const {
    if (!result.data) return {};
    const auto* data = static_cast<const char*>(result.data);
    std::uint32_t room = BufferSize;
    if (holds(data)) room = static_cast<std::uint32_t>(data_ + BufferSize - data);
    return {data, std::min(result.dataLength, room)};
}

// What begins in front of this buffer may reach into it.
void SharedBuffer::take(const TfResult& result) {
    const std::string_view bytes = returned(result);
    if (data_ && !bytes.empty() && !holds(bytes.data())) std::memmove(data_, bytes.data(), bytes.size());
}

}  // namespace provider
