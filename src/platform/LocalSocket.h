// Sockets between programs that one user runs on one machine.
#pragma once

#include <string>
#include <string_view>

#include "platform/Descriptor.h"

namespace tw {

// Returns the folder for the sockets and locks of this user's programs: "tunwright" below XDG_RUNTIME_DIR or,
// if the user has no such directory, below the cache folder. The folder is created if it is missing, belongs
// to the user, and is closed to all other users. Empty if there is no such folder.
std::string RuntimeFolder();

// Returns a socket that listens under name in folder; a leftover file of that name is deleted. The descriptor
// is not open if this fails. REQUIRES: no other process is listening there.
Descriptor ListenAt(const Descriptor& folder, std::string_view name);
// Connects to the process that listens under name in folder. The descriptor is not open if no process listens
// there, or if the connection is not accepted within the timeout.
Descriptor ConnectTo(const Descriptor& folder, std::string_view name, int timeoutMilliseconds);
// True if the process at the other end of socket runs as the same user as this one.
bool IsSameUser(int socket);

// Opens the folder itself. The other functions reach their socket through this descriptor, because the path
// of a socket must be short.
Descriptor OpenFolder(const std::string& path);

}  // namespace tw
