#pragma once

#include "common/error.h"

#include <cstdint>
#include <memory>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace brx::host {

/// The number of every error of the database: the first one that is free for an application's own.
inline constexpr std::int32_t database_error = static_cast<std::int32_t>(0x8004'0201);

/// An error of the database with a description that says which file.
Error failed_database(const std::string& description);

/// An open database file.
class SqliteFile {
public:
    /// Opens the file, or makes it; as far as it can only be read, it is only read.
    explicit SqliteFile(const std::string& path);
    SqliteFile(const SqliteFile&) = delete;
    SqliteFile& operator=(const SqliteFile&) = delete;

    const std::string& path() const { return path_; }
    bool is_read_only() const;
    /// Runs statements that give nothing.
    void run(const char* statements);
    sqlite3* handle() const { return handle_.get(); }
    std::int64_t last_row_id() const;
    /// How many rows the last change changed.
    std::int64_t changes() const;

    /// What to tell a person about the last failure.
    Error failure() const;

private:
    struct Close {
        void operator()(sqlite3* handle) const;
    };
    std::string path_;
    std::unique_ptr<sqlite3, Close> handle_;
};

/// One prepared statement. Parameters count from 1, columns from 0.
class Statement {
public:
    Statement(SqliteFile& file, const char* text);

    Statement& bind(int parameter, const std::string& value);
    Statement& bind(int parameter, std::int64_t value);
    Statement& bind(int parameter, double value);
    Statement& bind_null(int parameter);
    /// Goes to the next row; false behind the last one.
    bool step();
    std::string text(int column) const;
    std::int64_t number(int column) const;
    double real(int column) const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    void check(int result) const;

    SqliteFile& file_;
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// Everything until `commit` happens, or nothing of it.
class Transaction {
public:
    explicit Transaction(SqliteFile& file) : file_(file) { file_.run("BEGIN IMMEDIATE"); }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    void commit();

private:
    SqliteFile& file_;
    bool open_ = true;
};

} // namespace brx::host
