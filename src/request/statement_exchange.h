#pragma once

#include <cstdint>
#include <string_view>

#include "client/client_object.h"
#include "services/direction.h"

namespace request {

// What was being done, for the message about an exchange that failed: indexes of the texts that say so.
enum Context : std::uint32_t {
    NoContext = 0,
    SendingTextRecord = zhst::text::SendingTextRecord.index,
    SendingRequest = zhst::text::SendingRequest.index,
    ListingCatalog = zhst::text::ListingCatalogue.index,
    SendingRecord = zhst::text::SendingRecord.index,
    CountingRecords = zhst::text::CountingRecords.index,
};

// Sends a statement that stands at the start of the shared buffer: publishes it, exchanges it with the system
// designation into lastResult, touches the direction's list. The catalogue passes no dialog.
void sendStatement(ZXFRPCSCLIENT& client, std::string_view statement, services::Direction direction,
                   services::ProgressDialogHandle dialog);

// Judge a result, and lastResult. False too when the session was stopped under the exchange, as sessionStands tells it.
bool checkResult(ZXFRPCSCLIENT& client, Context context, const provider::TfResult& result);
bool checkLastResult(ZXFRPCSCLIENT& client, Context context);

// sendStatement with the progress dialog, then checkLastResult for a request.
bool exchangeStatement(ZXFRPCSCLIENT& client, std::string_view statement, services::Direction direction);

// Whether the session still has the request that was opened: a stop that comes in through a message pump takes it away,
// and what is sent then would go to a new session without it. False otherwise; LastReturnCode then says so, and the
// user of a transfer has been told, once, unless it was the session's end that stopped it.
bool sessionStands(ZXFRPCSCLIENT& client);

// The shared buffer for composing; null after the failure has been reported.
char* requestBuffer(ZXFRPCSCLIENT& client);

// Tells that a statement does not fit the shared buffer or the request text; always false.
bool refuseLongStatement(const ZXFRPCSCLIENT& client);

}  // namespace request
