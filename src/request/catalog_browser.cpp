#include "request/catalog_browser.h"

#include <algorithm>
#include <cstring>

#include "client/connection_check.h"
#include "messages/own_sentences.h"
#include "request/catalog_entry.h"
#include "request/demo_catalog.h"
#include "request/statement_exchange.h"
#include "request/statement_writer.h"
#include "text/double_byte.h"

namespace request {
namespace {

void endRequest(ZXFRPCSCLIENT& client) { client.tfSession->tfEndRequest(); }

// The entry of an answer that is no record; the request ends with it. At the end of the data the provider has ended it
// already.
std::uint32_t finishListing(ZXFRPCSCLIENT& client, HostCatalogEntry& entry) {
    const std::uint16_t code = client.lastResult.returnCode;
    if (code != TF_NO_MORE_DATA && code != TF_COMPLETED) checkLastResult(client, ListingCatalog);
    entry.status = code;
    // A first call that finds nothing shows what was looked for.
    if (client.browseFilter) {
        text::copyCut(client.browseFilter, entry.name, sizeof(entry.name));
        entry.description[0] = '\0';
    } else {
        entry.name[0] = '\0';
    }
    if (code == TF_NO_MORE_DATA) return CatalogEnd;
    endRequest(client);
    return code == TF_COMPLETED ? CatalogCompleted : CatalogFailure;
}

// The record's length is the provider's word; no more is taken than the buffer holds.
std::uint32_t fillHostCatalogEntry(ZXFRPCSCLIENT& client, HostCatalogEntry& entry) {
    if (client.lastResult.returnCode != TF_SUCCESS) return finishListing(client, entry);
    const char* buffer = client.tfSession->dataBuffer();
    if (!buffer) return CatalogFailure;
    if (entry.entryKind == CatalogFieldListing)
        formatColumnEntry(client, buffer, entry);
    else
        formatFileEntry(client, {buffer, std::min(client.lastResult.dataLength, provider::BufferSize)}, entry);
    entry.status = TF_SUCCESS;
    return CatalogEntryDelivered;
}

// A record shorter than its layout has zeros where it ends.
bool clearBuffer(ZXFRPCSCLIENT& client) {
    char* buffer = requestBuffer(client);
    if (buffer) std::memset(buffer, 0, provider::BufferSize);
    return buffer;
}

void fetchRecord(ZXFRPCSCLIENT& client) {
    provider::TransferFunctionSession& tf = *client.tfSession;
    tf.tfRequest(TF_GET_DATA, 0, 0, client.lastResult, tf.hostSystemDesignation(), 0);
}

// Sends the request of a listing; false after a failure, which has been reported. The user waits in the emulator's own
// list: no progress dialog is kept alive.
bool sendExtract(ZXFRPCSCLIENT& client, std::string_view filter, std::uint32_t entryKind) {
    char* buffer = requestBuffer(client);
    if (!buffer) return false;
    StatementWriter statement(buffer);
    statement.append(entryKind == CatalogFieldListing ? "EXTRACT COLUMNS" : "EXTRACT TABLES");
    if (!filter.empty()) statement.append({" ", filter});
    if (!statement.fits()) return refuseLongStatement(client);
    sendStatement(client, statement.text(), services::Direction::FromHost, 0);
    return true;
}

std::uint32_t listFirst(ZXFRPCSCLIENT& client, HostCatalogEntry& entry, const char* filter) {
    if (!client::checkConnection(client) || !client.tfStart() || !sendExtract(client, filter, entry.entryKind))
        return CatalogFailure;
    client.browseFilter = *filter ? filter : nullptr;
    // This provider says with the request that there is nothing to list.
    if (client.tfSession->tfIsAs400Mode() && client.lastResult.returnCode == TF_NO_MORE_DATA)
        return fillHostCatalogEntry(client, entry);
    const std::uint16_t answer = client.lastResult.returnCode;
    if (!checkLastResult(client, SendingRequest)) {
        if (answer != TF_NO_MORE_DATA) endRequest(client);
        return CatalogFailure;
    }
    if (!clearBuffer(client)) return CatalogFailure;
    if (answer != TF_COMPLETED) fetchRecord(client);
    return fillHostCatalogEntry(client, entry);
}

}  // namespace

// Turned away while a transfer runs or the provider works on a call: a listing would write over what stands in the
// shared buffer.
std::uint32_t getFirstHostFilename(ZXFRPCSCLIENT& client, const char* filter, HostCatalogEntry* entry) {
    if (!entry) return CatalogFailure;
    if (!filter) filter = "";
    // The lists of the demonstration need nothing that a transfer has in use.
    if (client.isDemonstration()) return firstDemoEntry(client, filter, *entry);
    if (client.isBusy()) return CatalogFailure;
    const std::uint32_t result = listFirst(client, *entry, filter);
    client.browseFilter = nullptr;
    return result;
}

std::uint32_t getNextHostFilename(ZXFRPCSCLIENT& client, HostCatalogEntry* entry) {
    if (!entry) return CatalogFailure;
    if (client.isDemonstration()) return nextDemoEntry(client, *entry);
    if (client.isBusy() || !client.tfStart() || !clearBuffer(client)) return CatalogFailure;
    fetchRecord(client);
    return fillHostCatalogEntry(client, *entry);
}

}  // namespace request
