#pragma once

struct sqlite3;

/// Writes three ports and two invented bulk carriers, a handysize and a panamax, with their hydrostatic tables.
void WriteSample(sqlite3 *handle);
