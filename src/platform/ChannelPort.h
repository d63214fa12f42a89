// The channel between two starts of the program, and from other programs to the one that runs: a name that
// one process holds, texts to the holder, and a lock around the test who that is.
#pragma once

#include <string_view>

namespace tw {

// What a conversation with a running program is about; another topic is refused.
inline constexpr std::string_view kChannelTopic = "System";

// What a text to the holder of the name is.
enum class ChannelMessage : char {
    Commands = 'X',  // commands in their text form
    File = 'F',      // the path of one file, which may hold what that form cannot carry, such as a comma
};

// The program that holds the name, as the channel talks to it. The calls come from the event loop, also while
// a dialog is open.
class ChannelReceiver {
  public:
    virtual ~ChannelReceiver() = default;
    // False refuses a conversation on that topic.
    virtual bool AcceptsTopic(std::string_view topic) = 0;
    // False refuses the text: too much waits already. Nothing of it is taken then.
    virtual bool Receive(ChannelMessage kind, std::string_view text) = 0;
};

class ChannelPort {
  public:
    enum class Name { Held, HeldByOther, Failed };
    // What has become of a text: NoAnswer also where it may still be taken later.
    enum class Sent { Taken, Refused, NoAnswer };

    virtual ~ChannelPort() = default;
    // Finds the place that all programs of this user share. False when there is none.
    virtual bool Initialize() = 0;
    // The lock around the test. TakeLock waits for its turn without end; the system takes the lock away from
    // a process that ends. False when there is no lock, or none can be had.
    virtual bool CreateLock() = 0;
    virtual bool TakeLock() = 0;
    virtual void ReleaseLock() = 0;
    // Takes the name, if nobody holds it, and listens for receiver from now on. HeldByOther: Send reaches the
    // holder, if it answers at all. A holder that no longer listens is given a few seconds to end. REQUIRES:
    // the lock is taken; receiver lives until Unregister.
    virtual Name Register(ChannelReceiver& receiver) = 0;
    // Listens no more; a program that does not hold the name ends its conversation. The name itself is held
    // until the object goes, so that the next program waits until this one has closed its files.
    virtual void Unregister() = 0;
    // Sends to the other program and waits for its word on it. A text that is too long is refused.
    virtual Sent Send(ChannelMessage kind, std::string_view text, int timeoutMilliseconds) = 0;
};

}  // namespace tw
