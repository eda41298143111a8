#pragma once

#include "Z7XFRPCS/objects.h"
#include "services/handles.h"

// The emulator's objects: the numbered slots of their tables under names and with types. None of the classes is ever
// constructed here; their pointers come from the functions at the end.
namespace services {

// The first word of every object.
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
    void destroy() { table_.call<void>(this, ZhstFileDestroy, std::uint32_t{1}); }
    // Both opens: false on failure, and then the object has told the user.
    bool openForReading() { return table_.call<std::uint32_t>(this, ZhstFileOpenForReading) != 0; }
    bool openForWriting() { return table_.call<std::uint32_t>(this, ZhstFileOpenForWriting) != 0; }
    // Bytes read; 0 or less at the end of the file.
    std::int32_t read(void* buffer, std::uint32_t maximum) {
        return table_.call<std::int32_t>(this, ZhstFileRead, buffer, maximum);
    }
    bool write(const void* bytes, std::uint32_t length) {
        return table_.call<std::uint32_t>(this, ZhstFileWrite, bytes, length) != 0;
    }
    void close() { table_.call<void>(this, ZhstFileClose); }
    // True after a failed operation; the object reports the error to the user.
    bool errorState() { return table_.call<std::uint32_t>(this, ZhstFileErrorState) != 0; }
    void setName(const char* name) { table_.call<void>(this, ZhstFileSetName, name); }
    void setTypeFlag(std::uint32_t flag) { table_.call<void>(this, ZhstFileSetTypeFlag, flag); }
    void setOpenFlags(std::uint32_t flags) { table_.call<void>(this, ZhstFileSetOpenFlags, flags); }
    void setExistingFileAction(std::uint32_t action) { table_.call<void>(this, ZhstFileSetExistingAction, action); }
    void setOption(std::uint32_t option) { table_.call<void>(this, ZhstFileSetOption, option); }
    std::uint32_t size() { return table_.call<std::uint32_t>(this, ZhstFileSize); }
    // The whole file in a block of size() bytes, which the caller frees with FreeObject; null on failure.
    void* readWhole() { return table_.call<void*>(this, ZhstFileReadWhole); }
    void openedName(char* buffer) { table_.call<void>(this, ZhstFileOpenedName, buffer); }  // of 1025 characters
    void setPosition(std::uint32_t position) {
        table_.call<void>(this, ZhstFileSetPosition, position, std::uint32_t{0});
    }
    std::uint32_t position() { return table_.call<std::uint32_t>(this, ZhstFilePosition); }
    void prepareNewFile() { table_.call<void>(this, ZhstFilePrepareNew, std::uint32_t{0}); }

private:
    SlotTable table_;
};

// Names and places of PC files. Owned by the session.
class PathServices {
public:
    bool fileExists(const char* name) {
        return table_.call<std::uint32_t>(this, ZhstPathFileExists, name, std::uint32_t{1}) != 0;
    }
    // The name without directory and extension. `buffer` has 261 characters, and room for the whole of a longer name.
    void baseName(const char* name, char* buffer) { table_.call<void>(this, ZhstPathBaseName, name, buffer); }
    // The directory with its trailing separator, empty when the name has none. `buffer` as above.
    void directoryPart(const char* name, char* buffer) { table_.call<void>(this, ZhstPathDirectoryPart, name, buffer); }
    void setCurrentDirectory(const char* path) { table_.call<void>(this, ZhstPathSetCurrentDirectory, path); }

private:
    SlotTable table_;
};

// Owned by the session.
class CodePageServices {
public:
    bool isDoubleByte(std::int32_t hostCodePage) {
        return table_.call<std::uint32_t>(this, ZhstCodePageIsDoubleByte, hostCodePage) != 0;
    }

private:
    SlotTable table_;
};

// The table is the first word of an object, and its entries are as wide as an address.
static_assert(sizeof(FileObject) == sizeof(void*) && sizeof(PathServices) == sizeof(void*) &&
              sizeof(CodePageServices) == sizeof(void*));

// The table of entry points that the session offers; an entry may be absent (null).
class SessionServices {
public:
    ZhstHostTextToPc hostTextToPc() const { return entry<ZhstHostTextToPc>(ZhstHostTextToPcEntry); }
    ZhstPcTextToHost pcTextToHost() const { return entry<ZhstPcTextToHost>(ZhstPcTextToHostEntry); }
    ZhstGetTransferClauses getTransferClauses() const {
        return entry<ZhstGetTransferClauses>(ZhstGetTransferClausesEntry);
    }

private:
    template <class Entry>
    Entry entry(int number) const {
        return reinterpret_cast<Entry>(table_.entries[number]);
    }

    ZhstSessionServices table_;
};

// All three may be null.
inline PathServices* GetPathServices(SessionHandle session) {
    return static_cast<PathServices*>(zhstGetSessionObject(session, ZhstPathServicesKind));
}
inline CodePageServices* GetCodePageServices(SessionHandle session) {
    return static_cast<CodePageServices*>(zhstGetSessionObject(session, ZhstCodePageServicesKind));
}
inline const SessionServices* GetSessionServices(SessionHandle session) {
    return reinterpret_cast<const SessionServices*>(zhstGetSessionServices(session));
}
// A new file object, or null.
inline FileObject* CreateFileObject(SessionHandle session) {
    return reinterpret_cast<FileObject*>(zhstCreateFileObject(session));
}

}  // namespace services
