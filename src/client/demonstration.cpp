#include "client/demonstration.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "Z7XFRPCS/settings.h"
#include "platform/own_module.h"
#include "platform/platform.h"
#include "services/text_display.h"
#include "settings/pc_file_types.h"

namespace client {
namespace {

namespace id = zhst::setting;
using services::ProgressCommand;

constexpr std::uint32_t FirstRowResource = 3;
constexpr std::uint32_t LastRowResource = 25;
constexpr std::uint32_t FirstTitleResource = 100;

// Display widths of the sample table's columns. A column starts where the one before it ends; a cell leaves the last
// position of its column free.
constexpr std::uint32_t columnWidths[] = {12, 15, 22, 21, 6, 7};
constexpr std::uint32_t ColumnCount = std::size(columnWidths);

constexpr std::uint32_t TextTable = 7;
// Texts of the status line, and the sizes of their buffers.
constexpr std::uint32_t NormalStatusText = 418;
constexpr std::uint32_t NormalStatusSize = 40;
constexpr std::uint32_t MoreText = 432;
constexpr std::uint32_t MoreSize = 80;

constexpr std::uint32_t SimulatedRecords = 2340;
constexpr std::uint32_t SimulatedSteps = 5;
constexpr std::uint32_t StepMilliseconds = 500;
constexpr std::uint32_t NapMilliseconds = 10;

struct ResourceText {
    explicit ResourceText(std::uint32_t resource) {
        platform::LoadStringA(platform::moduleHandle(), resource, text, sizeof(text));
    }
    char text[100] = {};
};

void setStatus(const ZXFRPCSCLIENT& client, std::uint32_t index, std::uint32_t size) {
    char text[std::max(NormalStatusSize, MoreSize)] = {};
    services::LoadMessageText(client.session, TextTable, index, text, size);
    services::TextDisplaySetStatus(client.textDisplay, text);
}

void addColumns(const ZXFRPCSCLIENT& client) {
    for (std::uint32_t column = 0; column < ColumnCount; ++column) {
        const ResourceText title(FirstTitleResource + column);
        services::TextDisplayAddColumn(client.textDisplay, column, title.text, columnWidths[column],
                                       services::AlignLeft);
    }
}

void addRow(const ZXFRPCSCLIENT& client, std::uint32_t resource) {
    const ResourceText line(resource);
    std::string_view rest = line.text;
    const services::TextRowHandle row = services::TextDisplayAddRow(client.textDisplay, 0);
    for (std::uint32_t column = 0; column < ColumnCount; ++column) {
        const bool last = column + 1 == ColumnCount;
        const std::string_view text = last ? rest : rest.substr(0, columnWidths[column] - 1);
        char cell[sizeof(line.text)] = {};
        std::copy(text.begin(), text.end(), cell);
        services::TextDisplaySetCell(client.textDisplay, cell, row, column);
        rest.remove_prefix(std::min<std::size_t>(columnWidths[column], rest.size()));
    }
}

void showTable(ZXFRPCSCLIENT& client, std::int32_t pageSize) {
    client.displayClosed = 0;
    client.moreRequested = 1;
    if (client.progressDialog) {
        services::ProgressDialogDestroy(client.progressDialog);
        client.progressDialog = 0;
    }
    services::TextDisplayBegin(client.textDisplay, pageSize, 0);
    addColumns(client);
    std::int32_t pageLine = 0;
    for (std::uint32_t resource = FirstRowResource; resource <= LastRowResource; ++resource) {
        addRow(client, resource);
        if (pageLine + 1 < pageSize) {
            ++pageLine;
        } else {
            pageLine = 0;
            client.moreRequested = 0;
            setStatus(client, MoreText, MoreSize);
        }
        while (!client.moreRequested && !client.displayClosed) client.pumpMessages();
        if (client.displayClosed) return;
        client.moreRequested = 1;
        setStatus(client, NormalStatusText, NormalStatusSize);
    }
    services::TextDisplayEnd(client.textDisplay);
    while (!client.displayClosed) client.pumpMessages();
}

void wait(std::uint32_t milliseconds) {
    const std::uint32_t start = platform::GetTickCount();
    while (platform::GetTickCount() - start < milliseconds) platform::Sleep(NapMilliseconds);
}

std::uint32_t setTotal(const ZXFRPCSCLIENT& client, bool fromHost) {
    const std::uint32_t size = client.fileObject && !fromHost ? client.fileObject->size() : 0;
    const std::uint32_t total = fromHost ? SimulatedRecords : size;
    services::SetSetting(client.settings, id::TransferDirection, fromHost ? services::FromHost : services::ToHost);
    services::ProgressDialogSetTotal(client.progressDialog, total, fromHost ? services::Records : services::Bytes);
    return total;
}

void simulateProgress(const ZXFRPCSCLIENT& client, bool fromHost) {
    const settings::TransferSettings& settings = *client.transferSettings;
    const auto* type = settings::pcFileType(fromHost ? settings.receiveFileType : settings.sendFileType);
    if (type)
        services::ProgressDialogCommand(client.progressDialog, static_cast<ProgressCommand>(type->progressCommand));
    const std::uint32_t total = setTotal(client, fromHost);
    services::ProgressDialogCommand(client.progressDialog, ProgressCommand::DataBegins);
    for (std::uint32_t step = 1; step <= SimulatedSteps; ++step) {
        wait(StepMilliseconds);
        services::SetSetting(client.settings, id::ProgressCount,
                             static_cast<std::int32_t>(total / SimulatedSteps * step));
        services::PumpMessages(client.appHandle, 1);
        if (client.cancelRequested) {
            services::ProgressDialogCommand(client.progressDialog, ProgressCommand::SimulationCancelled);
            return;
        }
    }
    services::ProgressDialogCommand(client.progressDialog, ProgressCommand::Ended);
}

}  // namespace

void runDemonstration(ZXFRPCSCLIENT& client, bool fromHost) {
    const std::int32_t pageSize = services::GetSetting(client.settings, id::DisplayRowsPerPage);
    if (fromHost && client.transferSettings->receiveOutput == zhst::value::ToDisplay) {
        if (client.textDisplay) showTable(client, pageSize);
    } else if (client.progressDialog) {
        simulateProgress(client, fromHost);
    }
}

}  // namespace client
