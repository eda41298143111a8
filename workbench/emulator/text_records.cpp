#include "emulator/text_records.h"

#include <cstdint>
#include <cstring>

#include "Z7XFRPCS/runtime.h"

namespace emulator {

std::string_view textOf(const ZhstTextRecord& record) { return record.text ? record.text : std::string_view(); }

bool storeText(ZhstTextRecord& record, std::string_view text) {
    if (record.capacity > 0) {
        if (!record.text || text.size() >= record.capacity) return false;
    } else {
        void* grown = zhstReallocateObject(record.text, static_cast<std::uint32_t>(text.size() + 1));
        if (!grown) return false;
        record.text = static_cast<char*>(grown);
    }
    if (!text.empty()) std::memcpy(record.text, text.data(), text.size());
    record.text[text.size()] = 0;
    return true;
}

}  // namespace emulator
