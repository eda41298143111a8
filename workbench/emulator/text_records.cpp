#include "emulator/text_records.h"

#include <cstdint>
#include <cstring>

#include "host/runtime.h"

namespace emulator {

std::string_view textOf(const host::TextRecord& record) { return record.text ? record.text : std::string_view(); }

bool storeText(host::TextRecord& record, std::string_view text) {
    if (record.capacity > 0) {
        if (!record.text || text.size() >= record.capacity) return false;
    } else {
        void* grown = host::ReallocateObject(record.text, static_cast<std::uint32_t>(text.size() + 1));
        if (!grown) return false;
        record.text = static_cast<char*>(grown);
    }
    if (!text.empty()) std::memcpy(record.text, text.data(), text.size());
    record.text[text.size()] = 0;
    return true;
}

}  // namespace emulator
