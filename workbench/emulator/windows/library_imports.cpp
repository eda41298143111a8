#include "emulator/windows/library_imports.h"

#include <windows.h>

#include <cstdint>
#include <cstring>

namespace emulator {
namespace {

// The file of a loaded library, seen from its first byte.
class Image {
public:
    explicit Image(HMODULE module) : base_(reinterpret_cast<std::uint8_t*>(module)) {}

    template <class Part>
    Part* at(std::uint32_t offset) const {
        return reinterpret_cast<Part*>(base_ + offset);
    }
    // The descriptions of the libraries that this one imports from; the last one is empty.
    const IMAGE_IMPORT_DESCRIPTOR* imports() const {
        const auto* headers = at<IMAGE_NT_HEADERS>(static_cast<std::uint32_t>(at<IMAGE_DOS_HEADER>(0)->e_lfanew));
        return at<IMAGE_IMPORT_DESCRIPTOR>(
            headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
    }

private:
    std::uint8_t* base_;
};

// The address that calls of `function` go through, or null.
void** importedAddress(const Image& image, const char* function) {
    for (const auto* library = image.imports(); library->Name != 0; ++library) {
        const auto* name = image.at<IMAGE_THUNK_DATA>(library->OriginalFirstThunk);
        auto* address = image.at<void*>(library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++address) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) continue;
            const auto* import = image.at<IMAGE_IMPORT_BY_NAME>(name->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), function) == 0) return address;
        }
    }
    return nullptr;
}

void redirectIn(HMODULE module, const char* function, void* replacement) {
    void** address = module ? importedAddress(Image(module), function) : nullptr;
    DWORD protection = 0;
    if (!address || !VirtualProtect(address, sizeof *address, PAGE_READWRITE, &protection)) return;
    *address = replacement;
    VirtualProtect(address, sizeof *address, protection, &protection);
}

}  // namespace

void redirectImport(const char* function, void* replacement) {
    redirectIn(GetModuleHandleA("Z7XFRPCS.dll"), function, replacement);
    redirectIn(GetModuleHandleA(nullptr), function, replacement);
}

}  // namespace emulator
