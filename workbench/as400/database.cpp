#include "as400/database.h"

#include <stdexcept>

namespace as400 {

namespace {

[[noreturn]] void fail(sqlite3* handle) { throw DatabaseError(handle ? sqlite3_errmsg(handle) : "out of memory"); }

bool onlyBlanks(std::string_view text) { return text.find_first_not_of(" \t\r\n") == std::string_view::npos; }

}  // namespace

Database::Database(const std::string& path, Opening opening) {
    sqlite3* handle = nullptr;
    const int flags =
        SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (opening == Opening::Create ? SQLITE_OPEN_CREATE : 0);
    const int result = sqlite3_open_v2(path.c_str(), &handle, flags, nullptr);
    handle_.reset(handle);
    if (result != SQLITE_OK) fail(handle);
    sqlite3_busy_timeout(handle, 2000);
    // A misspelt column in double quotes is an error here, never a text.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    execute("PRAGMA case_sensitive_like = ON");
}

void Database::execute(const std::string& sql) {
    if (sqlite3_exec(handle(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) fail(handle());
}

bool Database::hasTable(std::string_view name) {
    Statement find(*this, "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?");
    return find.bind(1, std::string(name)).step();
}

Statement::Statement(Database& database, std::string_view sql) {
    sqlite3_stmt* handle = nullptr;
    const char* tail = nullptr;
    const int length = static_cast<int>(sql.size());
    if (sqlite3_prepare_v2(database.handle(), sql.data(), length, &handle, &tail) != SQLITE_OK) fail(database.handle());
    handle_.reset(handle);
    if (!handle) throw DatabaseError("empty statement");
    if (!onlyBlanks(sql.substr(static_cast<std::size_t>(tail - sql.data())))) {
        throw DatabaseError("more than one statement");
    }
}

Statement& Statement::bind(int position, const Value& value, sqlite3_destructor_type lifetime) {
    struct Binder {
        sqlite3_stmt* statement;
        int position;
        sqlite3_destructor_type lifetime;
        int operator()(std::monostate) const { return sqlite3_bind_null(statement, position); }
        int operator()(std::int64_t number) const { return sqlite3_bind_int64(statement, position, number); }
        int operator()(double number) const { return sqlite3_bind_double(statement, position, number); }
        // A null address would bind NULL, so what is empty needs one of its own.
        int operator()(std::string_view text) const {
            const char* address = text.empty() ? "" : text.data();
            return sqlite3_bind_text(statement, position, address, static_cast<int>(text.size()), lifetime);
        }
        int operator()(std::span<const std::uint8_t> bytes) const {
            const void* address = bytes.empty() ? static_cast<const void*>("") : bytes.data();
            return sqlite3_bind_blob(statement, position, address, static_cast<int>(bytes.size()), lifetime);
        }
    };
    if (std::visit(Binder{handle(), position, lifetime}, value) != SQLITE_OK) fail(sqlite3_db_handle(handle()));
    return *this;
}

bool Statement::step() {
    const int result = sqlite3_step(handle());
    if (result == SQLITE_ROW) return true;
    if (result != SQLITE_DONE) fail(sqlite3_db_handle(handle()));
    return false;
}

Value Statement::value(int column) const {
    switch (sqlite3_column_type(handle(), column)) {
        case SQLITE_INTEGER:
            return integer(column);
        case SQLITE_FLOAT:
            return sqlite3_column_double(handle(), column);
        case SQLITE_TEXT: {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle(), column));
            return std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(handle(), column)));
        }
        case SQLITE_BLOB: {
            const auto* bytes = static_cast<const std::uint8_t*>(sqlite3_column_blob(handle(), column));
            return std::span(bytes, static_cast<std::size_t>(sqlite3_column_bytes(handle(), column)));
        }
        default:
            return std::monostate{};
    }
}

std::string Statement::text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle(), column));
    if (!text) return {};
    return std::string(text, static_cast<std::size_t>(sqlite3_column_bytes(handle(), column)));
}

Transaction::Transaction(Database& database) : database_(database) { database_.execute("BEGIN IMMEDIATE"); }

Transaction::~Transaction() {
    if (open_) sqlite3_exec(database_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
    database_.execute("COMMIT");
    open_ = false;
}

std::string quotedName(std::string_view name) {
    std::string quoted = "\"";
    for (const char c : name) {
        quoted += c;
        if (c == '"') quoted += '"';
    }
    return quoted + '"';
}

}  // namespace as400
