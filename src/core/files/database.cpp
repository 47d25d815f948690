#include "core/files/database.h"

#include <sqlite3.h>

namespace tessaly {

void Database::Close::operator()(sqlite3* connection) const {
    sqlite3_close_v2(connection);
}

void Database::note(int result) {
    if (result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE || m_failure != 0)
        return;
    m_failure = result;
    m_problem = sqlite3_errmsg(m_connection.get());
}

void Database::open(const std::filesystem::path& path, DatabaseUse use) {
    close();
    forgetFailure();
    m_path = path;
    sqlite3* connection = nullptr;
    const int how = use == DatabaseUse::ReadOnly ? SQLITE_OPEN_READONLY
                                                 : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    const int result = sqlite3_open_v2(path.c_str(), &connection, how, nullptr);
    m_connection.reset(connection);
    note(result);
    sqlite3_busy_timeout(connection, Patience);
}

bool Database::isReadOnly() const {
    return sqlite3_db_readonly(m_connection.get(), "main") == 1;
}

void Database::execute(const std::string& statements) {
    if (m_failure != 0)
        return;
    note(sqlite3_exec(m_connection.get(), statements.c_str(), nullptr, nullptr, nullptr));
}

void Database::begin(Transaction what) {
    forgetFailure();
    execute(what == Transaction::Write ? "BEGIN IMMEDIATE" : "BEGIN");
}

Outcome Database::commit() {
    execute("COMMIT");
    // What failed may have ended the transaction already.
    if (m_failure != 0 && sqlite3_get_autocommit(m_connection.get()) == 0)
        sqlite3_exec(m_connection.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    return outcome();
}

int Database::changes() const {
    return sqlite3_changes(m_connection.get());
}

void Database::interrupt() {
    sqlite3_interrupt(m_connection.get());
}

Outcome Database::outcome() const {
    return m_failure == 0 ? Outcome::done()
                          : Outcome::failed(m_path.native() + ": cannot be used: " + m_problem);
}

bool Database::isDamaged() const {
    return m_failure == SQLITE_CORRUPT || m_failure == SQLITE_NOTADB;
}

void Statement::Finalize::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

Statement::Statement(Database& database, std::string_view text)
    : m_database(&database) {
    sqlite3_stmt* statement = nullptr;
    database.note(sqlite3_prepare_v3(database.m_connection.get(), text.data(),
                                     static_cast<int>(text.size()), SQLITE_PREPARE_PERSISTENT,
                                     &statement, nullptr));
    m_statement.reset(statement);
}

bool Statement::next() {
    if (m_database->m_failure != 0)
        return false;
    const int result = sqlite3_step(m_statement.get());
    m_database->note(result);
    return result == SQLITE_ROW;
}

void Statement::reset() {
    sqlite3_reset(m_statement.get()); // answers the failure that `next` has noted
    sqlite3_clear_bindings(m_statement.get());
}

void Statement::bind(int parameter, std::int64_t value) {
    m_database->note(sqlite3_bind_int64(m_statement.get(), parameter, value));
}

void Statement::bind(int parameter, std::string_view value) {
    m_database->note(sqlite3_bind_text(m_statement.get(), parameter, value.data(),
                                       static_cast<int>(value.size()), SQLITE_TRANSIENT));
}

std::int64_t Statement::number(int column) const {
    return sqlite3_column_int64(m_statement.get(), column);
}

std::string Statement::text(int column) const {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(m_statement.get(), column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(m_statement.get(), column));
    return bytes == nullptr ? std::string() : std::string(bytes, size);
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
}

} // namespace tessaly
