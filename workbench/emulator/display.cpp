#include "emulator/display.h"

#include <map>

#include "Z7XFRPCS/text_display.h"
#include "emulator/faults.h"
#include "emulator/journal.h"
#include "emulator/user_interface.h"

namespace emulator {
namespace {

struct Display {
    ZhstTextDisplayParameters parameters{};
    std::uint32_t rows = 0;
};

// The one created last is in front: the user's requests go to it.
std::map<ZhstTextDisplay, Display> displays;
ZhstTextDisplay lastHandle = 0;

Display* find(ZhstTextDisplay handle) {
    const auto found = displays.find(handle);
    return found == displays.end() ? nullptr : &found->second;
}

void notify(ZhstDisplayNotification ZhstTextDisplayParameters::*notification) {
    if (displays.empty()) return;
    const ZhstTextDisplayParameters parameters = displays.rbegin()->second.parameters;
    if (parameters.*notification) (parameters.*notification)(parameters.context);
}

ZhstTextDisplay create(const ZhstTextDisplayParameters* parameters) {
    if (!parameters || faults().refuseTextDisplay) return 0;
    displays.emplace(++lastHandle, Display{*parameters, 0});
    userInterface().displayCreated(parameters->title ? parameters->title : "");
    return lastHandle;
}

std::uint32_t begin(ZhstTextDisplay handle, std::int32_t rowsPerPage) {
    if (!find(handle) || faults().refuseTextDisplayBegin) return 0;
    userInterface().displayBegin(rowsPerPage);
    return 1;
}

// Row handles are row numbers, from 1.
ZhstTextRow addRow(ZhstTextDisplay handle) {
    Display* display = find(handle);
    if (!display) return 0;
    userInterface().displayRow();
    return ++display->rows;
}

}  // namespace

void requestNextPage() { notify(&ZhstTextDisplayParameters::more); }
void closeDisplay() { notify(&ZhstTextDisplayParameters::close); }

std::uint32_t openTextDisplays() { return static_cast<std::uint32_t>(displays.size()); }

void resetDisplays() {
    displays.clear();
    lastHandle = 0;
}

}  // namespace emulator

using namespace emulator;
using journalled::Address;
using journalled::Call;

ZhstTextDisplay ZHST_CALL zhstTextDisplayCreate(const ZhstTextDisplayParameters* parameters) {
    static const ZhstTextDisplayParameters none{};
    const ZhstTextDisplayParameters& shown = parameters ? *parameters : none;
    const Call call("TextDisplayCreate", shown.owner, shown.session, shown.title,
                    Address{reinterpret_cast<void*>(shown.more)}, shown.reserved,
                    Address{reinterpret_cast<void*>(shown.close)}, Address{shown.context});
    return call.result(create(parameters));
}

void ZHST_CALL zhstTextDisplayDestroy(ZhstTextDisplay display) {
    const Call call("TextDisplayDestroy", display);
    if (displays.erase(display) > 0) userInterface().displayDestroyed();
}

std::uint32_t ZHST_CALL zhstTextDisplayBegin(ZhstTextDisplay display, std::int32_t rowsPerPage,
                                             std::uint32_t reserved) {
    return Call("TextDisplayBegin", display, rowsPerPage, reserved).result(begin(display, rowsPerPage));
}

void ZHST_CALL zhstTextDisplayAddColumn(ZhstTextDisplay display, std::uint32_t index, const char* title,
                                        std::uint32_t width, std::uint32_t alignment) {
    const Call call("TextDisplayAddColumn", display, index, title, width, alignment);
    if (find(display)) userInterface().displayColumn(index, title ? title : "", width, alignment);
}

ZhstTextRow ZHST_CALL zhstTextDisplayAddRow(ZhstTextDisplay display, std::uint32_t reserved) {
    return Call("TextDisplayAddRow", display, reserved).result(addRow(display));
}

void ZHST_CALL zhstTextDisplaySetCell(ZhstTextDisplay display, const char* text, ZhstTextRow row,
                                      std::uint32_t column) {
    const Call call("TextDisplaySetCell", display, text, row, column);
    if (find(display)) userInterface().displayCell(row, column, text ? text : "");
}

void ZHST_CALL zhstTextDisplaySetStatus(ZhstTextDisplay display, const char* text) {
    const Call call("TextDisplaySetStatus", display, text);
    if (find(display)) userInterface().displayStatus(text ? text : "");
}

void ZHST_CALL zhstTextDisplayEnd(ZhstTextDisplay display) {
    const Call call("TextDisplayEnd", display);
    if (find(display)) userInterface().displayEnd();
}
