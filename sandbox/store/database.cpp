// SPDX-License-Identifier: MIT
#include "store/database.h"

#include <algorithm>
#include <new>
#include <sqlite3.h>
#include <thread>

namespace sandbox {
namespace {

constexpr std::chrono::microseconds kShortestNap(200);
constexpr std::chrono::microseconds kNapGrowth(100); // with each attempt, fifty times

// An unchanging file needs neither locks nor a log beside it.
std::string unchangingUri(const std::string &file) {
    std::string uri = "file:";
    for (const char c : file) {
        const bool special = c == '%' || c == '?' || c == '#';
        uri += special ? "%" : "";
        uri += special ? (c == '%' ? "25" : c == '?' ? "3f" : "23") : std::string(1, c);
    }
    return uri + "?immutable=1";
}

} // namespace

bool DatabaseError::busy() const {
    return code_ == SQLITE_BUSY || code_ == SQLITE_LOCKED;
}

bool DatabaseError::noMemory() const {
    return code_ == SQLITE_NOMEM;
}

bool DatabaseError::conflict() const {
    return code_ == SQLITE_CONSTRAINT;
}

Database::Database(const std::string &file, Open how, std::chrono::milliseconds patience)
    : file_(file), writable_(how == Open::Existing || how == Open::New), patience_(patience) {
    const int flags = SQLITE_OPEN_NOMUTEX | (writable_ ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY) |
                      (how == Open::New ? SQLITE_OPEN_CREATE : 0) | (how == Open::Unchanging ? SQLITE_OPEN_URI : 0);
    const std::string name = how == Open::Unchanging ? unchangingUri(file) : file;
    const int result = sqlite3_open_v2(name.c_str(), &handle_, flags, nullptr);
    if (result != SQLITE_OK) {
        const std::string message = handle_ ? sqlite3_errmsg(handle_) : sqlite3_errstr(result);
        sqlite3_close(handle_);
        throw DatabaseError(result & 0xff, file + ": " + message);
    }
    sqlite3_busy_handler(handle_, wait, this);
}

Database::~Database() {
    for (const auto &[sql, statement] : idle_) {
        sqlite3_finalize(statement);
    }
    sqlite3_close(handle_);
}

// Short, uneven naps: under contention they share the lock far more evenly than SQLite's own, which grow to 100 ms.
int Database::wait(void *self, int attempt) {
    Database &database = *static_cast<Database *>(self);
    const auto now = std::chrono::steady_clock::now();
    if (attempt == 0) {
        database.waitingSince_ = now;
    }
    if (now - database.waitingSince_ >= database.patience_) {
        return 0;
    }
    const std::chrono::microseconds jitter(now.time_since_epoch().count() % 1000);
    std::this_thread::sleep_for(kShortestNap + jitter + kNapGrowth * std::min(attempt, 50));
    return 1;
}

void Database::fail(int code) const {
    throw DatabaseError(code & 0xff, file_ + ": " + sqlite3_errmsg(handle_));
}

void Database::execute(const char *sql) {
    const int result = sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr);
    if (result != SQLITE_OK) {
        fail(result);
    }
}

int Database::changes() const {
    return sqlite3_changes(handle_);
}

int64_t Database::lastRowId() const {
    return sqlite3_last_insert_rowid(handle_);
}

sqlite3_stmt *Database::take(std::string_view sql) {
    if (const auto found = idle_.find(sql); found != idle_.end()) {
        sqlite3_stmt *statement = found->second;
        idle_.erase(found);
        return statement;
    }
    sqlite3_stmt *statement = nullptr;
    const int result = sqlite3_prepare_v3(handle_, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                                          &statement, nullptr);
    if (result != SQLITE_OK) {
        fail(result);
    }
    return statement;
}

void Database::giveBack(sqlite3_stmt *statement) {
    sqlite3_reset(statement);
    try {
        idle_.emplace(sqlite3_sql(statement), statement);
    } catch (const std::bad_alloc &) {
        sqlite3_finalize(statement);
    }
}

bool Statement::step() {
    const int result = sqlite3_step(statement_);
    if (result != SQLITE_ROW && result != SQLITE_DONE) {
        database_.fail(result);
    }
    return result == SQLITE_ROW;
}

void Statement::run() {
    while (step()) {
    }
    reset();
}

void Statement::reset() {
    sqlite3_reset(statement_);
}

void Statement::bind(int index, int64_t value) {
    if (const int result = sqlite3_bind_int64(statement_, index, value); result != SQLITE_OK) {
        database_.fail(result);
    }
}

void Statement::bind(int index, std::string_view value) {
    // A null pointer would bind NULL where an empty text is meant.
    const char *text = value.data() ? value.data() : "";
    const auto size = static_cast<sqlite3_uint64>(value.size());
    const int result = sqlite3_bind_text64(statement_, index, text, size, SQLITE_TRANSIENT, SQLITE_UTF8);
    if (result != SQLITE_OK) {
        database_.fail(result);
    }
}

void Statement::bind(int index, std::nullptr_t) {
    if (const int result = sqlite3_bind_null(statement_, index); result != SQLITE_OK) {
        database_.fail(result);
    }
}

int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(statement_, column);
}

std::string_view Statement::text(int column) const {
    const unsigned char *text = sqlite3_column_text(statement_, column);
    if (!text) {
        if (!isNull(column)) {
            throw std::bad_alloc();
        }
        return {};
    }
    return {reinterpret_cast<const char *>(text), static_cast<size_t>(sqlite3_column_bytes(statement_, column))};
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

Transaction::Transaction(Database &database, Kind kind) : database_(database) {
    database_.execute(kind == Kind::Write ? "BEGIN IMMEDIATE" : "BEGIN");
}

Transaction::~Transaction() {
    if (open_) {
        try {
            database_.execute("ROLLBACK");
        } catch (const DatabaseError &) { // NOLINT(bugprone-empty-catch): SQLite has rolled back by itself
        }
    }
}

void Transaction::commit() {
    database_.execute("COMMIT");
    open_ = false;
}

} // namespace sandbox
