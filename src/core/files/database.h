#pragma once

#include "core/base/outcome.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace tessaly {

/// What a database is opened for.
enum class DatabaseUse { ReadWrite, ReadOnly };

enum class Transaction { Read, Write };

/// A connection to a file of SQLite's. After a failure no statement does anything until `begin` or
/// `forgetFailure`, so whoever runs several asks once, at their end, how it went.
class Database {
public:
    /// How long a statement waits for another program that is writing, in milliseconds.
    static constexpr int Patience = 500;

    /// Opens or makes the file. A problem is that of `outcome`.
    void open(const std::filesystem::path& path, DatabaseUse use);
    void close() { m_connection.reset(); }
    bool isOpen() const { return m_connection != nullptr; }
    /// Whether the file could be opened for reading alone.
    bool isReadOnly() const;

    /// Runs statements that answer nothing.
    void execute(const std::string& statements);
    /// Everything from `begin` to a `commit` that answers done is in the file together, else
    /// nothing of it.
    void begin(Transaction what);
    Outcome commit();

    /// The number of rows that the last statement changed.
    int changes() const;

    /// Ends the statement that another thread runs here, as soon as it can be.
    void interrupt();

    /// "FILE: cannot be used: what SQLite says", or done.
    Outcome outcome() const;
    /// Whether what went wrong was that the file is no sound database.
    bool isDamaged() const;
    void forgetFailure() { m_failure = 0; }

private:
    friend class Statement;
    struct Close {
        void operator()(sqlite3* connection) const;
    };
    void note(int result);

    std::filesystem::path m_path;
    std::unique_ptr<sqlite3, Close> m_connection;
    int m_failure = 0;
    std::string m_problem;
};

/// A prepared statement. Parameters are numbered from 1, columns from 0.
class Statement {
public:
    Statement() = default;
    /// The database must outlive the statement.
    Statement(Database& database, std::string_view text);

    /// Binds all parameters and forgets the answers of the run before.
    template <class... Values>
    Statement& with(const Values&... values) {
        reset();
        int parameter = 0;
        (bind(++parameter, values), ...);
        return *this;
    }
    /// Goes to the next row of the answer; whether there is one.
    bool next();
    /// Runs a statement that answers nothing.
    void run() {
        next();
        reset();
    }

    std::int64_t number(int column) const;
    std::string text(int column) const;
    bool isNull(int column) const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    void reset();
    void bind(int parameter, std::int64_t value);
    void bind(int parameter, std::string_view value);

    Database* m_database = nullptr;
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};

} // namespace tessaly
