# brx_sqlite: the database library of the sample host. Linux has it as a package; for Windows it is built from the
# amalgamation that scripts/setup.sh puts into the cache folder.

if(NOT WIN32)
    find_package(SQLite3 REQUIRED)
    add_library(brx_sqlite INTERFACE)
    target_link_libraries(brx_sqlite INTERFACE SQLite::SQLite3)
    return()
endif()

set(BRX_SQLITE_DIR "${BRX_CACHE}/sqlite" CACHE PATH "Folder with sqlite3.c and sqlite3.h")

if(EXISTS "${BRX_SQLITE_DIR}/sqlite3.c")
    add_library(brx_sqlite STATIC EXCLUDE_FROM_ALL "${BRX_SQLITE_DIR}/sqlite3.c")
    target_include_directories(brx_sqlite SYSTEM INTERFACE "${BRX_SQLITE_DIR}")
    target_compile_options(brx_sqlite PRIVATE -O2 "-ffile-prefix-map=${BRX_SQLITE_DIR}/=")
    if(BRX_PDB)
        # The debug information would tell where its source lies.
        target_compile_options(brx_sqlite PRIVATE -g0)
    endif()
    target_compile_definitions(brx_sqlite PRIVATE SQLITE_THREADSAFE=1 SQLITE_DQS=0 SQLITE_OMIT_LOAD_EXTENSION)
else()
    # Only what links it needs it: everything else is built without.
    message(WARNING "No SQLite in ${BRX_SQLITE_DIR}: the sample host cannot be built. Run scripts/setup.sh")
endif()
