#include "emulator/file_object.h"

#include <algorithm>
#include <cstring>

#include "Z7XFRPCS/objects.h"
#include "emulator/faults.h"
#include "emulator/journal.h"
#include "emulator/pc_file.h"

// The slots of the file object.

namespace emulator {
namespace {

using journalled::Call;

struct FileObject {
    ZhstFileObject head;
    PcFile file;
};

std::uint32_t liveObjects = 0;

FileObject* wholeOf(ZhstFileObject* object) { return reinterpret_cast<FileObject*>(object); }
PcFile& fileOf(ZhstFileObject* object) { return wholeOf(object)->file; }

void ZHST_CALL destroy(ZhstFileObject* object, std::uint32_t one) {
    Call("FileObject.destroy", one);
    delete wholeOf(object);
    if (liveObjects > 0) --liveObjects;
}

std::uint32_t ZHST_CALL openForReading(ZhstFileObject* object) {
    const Call call("FileObject.openForReading");
    return call.result(fileOf(object).openForReading() ? 1u : 0u);
}

std::uint32_t ZHST_CALL openForWriting(ZhstFileObject* object) {
    const Call call("FileObject.openForWriting");
    return call.result(fileOf(object).openForWriting() ? 1u : 0u);
}

std::int32_t ZHST_CALL read(ZhstFileObject* object, void* buffer, std::uint32_t maximum) {
    const std::int32_t count = fileOf(object).read(buffer, maximum);
    const std::size_t filled = count > 0 ? static_cast<std::size_t>(count) : 0;
    return Call("FileObject.read", journalled::Bytes{buffer, filled}, maximum).result(count);
}

std::uint32_t ZHST_CALL write(ZhstFileObject* object, const void* bytes, std::uint32_t length) {
    const Call call("FileObject.write", journalled::Bytes{bytes, length}, length);
    return call.result(fileOf(object).write(bytes, length) ? 1u : 0u);
}

void ZHST_CALL close(ZhstFileObject* object) {
    const Call call("FileObject.close");
    fileOf(object).close();
}

std::uint32_t ZHST_CALL errorState(ZhstFileObject* object) {
    const Call call("FileObject.errorState");
    return call.result(fileOf(object).errorState() ? 1u : 0u);
}

void ZHST_CALL setName(ZhstFileObject* object, const char* name) {
    Call("FileObject.setName", name);
    fileOf(object).setName(name);
}

// Text and binary files are written alike: whoever writes text brings its line ends.
void ZHST_CALL setTypeFlag(ZhstFileObject*, std::uint32_t flag) { Call("FileObject.setTypeFlag", flag); }
void ZHST_CALL setOpenFlags(ZhstFileObject* object, std::uint32_t flags) {
    Call("FileObject.setOpenFlags", flags);
    fileOf(object).setOpenFlags(flags);
}
void ZHST_CALL setOption(ZhstFileObject*, std::uint32_t option) { Call("FileObject.setOption", option); }

void ZHST_CALL setExistingFileAction(ZhstFileObject* object, std::uint32_t action) {
    Call("FileObject.setExistingFileAction", action);
    fileOf(object).setExistingFileAction(action);
}

std::uint32_t ZHST_CALL size(ZhstFileObject* object) { return Call("FileObject.size").result(fileOf(object).size()); }

void* ZHST_CALL readWhole(ZhstFileObject* object) {
    void* block = fileOf(object).readWhole();
    Call("FileObject.readWhole").result(journalled::Address{block});
    return block;
}

void ZHST_CALL openedName(ZhstFileObject* object, char* buffer) {
    constexpr std::size_t Capacity = 1025;
    const std::string& name = fileOf(object).name();
    const std::size_t length = std::min(name.size(), Capacity - 1);
    std::memcpy(buffer, name.data(), length);
    buffer[length] = 0;
    Call("FileObject.openedName", static_cast<const char*>(buffer));
}

void ZHST_CALL setPosition(ZhstFileObject* object, std::uint32_t position, std::uint32_t origin) {
    Call("FileObject.setPosition", position, origin);
    fileOf(object).setPosition(position);
}

std::uint32_t ZHST_CALL position(ZhstFileObject* object) {
    return Call("FileObject.position").result(fileOf(object).position());
}

void ZHST_CALL prepareNewFile(ZhstFileObject* object, std::uint32_t zero) {
    Call("FileObject.prepareNewFile", zero);
    fileOf(object).offerNoAppend();
}

constexpr ZhstFileOperations operations = [] {
    ZhstFileOperations table = {};
    table.destroy = destroy;
    table.openForReading = openForReading;
    table.openForWriting = openForWriting;
    table.read = read;
    table.write = write;
    table.close = close;
    table.errorState = errorState;
    table.setName = setName;
    table.setTypeFlag = setTypeFlag;
    table.setOpenFlags = setOpenFlags;
    table.setExistingAction = setExistingFileAction;
    table.setOption = setOption;
    table.size = size;
    table.readWhole = readWhole;
    table.openedName = openedName;
    table.setPosition = setPosition;
    table.position = position;
    table.prepareNew = prepareNewFile;
    return table;
}();

ZhstFileObject* create(ZhstSession session) {
    if (faults().refuseFileObject) return nullptr;
    ++liveObjects;
    return &(new FileObject{{&operations}, PcFile(session)})->head;
}

}  // namespace

std::uint32_t liveFileObjects() { return liveObjects; }
void resetFileObjects() { liveObjects = 0; }

}  // namespace emulator

ZhstFileObject* ZHST_CALL zhstCreateFileObject(ZhstSession session) {
    ZhstFileObject* object = emulator::create(session);
    emulator::journalled::Call("CreateFileObject", session).result(emulator::journalled::Address{object});
    return object;
}
