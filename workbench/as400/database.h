#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// SQLite in the terms of this host. Failures are thrown as DatabaseError with SQLite's own text. A database and its
// statements are used by one thread at a time.
namespace as400 {

using Bytes = std::vector<std::uint8_t>;
// Texts and bytes stay where they stand: in a column, until its statement is stepped or reset, or in the caller's
// memory.
using Value = std::variant<std::monostate, std::int64_t, double, std::string_view, std::span<const std::uint8_t>>;

struct DatabaseError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class Database {
public:
    enum class Opening { Existing, Create };
    explicit Database(const std::string& path, Opening opening = Opening::Existing);

    sqlite3* handle() const { return handle_.get(); }
    void execute(const std::string& sql);
    bool hasTable(std::string_view name);

private:
    struct Closer {
        void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
    };
    std::unique_ptr<sqlite3, Closer> handle_;
};

class Statement {
public:
    // One statement only; text behind it is an error.
    Statement(Database& database, std::string_view sql);

    // Positions from 1. With SQLITE_STATIC texts and bytes are not copied and stay unchanged until the next bind.
    Statement& bind(int position, const Value& value, sqlite3_destructor_type lifetime = SQLITE_TRANSIENT);
    bool step();  // false after the last row
    void reset() { sqlite3_reset(handle_.get()); }

    int columnCount() const { return sqlite3_column_count(handle_.get()); }
    Value value(int column) const;
    std::string text(int column) const;  // empty for NULL
    std::int64_t integer(int column) const { return sqlite3_column_int64(handle_.get(), column); }
    sqlite3_stmt* handle() const { return handle_.get(); }

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* handle) const { sqlite3_finalize(handle); }
    };
    std::unique_ptr<sqlite3_stmt, Finalizer> handle_;
};

// Rolls back what happened since its construction unless it is committed.
class Transaction {
public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

private:
    Database& database_;
    bool open_ = true;
};

std::string quotedName(std::string_view name);

}  // namespace as400
