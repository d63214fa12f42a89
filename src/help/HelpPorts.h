// The ports that the help needs: opening a document on the desktop, and text files.
#pragma once

#include <string>
#include <string_view>

namespace tw {

// Opens documents in the program that the desktop uses for them.
class BrowserPort {
  public:
    virtual ~BrowserPort() = default;
    // Returns 33 or above if the document is being opened, otherwise a code of BrowserFailure.
    virtual int Open(const std::string& file) = 0;
};

// Reads and writes whole text files, byte for byte. Both raise Error with a description that names the file.
class TextFilePort {
  public:
    virtual ~TextFilePort() = default;
    virtual std::string Read(const std::string& file) = 0;
    // Overwrites an existing file.
    virtual void Write(const std::string& file, std::string_view text) = 0;
};

// The codes that BrowserPort::Open returns on this platform.
inline constexpr int kFileNotFoundCode = 2;
inline constexpr int kAccessDeniedCode = 5;
inline constexpr int kNoProgramCode = 31;
inline constexpr int kOpenedCode = 33;

}  // namespace tw
