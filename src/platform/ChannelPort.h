// The channel between running copies of the program, and from other programs to the running one: a name
// that one process at a time holds, messages to that holder, and a lock that makes "who holds the name?"
// safe to ask.
#pragma once

#include <string_view>

namespace tw {

// The topic of every conversation with a running program; any other topic is refused.
inline constexpr std::string_view kChannelTopic = "System";

// What a message to the holder of the name contains.
enum class ChannelMessage : char {
    Commands = 'X',  // commands in their text form
    File = 'F',      // one file's path; it may contain what a command's text cannot, such as a comma
};

// The program that holds the name, as seen by the channel. The calls come from the event loop, even while a
// dialog is open.
class ChannelReceiver {
  public:
    virtual ~ChannelReceiver() = default;
    // Returns false to refuse a conversation on that topic.
    virtual bool AcceptsTopic(std::string_view topic) = 0;
    // Returns false to refuse the whole message because too much is already waiting.
    virtual bool Receive(ChannelMessage kind, std::string_view text) = 0;
};

class ChannelPort {
  public:
    enum class Name { Held, HeldByOther, Failed };
    // What happened to a message. After NoAnswer the holder may still accept it later.
    enum class Sent { Taken, Refused, NoAnswer };

    virtual ~ChannelPort() = default;
    // Finds the folder that all programs of this user share. False if there is none.
    virtual bool Initialize() = 0;
    // Creates the lock. False if the system cannot provide one.
    virtual bool CreateLock() = 0;
    // Waits for the lock without a time limit; the system releases the lock of a process that ends. False if
    // locking fails.
    virtual bool TakeLock() = 0;
    virtual void ReleaseLock() = 0;
    // Takes the name if it is free, and from then on passes messages to receiver. After HeldByOther, Send
    // reaches the holder, provided that it answers at all. A holder that has stopped listening is given a few
    // seconds to end.
    // REQUIRES: the lock is taken; receiver outlives the registration, which ends with Unregister.
    virtual Name Register(ChannelReceiver& receiver) = 0;
    // Stops listening; a program that does not hold the name ends its conversation instead. The name itself
    // stays held until this object is destroyed, so that the next program waits until this one has closed
    // its files.
    virtual void Unregister() = 0;
    // Sends a message to the holder of the name and waits for its answer. A text that is too long is refused.
    virtual Sent Send(ChannelMessage kind, std::string_view text, int timeoutMilliseconds) = 0;
};

}  // namespace tw
