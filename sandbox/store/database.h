// SPDX-License-Identifier: MIT
//
// SQLite, as the store uses it: a connection, its statements and transactions as scope-bound objects.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

namespace sandbox {

class DatabaseError : public std::runtime_error {
  public:
    DatabaseError(int code, const std::string &message) : std::runtime_error(message), code_(code) {}
    // Primary result code of SQLite.
    int code() const { return code_; }
    // The database stayed locked.
    bool busy() const;
    bool noMemory() const;
    // A row that contradicts another one.
    bool conflict() const;

  private:
    int code_;
};

// One connection; for one thread at a time.
class Database {
  public:
    // Reading: without permission to write, beside others that may. Unchanging: the same where nobody is at work, so
    // that neither locks nor a log are needed; for a moment's use only.
    enum class Open { Existing, New, Reading, Unchanging };

    // Waits up to `patience` for other processes' locks. Throws DatabaseError.
    Database(const std::string &file, Open how, std::chrono::milliseconds patience);
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;
    ~Database();

    // Whether it can be changed.
    bool isWritable() const { return writable_; }

    // Runs statements that have no parameters and whose rows do not matter.
    void execute(const char *sql);
    // Rows changed by the statement that ran last.
    int changes() const;
    int64_t lastRowId() const;

  private:
    friend class Statement;

    static int wait(void *self, int attempt);
    [[noreturn]] void fail(int code) const;
    sqlite3_stmt *take(std::string_view sql);
    void giveBack(sqlite3_stmt *statement);

    sqlite3 *handle_ = nullptr;
    std::string file_;
    bool writable_;
    std::chrono::milliseconds patience_;
    std::chrono::steady_clock::time_point waitingSince_;
    std::unordered_multimap<std::string_view, sqlite3_stmt *> idle_; // by their own text
};

// A prepared statement on loan: it goes back to the connection's stock at scope end, so preparing costs once.
class Statement {
  public:
    // Binds `values` to the parameters ?1, ?2, ... Numbers, texts, and empty optionals or nullptr for NULL.
    template <class... Values>
    Statement(Database &database, std::string_view sql, const Values &...values) : Statement(Taken{}, database, sql) {
        bindAll(values...);
    }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;
    ~Statement() { database_.giveBack(statement_); }

    // The next row; false after the last one.
    bool step();
    // Runs a statement that answers no rows.
    void run();
    // Starts over with other values.
    template <class... Values>
    Statement &rebind(const Values &...values) {
        reset();
        bindAll(values...);
        return *this;
    }

    // Binds one parameter of a statement whose number of parameters varies.
    void bind(int index, std::string_view value);

    int64_t integer(int column) const;
    // Valid until the next step.
    std::string_view text(int column) const;
    bool isNull(int column) const;

  private:
    // Once this constructor is through, the destructor gives the statement back whatever binding does.
    struct Taken {};
    Statement(Taken /*tag*/, Database &database, std::string_view sql)
        : database_(database), statement_(database.take(sql)) {}

    template <class... Values>
    void bindAll(const Values &...values) {
        int index = 0;
        (bind(++index, values), ...);
    }
    void bind(int index, int64_t value);
    void bind(int index, int value) { bind(index, static_cast<int64_t>(value)); }
    void bind(int index, bool value) { bind(index, static_cast<int64_t>(value)); }
    void bind(int index, const std::string &value) { bind(index, std::string_view(value)); }
    void bind(int index, const char *value) { bind(index, std::string_view(value)); }
    void bind(int index, std::nullptr_t);
    template <class Value>
    void bind(int index, const std::optional<Value> &value) {
        if (value) {
            bind(index, *value);
        } else {
            bind(index, nullptr);
        }
    }
    void reset();

    Database &database_;
    sqlite3_stmt *statement_;
};

// Undoes everything at scope end unless committed.
class Transaction {
  public:
    // A Write holds the write lock from the start, so that what it reads stays true.
    enum class Kind { Read, Write };

    Transaction(Database &database, Kind kind);
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;
    ~Transaction();

    void commit();

  private:
    Database &database_;
    bool open_ = true;
};

} // namespace sandbox
