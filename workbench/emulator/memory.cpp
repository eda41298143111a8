#include "emulator/memory.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "Z7XFRPCS/runtime.h"
#include "emulator/emulator.h"
#include "emulator/faults.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer) && !defined(__SANITIZE_ADDRESS__)
#define __SANITIZE_ADDRESS__
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#define GUARD_BYTES 0
#else
#define GUARD_BYTES 4
#define ASAN_POISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#define ASAN_UNPOISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#endif

namespace emulator {
namespace {

// Stands in front of every block, so that the accounts are exact without a look-up. Under the address sanitizer it is
// poisoned: a write in front of a block is found.
struct alignas(16) BlockHeader {
    std::uint32_t size;
    std::uint32_t mark;
    std::uint64_t account;  // which reset() the block was made under
};

constexpr std::uint32_t Live = 0x4B4C4256;
constexpr std::uint32_t Freed = 0xDEADB10C;

Allocations account;
std::uint64_t accountNumber = 0;

constexpr char Spoilt = '\x5A';
// Stands behind every block, where the sanitizer does not watch.
constexpr char Guard[] = "\xFD\xFD\xFD\xFD";

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "emulator: %s\n", what);
    std::abort();
}

std::size_t wholeSize(std::uint32_t size) { return sizeof(BlockHeader) + std::size_t{size} + GUARD_BYTES; }

BlockHeader* openHeader(void* block) {
    BlockHeader* header = static_cast<BlockHeader*>(block) - 1;
    ASAN_UNPOISON_MEMORY_REGION(header, sizeof(BlockHeader));
    if (header->mark != Live) fail("a block was freed or resized that AllocateObject did not give, or twice");
    if (std::memcmp(static_cast<char*>(block) + header->size, Guard, GUARD_BYTES) != 0) fail("a block was overrun");
    return header;
}

void* enter(BlockHeader* header, std::uint32_t size) {
    *header = BlockHeader{size, Live, accountNumber};
    std::memcpy(reinterpret_cast<char*>(header + 1) + size, Guard, GUARD_BYTES);
    ++account.liveBlocks;
    account.liveBytes += size;
    account.peakBytes = std::max(account.peakBytes, account.liveBytes);
    ASAN_POISON_MEMORY_REGION(header, sizeof(BlockHeader));
    return header + 1;
}

void strike(const BlockHeader& header) {
    if (header.account != accountNumber) return;
    --account.liveBlocks;
    account.liveBytes -= header.size;
}

}  // namespace

Allocations allocations() { return account; }

void memory::reset() {
    account = {};
    ++accountNumber;
}

}  // namespace emulator

using namespace emulator;

void* ZHST_CALL zhstAllocateObject(std::uint32_t size, std::uint32_t zeroFill) {
    ++account.calls;
    if (!allocationAllowed()) return nullptr;
    const std::size_t whole = wholeSize(size);
    // The C library answers small blocks faster than zeroed ones; of large ones it knows which are zero already.
    constexpr std::size_t Large = 64 * 1024;
    void* raw = zeroFill == 1 && whole >= Large ? std::calloc(whole, 1) : std::malloc(whole);
    if (!raw) return nullptr;
    void* block = enter(static_cast<BlockHeader*>(raw), size);
    if (zeroFill != 1 && faults().giveNoMore) return std::memset(block, Spoilt, size);
    return zeroFill == 1 && whole < Large ? std::memset(block, 0, size) : block;
}

void ZHST_CALL zhstFreeObject(void* block) {
    if (!block) return;
    BlockHeader* header = openHeader(block);
    strike(*header);
    header->mark = Freed;
    std::free(header);
}

void* ZHST_CALL zhstReallocateObject(void* block, std::uint32_t newSize) {
    if (!block) return zhstAllocateObject(newSize, 0);
    ++account.calls;
    if (!allocationAllowed()) return nullptr;
    BlockHeader* header = openHeader(block);
    const BlockHeader before = *header;
    void* moved = std::realloc(header, wholeSize(newSize));
    if (!moved) {
        ASAN_POISON_MEMORY_REGION(header, sizeof(BlockHeader));
        return nullptr;
    }
    strike(before);
    return enter(static_cast<BlockHeader*>(moved), newSize);
}
