// The tables of a store's file, and how a file of an older form becomes one of this form.
#pragma once

#include <filesystem>

#include "server/store/sqlite_database.h"

namespace jogeon::store {

// Makes `database` a store of this program's form: a new file gets its tables, an older form is carried over,
// step by step, in one transaction. Throws StoreError for a file of a newer form, one of another program, one
// that is damaged, and one that may not be written.
void PrepareSchema(Database& database);

// Opens a store's file and prepares it, or makes the file and its folder. Throws StoreError.
Database OpenStore(const std::filesystem::path& file);

}  // namespace jogeon::store
