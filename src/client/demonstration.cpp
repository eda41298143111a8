#include "client/demonstration.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "Z7XFRPCS/settings.h"
#include "client/display_pages.h"
#include "client/progress.h"
#include "platform/own_module.h"
#include "platform/platform.h"
#include "services/text_display.h"

namespace client {
namespace {

namespace id = zhst::setting;
using services::Direction;
using services::ProgressCommand;

// String resources. 1 and 2, a heading and a rule, belong to the table as a text; the display has titles instead.
constexpr std::uint32_t FirstRowResource = 3;
constexpr std::uint32_t LastRowResource = 25;
constexpr std::uint32_t FirstTitleResource = 100;

// Display widths of the sample table's columns. A column starts where the one before it ends; a cell leaves the last
// position of its column free.
constexpr std::uint32_t columnWidths[] = {12, 15, 22, 21, 6, 7};
constexpr std::uint32_t ColumnCount = std::size(columnWidths);

constexpr std::uint32_t SimulatedRecords = 2340;
constexpr std::uint32_t SimulatedSteps = 5;
constexpr std::uint32_t StepMilliseconds = 500;
constexpr std::uint32_t NapMilliseconds = 10;  // the wait is to cost no processor time

struct ResourceText {
    explicit ResourceText(std::uint32_t resource) {
        platform::LoadStringA(platform::moduleHandle(), resource, text, sizeof(text));
    }
    char text[100] = {};
};

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

// The table takes the place of the progress dialog. Whether the display begins is not asked, unlike in a transfer.
void showTable(ZXFRPCSCLIENT& client, std::int32_t rowsPerPage) {
    DisplayPages pages(client, rowsPerPage, DisplayPages::Texts::LoadedAnew);
    pages.begin();
    progress::destroy(client);
    services::TextDisplayBegin(client.textDisplay, rowsPerPage, 0);
    addColumns(client);
    for (std::uint32_t resource = FirstRowResource; resource <= LastRowResource; ++resource) {
        addRow(client, resource);
        if (!pages.endRow()) return;
    }
    pages.end();
}

// The tick count wraps around; a difference of two does not.
void wait(std::uint32_t milliseconds) {
    const std::uint32_t start = platform::GetTickCount();
    while (platform::GetTickCount() - start < milliseconds) platform::Sleep(NapMilliseconds);
}

// The records of a receive are as made up as its table.
std::uint32_t totalOf(const ZXFRPCSCLIENT& client, Direction direction) {
    return direction == Direction::FromHost ? SimulatedRecords : client.fileObject->size();
}

// The steps are seen because each takes half a second; a cancel is seen at the end of the one in which it comes.
void simulateProgress(const ZXFRPCSCLIENT& client, Direction direction) {
    const settings::TransferSettings& settings = *client.transferSettings;
    progress::showFileType(client, direction == Direction::FromHost ? settings.receiveFileType : settings.sendFileType);
    const std::uint32_t total = totalOf(client, direction);
    progress::setTotal(client, direction, total);
    progress::command(client, ProgressCommand::DataBegins);
    for (std::uint32_t step = 1; step <= SimulatedSteps; ++step) {
        wait(StepMilliseconds);
        // Divided first, so that 1001 bytes end at 1000.
        services::SetSetting(client.settings, id::ProgressCount,
                             static_cast<std::int32_t>(total / SimulatedSteps * step));
        // The application's pump even while the dialog is on display, unlike pumpMessages.
        services::PumpMessages(client.appHandle, 1);
        if (client.cancelRequested) return progress::command(client, ProgressCommand::SimulationCancelled);
    }
    progress::command(client, ProgressCommand::Ended);
}

}  // namespace

void runDemonstration(ZXFRPCSCLIENT& client, Direction direction) {
    const std::int32_t rowsPerPage = services::GetSetting(client.settings, id::DisplayRowsPerPage);
    if (direction == Direction::FromHost && client.transferSettings->receiveOutput == zhst::value::ToDisplay) {
        if (client.textDisplay) showTable(client, rowsPerPage);
    } else if (client.progressDialog) {
        simulateProgress(client, direction);
    }
}

}  // namespace client
