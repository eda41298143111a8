#include "Z7XFRPCS/objects.h"
#include "Z7XFRPCS/settings.h"
#include "codepages/codepages.h"
#include "emulator/conversion.h"
#include "emulator/journal.h"
#include "emulator/path_services.h"
#include "emulator/sessions.h"
#include "emulator/settings.h"
#include "emulator/text_records.h"

// The session services table and the session's objects.

namespace emulator {
namespace {

constexpr std::int32_t TextServicesPage = 43;

void ZHST_CALL getTransferClauses(ZhstSession handle, ZhstTextRecord* select, ZhstTextRecord* where,
                                  ZhstTextRecord* orderBy, ZhstTextRecord* groupBy, ZhstTextRecord* having,
                                  ZhstTextRecord* join) {
    using journalled::Address;
    journalled::Call("SessionServices.getTransferClauses", handle, Address{select}, Address{where}, Address{orderBy},
                     Address{groupBy}, Address{having}, Address{join});
    const Session* session = findSession(handle, SessionPart::Session);
    if (!session) return;
    const Clauses& clauses = session->clauses;
    const auto give = [](ZhstTextRecord* record, const std::string& text) {
        if (record) storeText(*record, text);
    };
    give(select, clauses.select);
    give(where, clauses.where);
    give(orderBy, clauses.orderBy);
    give(groupBy, clauses.groupBy);
    give(having, clauses.having);
    give(join, clauses.join);
}

std::uint32_t convertByTable(const std::array<std::uint8_t, 256>& table, const void* source, std::uint32_t length,
                             void* destination, std::uint32_t capacity) {
    const std::uint32_t count = std::min(length, capacity);
    const auto* from = static_cast<const std::uint8_t*>(source);
    auto* to = static_cast<std::uint8_t*>(destination);
    for (std::uint32_t i = 0; i < count; ++i) to[i] = table[from[i]];
    return count;
}

std::uint32_t toPc(Session* session, const void* source, std::uint32_t length, void* destination,
                   std::uint32_t capacity) {
    if (!session) return 0;
    if (settingNumber(*session, zhst::setting::HostCodePage) == TextServicesPage) {
        const std::string_view text(static_cast<const char*>(source), length);
        return conversionTables(*session) ? codepages::page43ToPc(text, static_cast<char*>(destination), capacity) : 0;
    }
    const ConversionTables* tables = conversionTables(*session);
    return tables ? convertByTable(tables->hostToPc, source, length, destination, capacity) : 0;
}

std::uint32_t toHost(Session* session, const void* source, std::uint32_t length, void* destination,
                     std::uint32_t capacity) {
    if (!session) return 0;
    if (settingNumber(*session, zhst::setting::HostCodePage) == TextServicesPage) {
        const std::string_view text(static_cast<const char*>(source), length);
        return conversionTables(*session) ? codepages::page43ToHost(text, static_cast<char*>(destination), capacity)
                                          : 0;
    }
    const ConversionTables* tables = conversionTables(*session);
    return tables ? convertByTable(tables->pcToHost, source, length, destination, capacity) : 0;
}

std::uint32_t ZHST_CALL hostTextToPc(ZhstTextServices services, const void* source, std::uint32_t length,
                                     void* destination, std::uint32_t capacity, std::uint32_t two) {
    const journalled::Call call("SessionServices.hostTextToPc", services, journalled::Bytes{source, length}, length,
                                journalled::Address{destination}, capacity, two);
    return call.result(toPc(findSession(services, SessionPart::TextServices), source, length, destination, capacity));
}

std::uint32_t ZHST_CALL pcTextToHost(ZhstTextServices services, const void* source, std::uint32_t length,
                                     void* destination, std::uint32_t capacity, std::uint32_t one, std::uint32_t two) {
    const journalled::Call call("SessionServices.pcTextToHost", services, journalled::Bytes{source, length}, length,
                                journalled::Address{destination}, capacity, one, two);
    return call.result(toHost(findSession(services, SessionPart::TextServices), source, length, destination, capacity));
}

const ZhstSessionServices* servicesOf(const Session* session) {
    static constexpr ZhstSessionServices absent = {};
    static constexpr ZhstSessionServices complete = [] {
        ZhstSessionServices table = {};
        table.hostTextToPc = hostTextToPc;
        table.pcTextToHost = pcTextToHost;
        table.getTransferClauses = getTransferClauses;
        return table;
    }();
    if (!session) return nullptr;
    return session->clauses.absent ? &absent : &complete;
}

void* objectOf(Session* session, std::uint32_t kind) {
    if (!session) return nullptr;
    session->pathServices.operations = &pathOperations;
    session->codePageServices.operations = &codePageOperations;
    if (kind == ZhstPathServicesKind) return &session->pathServices;
    if (kind == ZhstCodePageServicesKind) return &session->codePageServices;
    return nullptr;
}

}  // namespace
}  // namespace emulator

using namespace emulator;

const ZhstSessionServices* ZHST_CALL zhstGetSessionServices(ZhstSession session) {
    const auto* services = servicesOf(findSession(session, SessionPart::Session));
    journalled::Call("GetSessionServices", session).result(journalled::Address{services});
    return services;
}

void* ZHST_CALL zhstGetSessionObject(ZhstSession session, std::uint32_t kind) {
    void* object = objectOf(findSession(session, SessionPart::Session), kind);
    journalled::Call("GetSessionObject", session, kind).result(journalled::Address{object});
    return object;
}
