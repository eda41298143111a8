#include "request/query_clauses.h"

#include "messages/own_sentences.h"
#include "request/file_qualifiers.h"
#include "request/statement_exchange.h"
#include "text/double_byte.h"

namespace request {
namespace {

// The user's clauses, trimmed where the request wants them so.
struct Clauses {
    text::TextBuffer selection, join, groupBy, having, orderBy;

    // All but the select list, which the snapshot has.
    void fetch(const ZXFRPCSCLIENT& client) {
        client.sessionServices->getTransferClauses(client.session, nullptr, selection.record(), orderBy.record(),
                                                   groupBy.record(), having.record(), join.record());
        for (text::TextBuffer* clause : {&selection, &groupBy, &having, &orderBy}) {
            clause->trimStart();
            clause->trimEnd();
        }
    }
};

// The join condition goes as it is, blanks and all. In front of it the blank of the file list goes, so that only a
// selection alone has two in front of its "where". What does not fit is
// left out append by append: a selection that is too long does not take the join with it.
void appendWhere(text::TextBuffer& request, const Clauses& clauses) {
    const std::string_view selection = clauses.selection.view();
    const std::string_view join = clauses.join.view();
    if (join.empty()) {
        if (!selection.empty()) request.append({" where ", selection});
        return;
    }
    request.trimEnd();
    request.append({" where ", join});
    if (!selection.empty()) request.append({" and (", selection, ")"});
}

void appendGrouping(text::TextBuffer& request, const Clauses& clauses) {
    if (!clauses.groupBy.isEmpty()) request.append({" group by ", clauses.groupBy.view()});
    if (!clauses.having.isEmpty()) request.append({" having ", clauses.having.view()});
    if (!clauses.orderBy.isEmpty()) request.append({" order by ", clauses.orderBy.view()});
}

}  // namespace

bool applyFileQualifiers(ZXFRPCSCLIENT& client, text::TextBuffer& text, std::uint32_t start) {
    if (!client.tfSession->tfIsAs400Mode()) return true;
    switch (replaceQualifiers(text, start, client.hostFileName)) {
        case Replacement::Replaced:
            return true;
        case Replacement::DoesNotFit:
            return refuseLongStatement(client);
        default:
            messages::show(client.dialogOwner(), zhst::message::OutOfMemory);
            return false;
    }
}

// Only what this call appends is searched for qualifiers: a name that an earlier call put in may look like one.
bool composeQueryClauses(ZXFRPCSCLIENT& client, bool stopAfterWhere, bool groupingOnly) {
    if (!client.requestText) {
        messages::show(client.dialogOwner(), zhst::message::OutOfMemory);
        return false;
    }
    // An entry that the session lacks is skipped, like every absent one: the request stays what it was.
    if (!client.sessionServices || !client.sessionServices->getTransferClauses) return true;
    text::TextBuffer& request = *client.requestText;
    Clauses clauses;
    clauses.fetch(client);
    const std::uint32_t start = groupingOnly ? request.length() : 0;
    if (!groupingOnly) {
        request.assign(" FROM ");
        request.append(client.hostFileName);
        request.append(" ");
        appendWhere(request, clauses);
    }
    if (groupingOnly || !stopAfterWhere) appendGrouping(request, clauses);
    return applyFileQualifiers(client, request, start);
}

}  // namespace request
