#include "request/select_statement.h"

#include "Z7XFRPCS/settings.h"
#include "bytes/byte_order.h"
#include "messages/own_sentences.h"
#include "provider/transports.h"
#include "request/query_clauses.h"
#include "request/statement_exchange.h"
#include "request/statement_writer.h"
#include "text/double_byte.h"

namespace request {
namespace {

constexpr std::uint32_t CountBytes = 4;

// Of the clauses composed so far, which have no grouping parts yet: it is records that are counted, not groups.
bool composeCountStatement(ZXFRPCSCLIENT& client, std::string_view& statement) {
    char* buffer = requestBuffer(client);
    if (!buffer) return false;
    StatementWriter writer(buffer);
    writer.append("SELECT COUNT(*)");
    // Only what is sent has to fit.
    writer.append(text::trimmedEnd(client.requestText->view()));
    // By the router of the settings, not of the provider that is bound.
    if (services::GetSetting(client.settings, zhst::setting::RouterKind) == zhst::value::RouterAs400)
        writer.append(" FOR FETCH ONLY");
    statement = writer.text();
    return writer.fits() || refuseLongStatement(client);
}

void fetchCountRecord(ZXFRPCSCLIENT& client) {
    client.tfSession->tfRequest(TF_GET_DATA, 0, 0, client.lastResult, nullptr, client.progressDialog);
}

std::int32_t countIn(const ZXFRPCSCLIENT& client) {
    if (client.lastResult.dataLength < CountBytes) return CountUnknown;
    const std::int32_t count =
        static_cast<std::int32_t>(bytes::highFirstSigned(client.tfSession->dataBuffer(), CountBytes));
    return count < CountFailed ? CountUnknown : count;
}

// Providers that report the end of the count's single record have to be asked for it; the answer is not judged.
bool reportsEndOfCount(const provider::TransferFunctionSession& tf) {
    return provider::isOwnProviderTransport(tf.transportType()) || tf.tfIsAs400Mode();
}

}  // namespace

bool composeSelectStatement(ZXFRPCSCLIENT& client, std::string_view& statement) {
    char* buffer = requestBuffer(client);
    if (!buffer) return false;
    StatementWriter writer(buffer);
    writer.append("SELECT ");
    text::TextBuffer* selectList = client.transferSettings->selectList.get();
    if (selectList) {
        selectList->trimStart();
        selectList->trimEnd();
    }
    if (!selectList || selectList->isEmpty()) {
        writer.append("* ");  // with the blank of " FROM" there are two
    } else {
        if (!applyFileQualifiers(client, *selectList, 0)) return false;
        writer.append(selectList->view());
    }
    writer.append(client.requestText->view());
    statement = writer.text();
    return writer.fits() || refuseLongStatement(client);
}

std::int32_t queryRecordCount(ZXFRPCSCLIENT& client) {
    std::string_view statement;
    if (!composeCountStatement(client, statement)) return CountFailed;
    sendStatement(client, statement, services::Direction::FromHost, client.progressDialog);
    if (!checkLastResult(client, CountingRecords)) return CountFailed;
    fetchCountRecord(client);
    if (!checkLastResult(client, CountingRecords)) return CountFailed;
    provider::TransferFunctionSession& tf = *client.tfSession;
    const std::int32_t count = countIn(client);
    if (reportsEndOfCount(tf)) fetchCountRecord(client);
    if (!sessionStands(client)) return CountFailed;
    if (tf.tfIsAs400Mode()) tf.tfEndRequest();
    return count;
}

}  // namespace request
