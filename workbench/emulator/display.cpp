#include "emulator/display.h"

#include <map>

#include "emulator/faults.h"
#include "emulator/journal.h"
#include "emulator/user_interface.h"
#include "host/text_display.h"

namespace emulator {
namespace {

struct Display {
    host::TextDisplayParameters parameters{};
    std::uint32_t rows = 0;
};

// The one created last is in front: the user's requests go to it.
std::map<host::TextDisplayHandle, Display> displays;
host::TextDisplayHandle lastHandle = 0;

Display* find(host::TextDisplayHandle handle) {
    const auto found = displays.find(handle);
    return found == displays.end() ? nullptr : &found->second;
}

void notify(host::DisplayNotification host::TextDisplayParameters::*notification) {
    if (displays.empty()) return;
    const host::TextDisplayParameters parameters = displays.rbegin()->second.parameters;
    if (parameters.*notification) (parameters.*notification)(parameters.context);
}

host::TextDisplayHandle create(const host::TextDisplayParameters* parameters) {
    if (!parameters || faults().refuseTextDisplay) return 0;
    displays.emplace(++lastHandle, Display{*parameters, 0});
    userInterface().displayCreated(parameters->title ? parameters->title : "");
    return lastHandle;
}

std::uint32_t begin(host::TextDisplayHandle handle, std::int32_t rowsPerPage) {
    if (!find(handle) || faults().refuseTextDisplayBegin) return 0;
    userInterface().displayBegin(rowsPerPage);
    return 1;
}

// Row handles are row numbers, from 1.
host::TextRowHandle addRow(host::TextDisplayHandle handle) {
    Display* display = find(handle);
    if (!display) return 0;
    userInterface().displayRow();
    return ++display->rows;
}

}  // namespace

void requestNextPage() { notify(&host::TextDisplayParameters::more); }
void closeDisplay() { notify(&host::TextDisplayParameters::close); }

std::uint32_t openTextDisplays() { return static_cast<std::uint32_t>(displays.size()); }

void resetDisplays() {
    displays.clear();
    lastHandle = 0;
}

}  // namespace emulator

using namespace emulator;
using journalled::Address;
using journalled::Call;

host::TextDisplayHandle ZHST_CALL zhstTextDisplayCreate(const host::TextDisplayParameters* parameters) {
    static const host::TextDisplayParameters none{};
    const host::TextDisplayParameters& shown = parameters ? *parameters : none;
    const Call call("TextDisplayCreate", shown.owner, shown.session, shown.title,
                    Address{reinterpret_cast<void*>(shown.more)}, shown.reserved,
                    Address{reinterpret_cast<void*>(shown.close)}, Address{shown.context});
    return call.result(create(parameters));
}

void ZHST_CALL zhstTextDisplayDestroy(host::TextDisplayHandle display) {
    const Call call("TextDisplayDestroy", display);
    if (displays.erase(display) > 0) userInterface().displayDestroyed();
}

std::uint32_t ZHST_CALL zhstTextDisplayBegin(host::TextDisplayHandle display, std::int32_t rowsPerPage,
                                             std::uint32_t reserved) {
    return Call("TextDisplayBegin", display, rowsPerPage, reserved).result(begin(display, rowsPerPage));
}

void ZHST_CALL zhstTextDisplayAddColumn(host::TextDisplayHandle display, std::uint32_t index, const char* title,
                                        std::uint32_t width, std::uint32_t alignment) {
    const Call call("TextDisplayAddColumn", display, index, title, width, alignment);
    if (find(display)) userInterface().displayColumn(index, title ? title : "", width, alignment);
}

host::TextRowHandle ZHST_CALL zhstTextDisplayAddRow(host::TextDisplayHandle display, std::uint32_t reserved) {
    return Call("TextDisplayAddRow", display, reserved).result(addRow(display));
}

void ZHST_CALL zhstTextDisplaySetCell(host::TextDisplayHandle display, const char* text, host::TextRowHandle row,
                                      std::uint32_t column) {
    const Call call("TextDisplaySetCell", display, text, row, column);
    if (find(display)) userInterface().displayCell(row, column, text ? text : "");
}

void ZHST_CALL zhstTextDisplaySetStatus(host::TextDisplayHandle display, const char* text) {
    const Call call("TextDisplaySetStatus", display, text);
    if (find(display)) userInterface().displayStatus(text ? text : "");
}

void ZHST_CALL zhstTextDisplayEnd(host::TextDisplayHandle display) {
    const Call call("TextDisplayEnd", display);
    if (find(display)) userInterface().displayEnd();
}
