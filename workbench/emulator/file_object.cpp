#include "emulator/file_object.h"

#include <array>
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
    void* const* operations;
    PcFile file;
};

std::uint32_t liveObjects = 0;

PcFile& fileOf(void* object) { return static_cast<FileObject*>(object)->file; }

void ZHST_CALL destroy(void* object, std::uint32_t one) {
    Call("FileObject.destroy", one);
    delete static_cast<FileObject*>(object);
    if (liveObjects > 0) --liveObjects;
}

std::uint32_t ZHST_CALL openForReading(void* object) {
    const Call call("FileObject.openForReading");
    return call.result(fileOf(object).openForReading() ? 1u : 0u);
}

std::uint32_t ZHST_CALL openForWriting(void* object) {
    const Call call("FileObject.openForWriting");
    return call.result(fileOf(object).openForWriting() ? 1u : 0u);
}

std::int32_t ZHST_CALL read(void* object, void* buffer, std::uint32_t maximum) {
    const std::int32_t count = fileOf(object).read(buffer, maximum);
    const std::size_t filled = count > 0 ? static_cast<std::size_t>(count) : 0;
    return Call("FileObject.read", journalled::Bytes{buffer, filled}, maximum).result(count);
}

std::uint32_t ZHST_CALL write(void* object, const void* bytes, std::uint32_t length) {
    const Call call("FileObject.write", journalled::Bytes{bytes, length}, length);
    return call.result(fileOf(object).write(bytes, length) ? 1u : 0u);
}

void ZHST_CALL close(void* object) {
    const Call call("FileObject.close");
    fileOf(object).close();
}

std::uint32_t ZHST_CALL errorState(void* object) {
    const Call call("FileObject.errorState");
    return call.result(fileOf(object).errorState() ? 1u : 0u);
}

void ZHST_CALL setName(void* object, const char* name) {
    Call("FileObject.setName", name);
    fileOf(object).setName(name);
}

// Text and binary files are written alike: whoever writes text brings its line ends.
void ZHST_CALL setTypeFlag(void*, std::uint32_t flag) { Call("FileObject.setTypeFlag", flag); }
void ZHST_CALL setOpenFlags(void*, std::uint32_t flags) { Call("FileObject.setOpenFlags", flags); }
void ZHST_CALL setOption(void*, std::uint32_t option) { Call("FileObject.setOption", option); }

void ZHST_CALL setExistingFileAction(void* object, std::uint32_t action) {
    Call("FileObject.setExistingFileAction", action);
    fileOf(object).setExistingFileAction(action);
}

std::uint32_t ZHST_CALL size(void* object) { return Call("FileObject.size").result(fileOf(object).size()); }

void* ZHST_CALL readWhole(void* object) {
    void* block = fileOf(object).readWhole();
    Call("FileObject.readWhole").result(journalled::Address{block});
    return block;
}

void ZHST_CALL openedName(void* object, char* buffer) {
    constexpr std::size_t Capacity = 1025;
    const std::string& name = fileOf(object).name();
    const std::size_t length = std::min(name.size(), Capacity - 1);
    std::memcpy(buffer, name.data(), length);
    buffer[length] = 0;
    Call("FileObject.openedName", static_cast<const char*>(buffer));
}

void ZHST_CALL setPosition(void* object, std::uint32_t position, std::uint32_t origin) {
    Call("FileObject.setPosition", position, origin);
    fileOf(object).setPosition(position);
}

std::uint32_t ZHST_CALL position(void* object) { return Call("FileObject.position").result(fileOf(object).position()); }

void ZHST_CALL prepareNewFile(void* object, std::uint32_t zero) {
    Call("FileObject.prepareNewFile", zero);
    fileOf(object).offerNoAppend();
}

template <class Operation>
void* slot(Operation operation) {
    return reinterpret_cast<void*>(operation);
}

constexpr std::size_t SlotCount = ZhstFilePrepareNew + 1;

std::array<void*, SlotCount> makeSlots() {
    std::array<void*, SlotCount> slots{};
    slots[ZhstFileDestroy] = slot(&destroy);
    slots[ZhstFileOpenForReading] = slot(&openForReading);
    slots[ZhstFileOpenForWriting] = slot(&openForWriting);
    slots[ZhstFileRead] = slot(&read);
    slots[ZhstFileWrite] = slot(&write);
    slots[ZhstFileClose] = slot(&close);
    slots[ZhstFileErrorState] = slot(&errorState);
    slots[ZhstFileSetName] = slot(&setName);
    slots[ZhstFileSetTypeFlag] = slot(&setTypeFlag);
    slots[ZhstFileSetOpenFlags] = slot(&setOpenFlags);
    slots[ZhstFileSetExistingAction] = slot(&setExistingFileAction);
    slots[ZhstFileSetOption] = slot(&setOption);
    slots[ZhstFileSize] = slot(&size);
    slots[ZhstFileReadWhole] = slot(&readWhole);
    slots[ZhstFileOpenedName] = slot(&openedName);
    slots[ZhstFileSetPosition] = slot(&setPosition);
    slots[ZhstFilePosition] = slot(&position);
    slots[ZhstFilePrepareNew] = slot(&prepareNewFile);
    return slots;
}

ZhstFileObject* create(ZhstSession session) {
    static const std::array<void*, SlotCount> slots = makeSlots();
    if (faults().refuseFileObject) return nullptr;
    ++liveObjects;
    return reinterpret_cast<ZhstFileObject*>(new FileObject{slots.data(), PcFile(session)});
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
