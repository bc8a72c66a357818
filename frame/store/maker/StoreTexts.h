#pragma once

/// The tables: schema.sql as the build found it.
extern const char *const kSchemaText;
/// The rows that every new store holds: initial_rows.sql.
extern const char *const kInitialRowsText;
