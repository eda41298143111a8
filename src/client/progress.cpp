#include "client/progress.h"

#include "Z7XFRPCS/settings.h"
#include "settings/pc_file_types.h"

namespace client::progress {
namespace {

enum Mode : std::uint32_t { NoDisplay = 0, AmountKnown = 1, AmountUnknown = 2 };

// The bytes of a PC file are always known, the records of a query only when they are counted first.
Mode modeOf(const ZXFRPCSCLIENT& client, services::Direction direction) {
    if (!client.showProgress) return NoDisplay;
    const bool known = direction == services::Direction::ToHost || client.transferSettings->recordProgress == 1;
    return known ? AmountKnown : AmountUnknown;
}

}  // namespace

// A dialog that displays nothing is created all the same: it processes messages and takes the phases of the transfer.
bool create(ZXFRPCSCLIENT& client, services::Direction direction) {
    client.progressDialog = services::ProgressDialogCreate(client.session, static_cast<std::uint32_t>(direction),
                                                           modeOf(client, direction), 0);
    if (client.progressDialog && client.showProgress) {
        services::ProgressDialogSetPcName(client.progressDialog, client.pcFileName);
        services::ProgressDialogSetHostName(client.progressDialog, client.hostFileName);
    }
    return client.progressDialog != 0;
}

void destroy(ZXFRPCSCLIENT& client) {
    if (!client.progressDialog) return;
    services::ProgressDialogDestroy(client.progressDialog);
    client.progressDialog = 0;
}

void command(const ZXFRPCSCLIENT& client, services::ProgressCommand code) {
    services::ProgressDialogCommand(client.progressDialog, code);
}

bool showFileType(const ZXFRPCSCLIENT& client, std::int32_t pcFileType) {
    const settings::PcFileTypeRow* type = settings::pcFileType(pcFileType);
    if (type) command(client, static_cast<services::ProgressCommand>(type->progressCommand));
    return type != nullptr;
}

void setTotal(const ZXFRPCSCLIENT& client, services::Direction direction, std::uint32_t total) {
    const bool fromHost = direction == services::Direction::FromHost;
    services::SetSetting(client.settings, zhst::setting::TransferDirection, static_cast<std::int32_t>(direction));
    services::ProgressDialogSetTotal(client.progressDialog, total, fromHost ? services::Records : services::Bytes);
}

}  // namespace client::progress
