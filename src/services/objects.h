#pragma once

#include "Z7XFRPCS/objects.h"
#include "services/handles.h"

// The emulator's objects under the library's names. None of the classes is ever constructed here; their pointers come
// from the functions at the end.
namespace services {

// A file of the PC. Owned by whoever created it, who ends it with destroy().
class FileObject {
public:
    void destroy() { operations().destroy(&file_, 1); }
    // Both opens: false on failure, and then the object has told the user.
    bool openForReading() { return operations().openForReading(&file_) != 0; }
    bool openForWriting() { return operations().openForWriting(&file_) != 0; }
    // Bytes read; 0 or less at the end of the file.
    std::int32_t read(void* buffer, std::uint32_t maximum) { return operations().read(&file_, buffer, maximum); }
    bool write(const void* bytes, std::uint32_t length) { return operations().write(&file_, bytes, length) != 0; }
    void close() { operations().close(&file_); }
    // True after a failed operation; the object reports the error to the user.
    bool errorState() { return operations().errorState(&file_) != 0; }
    void setName(const char* name) { operations().setName(&file_, name); }
    void setTypeFlag(std::uint32_t flag) { operations().setTypeFlag(&file_, flag); }
    void setOpenFlags(std::uint32_t flags) { operations().setOpenFlags(&file_, flags); }
    void setExistingFileAction(std::uint32_t action) { operations().setExistingAction(&file_, action); }
    void setOption(std::uint32_t option) { operations().setOption(&file_, option); }
    std::uint32_t size() { return operations().size(&file_); }
    // The whole file in a block of size() bytes, which the caller frees with FreeObject; null on failure.
    void* readWhole() { return operations().readWhole(&file_); }
    void openedName(char* buffer) { operations().openedName(&file_, buffer); }  // of 1025 characters
    void setPosition(std::uint32_t position) { operations().setPosition(&file_, position, 0); }
    std::uint32_t position() { return operations().position(&file_); }
    void prepareNewFile() { operations().prepareNew(&file_, 0); }

private:
    const ZhstFileOperations& operations() const { return *file_.operations; }

    ZhstFileObject file_;
};

// Names and places of PC files. Owned by the session.
class PathServices {
public:
    bool fileExists(const char* name) { return operations().fileExists(&paths_, name, 1) != 0; }
    // The name without directory and extension. `buffer` has 261 characters, and room for the whole of a longer name.
    void baseName(const char* name, char* buffer) { operations().baseName(&paths_, name, buffer); }
    // The directory with its trailing separator, empty when the name has none. `buffer` as above.
    void directoryPart(const char* name, char* buffer) { operations().directoryPart(&paths_, name, buffer); }
    void setCurrentDirectory(const char* path) { operations().setCurrentDirectory(&paths_, path); }

private:
    const ZhstPathOperations& operations() const { return *paths_.operations; }

    ZhstPathServices paths_;
};

// Owned by the session.
class CodePageServices {
public:
    bool isDoubleByte(std::int32_t hostCodePage) {
        return codePages_.operations->isDoubleByte(&codePages_, hostCodePage) != 0;
    }

private:
    ZhstCodePageServices codePages_;
};

// The table of entry points that the session offers; an entry may be absent (null).
using SessionServices = ZhstSessionServices;

// All three may be null.
inline PathServices* GetPathServices(SessionHandle session) {
    return static_cast<PathServices*>(zhstGetSessionObject(session, ZhstPathServicesKind));
}
inline CodePageServices* GetCodePageServices(SessionHandle session) {
    return static_cast<CodePageServices*>(zhstGetSessionObject(session, ZhstCodePageServicesKind));
}
inline const SessionServices* GetSessionServices(SessionHandle session) { return zhstGetSessionServices(session); }
// A new file object, or null.
inline FileObject* CreateFileObject(SessionHandle session) {
    return reinterpret_cast<FileObject*>(zhstCreateFileObject(session));
}

}  // namespace services
