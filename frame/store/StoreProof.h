#pragma once

#include <filesystem>

struct sqlite3;

/// Raises StoreRefusal unless there is a file of at least one byte.
void ProveFile(const std::filesystem::path &file);

/// Reads the opened file and raises StoreRefusal where it is no store, cut short or damaged, ForeignStore where it is
/// another program's or of a later version. A journal left by a crash is rolled back first.
void ProveStore(sqlite3 *handle);

/// Raises what a result code means while a store is being opened.
[[noreturn]] void RaiseOpenError(sqlite3 *handle, int code);
