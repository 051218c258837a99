#include "host/sqlite.h"

#include <sqlite3.h>

#include <filesystem>

namespace brx::host {

namespace {

/// Another program may just be writing.
constexpr int patience_milliseconds = 1000;

void make_folder_of(const std::string& path) {
    const std::filesystem::path file(std::u8string(path.begin(), path.end()));
    std::error_code ignored; // the file cannot be opened then, and that is what is told
    if (file.has_parent_path()) std::filesystem::create_directories(file.parent_path(), ignored);
}

/// In words for whoever uses the program.
std::string reason(int code, const char* message) {
    switch (code & 0xFF) {
    case SQLITE_NOTADB:
        return "it is not a database";
    case SQLITE_CORRUPT:
        return "it is damaged";
    case SQLITE_READONLY:
        return "it is write-protected";
    case SQLITE_CANTOPEN:
        return "it cannot be opened";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return "another program is using it";
    case SQLITE_FULL:
        return "the disk is full";
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return "access to it is denied";
    default:
        return message;
    }
}

} // namespace

Error failed_database(const std::string& description) { return {database_error, description, "brxSample"}; }

SqliteFile::SqliteFile(const std::string& path) : path_(path) {
    make_folder_of(path);
    sqlite3* opened = nullptr;
    const int result =
        sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    handle_.reset(opened);
    if (!opened) throw std::bad_alloc();
    sqlite3_extended_result_codes(opened, 1);
    sqlite3_busy_timeout(opened, patience_milliseconds);
    if (result != SQLITE_OK) throw failure();
}

void SqliteFile::Close::operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }

bool SqliteFile::is_read_only() const { return sqlite3_db_readonly(handle(), "main") == 1; }

void SqliteFile::run(const char* statements) {
    if (sqlite3_exec(handle(), statements, nullptr, nullptr, nullptr) != SQLITE_OK) throw failure();
}

std::int64_t SqliteFile::last_row_id() const { return sqlite3_last_insert_rowid(handle()); }

std::int64_t SqliteFile::changes() const { return sqlite3_changes64(handle()); }

Error SqliteFile::failure() const {
    return failed_database("The database file " + path_ + " cannot be used: " +
                           reason(sqlite3_errcode(handle()), sqlite3_errmsg(handle())) + ".");
}

Statement::Statement(SqliteFile& file, const char* text) : file_(file) {
    sqlite3_stmt* prepared = nullptr;
    const int result = sqlite3_prepare_v2(file.handle(), text, -1, &prepared, nullptr);
    statement_.reset(prepared);
    check(result);
}

void Statement::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

void Statement::check(int result) const {
    if (result != SQLITE_OK) throw file_.failure();
}

Statement& Statement::bind(int parameter, const std::string& value) {
    check(sqlite3_bind_text64(statement_.get(), parameter, value.data(), value.size(), SQLITE_TRANSIENT,
                              SQLITE_UTF8));
    return *this;
}

Statement& Statement::bind(int parameter, std::int64_t value) {
    check(sqlite3_bind_int64(statement_.get(), parameter, value));
    return *this;
}

Statement& Statement::bind(int parameter, double value) {
    check(sqlite3_bind_double(statement_.get(), parameter, value));
    return *this;
}

Statement& Statement::bind_null(int parameter) {
    check(sqlite3_bind_null(statement_.get(), parameter));
    return *this;
}

bool Statement::step() {
    const int result = sqlite3_step(statement_.get());
    if (result == SQLITE_ROW) return true;
    if (result != SQLITE_DONE) throw file_.failure();
    return false;
}

std::string Statement::text(int column) const {
    const unsigned char* first = sqlite3_column_text(statement_.get(), column);
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column));
    return first ? std::string(first, first + size) : std::string();
}

std::int64_t Statement::number(int column) const { return sqlite3_column_int64(statement_.get(), column); }

double Statement::real(int column) const { return sqlite3_column_double(statement_.get(), column); }

Transaction::~Transaction() {
    if (open_) sqlite3_exec(file_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
    file_.run("COMMIT");
    open_ = false;
}

} // namespace brx::host
