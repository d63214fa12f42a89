// Limits what somebody else's file can do when it is opened as a database: it may contain tables, and nothing
// else. No view, virtual table or trigger in it is ever run, no statement changes its schema or accesses
// another file, and no statement runs without end.
#pragma once

struct sqlite3;

namespace tw {

// Forbids everything that a recipe file does not need. REQUIRES: nothing has been read through the
// handle yet.
void Distrust(sqlite3* handle);

}  // namespace tw
