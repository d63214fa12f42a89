// Sockets between the programs of one user on one machine.
#pragma once

#include <string>
#include <string_view>

#include "platform/Descriptor.h"

namespace tw {

// The folder for the sockets and locks of this user's programs: "tunwright" below XDG_RUNTIME_DIR or, where
// the session has none of its own, below the cache folder. It is made if it is missing, belongs to the user
// and can be entered by nobody else. Empty when there is no such folder.
std::string RuntimeFolder();

// A socket that listens under name in folder; what was there before goes. Not open when that fails. REQUIRES:
// nobody else listens there.
Descriptor ListenAt(const Descriptor& folder, std::string_view name);
// A conversation with the one who listens there. Not open when nobody does, or when it has not been let in
// after that time.
Descriptor ConnectTo(const Descriptor& folder, std::string_view name, int timeoutMilliseconds);
// True when the program at the other end of socket runs for the same user as this one.
bool IsSameUser(int socket);

// The folder itself, opened; the other functions go through it, since a socket's own path has to be short.
Descriptor OpenFolder(const std::string& path);

}  // namespace tw
