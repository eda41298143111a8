#pragma once

#include "host/types.h"

// The emulator's objects. The first word of each points to a table of operations; the slot numbers are the contract.
// An operation takes the object as its first argument. The wrappers below give the slots names and types; none of them
// is ever constructed here. Their pointers come from the functions at the end.
namespace host {

// An object of the emulator: its first word is the table.
class SlotTable {
public:
    template <class Result, class... Arguments>
    Result call(void* object, int slot, Arguments... arguments) const {
        using Operation = Result(ZHST_CALL*)(void*, Arguments...);
        return reinterpret_cast<Operation>(operations_[slot])(object, arguments...);
    }

private:
    void* const* operations_;
};

// A file of the PC. Owned by whoever created it, who ends it with destroy().
class FileObject {
public:
    void destroy() { table_.call<void>(this, 0, std::uint32_t{1}); }
    // Both opens: false on failure, and then the object has told the user.
    bool openForReading() { return table_.call<std::uint32_t>(this, 1) != 0; }
    bool openForWriting() { return table_.call<std::uint32_t>(this, 2) != 0; }
    // Bytes read; 0 or less at the end of the file.
    std::int32_t read(void* buffer, std::uint32_t maximum) {
        return table_.call<std::int32_t>(this, 3, buffer, maximum);
    }
    bool write(const void* bytes, std::uint32_t length) {
        return table_.call<std::uint32_t>(this, 4, bytes, length) != 0;
    }
    void close() { table_.call<void>(this, 5); }
    // True after a failed operation; the object reports the error to the user.
    bool errorState() { return table_.call<std::uint32_t>(this, 7) != 0; }
    void setName(const char* name) { table_.call<void>(this, 8, name); }
    void setTypeFlag(std::uint32_t flag) { table_.call<void>(this, 10, flag); }  // 1 = binary, 0 = text
    void setOpenFlags(std::uint32_t flags) { table_.call<void>(this, 11, flags); }
    void setExistingFileAction(std::uint32_t action) { table_.call<void>(this, 12, action); }
    void setOption(std::uint32_t option) { table_.call<void>(this, 14, option); }
    std::uint32_t size() { return table_.call<std::uint32_t>(this, 15); }
    // The whole file in a block of size() bytes, which the caller frees with FreeObject; null on failure.
    void* readWhole() { return table_.call<void*>(this, 16); }
    void openedName(char* buffer) { table_.call<void>(this, 17, buffer); }  // buffer of 1025 characters
    void setPosition(std::uint32_t position) { table_.call<void>(this, 23, position, std::uint32_t{0}); }
    std::uint32_t position() { return table_.call<std::uint32_t>(this, 24); }
    void prepareNewFile() { table_.call<void>(this, 25, std::uint32_t{0}); }

private:
    SlotTable table_;
};

// Names and places of PC files. Owned by the session.
class PathServices {
public:
    bool fileExists(const char* name) { return table_.call<std::uint32_t>(this, 1, name, std::uint32_t{1}) != 0; }
    // The name without directory and extension. `buffer` has 261 characters, and room for the whole of a longer name.
    void baseName(const char* name, char* buffer) { table_.call<void>(this, 10, name, buffer); }
    // The directory with its trailing separator, empty when the name has none. `buffer` as above.
    void directoryPart(const char* name, char* buffer) { table_.call<void>(this, 11, name, buffer); }
    void setCurrentDirectory(const char* path) { table_.call<void>(this, 13, path); }

private:
    SlotTable table_;
};

// Owned by the session.
class CodePageServices {
public:
    bool isDoubleByte(std::int32_t hostCodePage) { return table_.call<std::uint32_t>(this, 6, hostCodePage) != 0; }

private:
    SlotTable table_;
};

// The table is the first word of an object, and its entries are as wide as an address.
static_assert(sizeof(FileObject) == sizeof(void*) && sizeof(PathServices) == sizeof(void*) &&
              sizeof(CodePageServices) == sizeof(void*));

inline constexpr std::uint32_t PathServicesKind = 2;
inline constexpr std::uint32_t CodePageServicesKind = 7;

// A table of entry points owned by the emulator; an entry may be absent (null).
class SessionServices {
public:
    // Stores the user's clause text into each buffer that is not null: (session, select list, selection condition,
    // order by, group by, having, join condition).
    using GetTransferClauses = void(ZHST_CALL*)(SessionHandle, TextRecord*, TextRecord*, TextRecord*, TextRecord*,
                                                TextRecord*, TextRecord*);
    // (text services, source, source length, destination, destination capacity, 2): the converted length.
    using HostTextToPc = std::uint32_t(ZHST_CALL*)(TextServicesHandle, const void*, std::uint32_t, void*, std::uint32_t,
                                                   std::uint32_t);
    // (text services, source, source length, destination, destination length, 1, 2).
    using PcTextToHost = std::uint32_t(ZHST_CALL*)(TextServicesHandle, const void*, std::uint32_t, void*, std::uint32_t,
                                                   std::uint32_t, std::uint32_t);

    HostTextToPc hostTextToPc() const { return reinterpret_cast<HostTextToPc>(entries_[35]); }
    PcTextToHost pcTextToHost() const { return reinterpret_cast<PcTextToHost>(entries_[36]); }
    GetTransferClauses getTransferClauses() const { return reinterpret_cast<GetTransferClauses>(entries_[91]); }

private:
    void* entries_[92];
};
static_assert(sizeof(SessionServices) == 92 * sizeof(void*));

}  // namespace host

extern "C" {
void* ZHST_CALL zhstGetSessionObject(host::SessionHandle session, std::uint32_t kind);
const host::SessionServices* ZHST_CALL zhstGetSessionServices(host::SessionHandle session);
// A new file object, or null.
host::FileObject* ZHST_CALL zhstCreateFileObject(host::SessionHandle session);
}

namespace host {
inline constexpr auto& GetSessionServices = zhstGetSessionServices;
inline constexpr auto& GetSessionObject = zhstGetSessionObject;
inline constexpr auto& CreateFileObject = zhstCreateFileObject;
}  // namespace host
